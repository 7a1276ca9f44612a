#include <gtest/gtest.h>

#include "capture.h"
#include "zebistream.h"
#include "zebiterator.h"

TEST(Parameter, DeliversItsValueOnceAndShowsItOnlyUnderAName) {
  zebDefault<int> nameless(5);
  EXPECT_TRUE(nameless.firstValue() && !nameless.nextValue());
  Capture screen(outPerf);
  TableFile table(g_cstrm);
  nameless.toOStream(g_ostrm);
  nameless.toCStream(g_cstrm);
  g_cstrm.lineOut(1);
  EXPECT_EQ(screen.text() + table.text(), "-\n");
}

TEST(ParameterInput, EndsWithALineThatShowsTheValueInForce) {
  zebIStream in;
  for (const char* item : {"x=8", "y=none", "z=9", "list=;"}) in.m_dataList.set(item);
  zebDefault<int> x(5, "x"), y(6, "y"), settled(7, "z"), nameless(4);
  zebIterator<int> list(0, "list");
  list.add(3);
  settled.m_ask = false;
  Capture screen(outPerf);
  for (zebParameter* parm : std::initializer_list<zebParameter*>{&x, &y, &settled, &nameless, &list})
    parm->fromIStream(in);
  EXPECT_EQ(screen.text(),
            " x = 8\n-Invalid value of y = none\n y = 6\n z = 7\n-Empty iterator definition\n list = 3\n");
}

TEST(ParameterInput, ShowsTheAnswerOfTheConsoleAtAnyLevelAndRestoresTheLevel) {
  TempFile answers("8\n");
  FILE* const console = std::exchange(c_in.m_file, fopen(answers.name().c_str(), "r"));
  Capture screen(outErr);
  zebIStream in;
  in.setIStream(&c_in);
  zebDefault<int> x(5, "x", "Give x");
  x.fromIStream(in);
  EXPECT_EQ(screen.text(), " x = 8\n");
  EXPECT_EQ(g_ostrm.outLevel(), outErr);
  fclose(std::exchange(c_in.m_file, console));
}
