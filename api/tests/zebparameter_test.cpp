#include <gtest/gtest.h>

#include "capture.h"
#include "console.h"
#include "zebalignparms.h"
#include "zebcstream.h"
#include "zebmapdefault.h"

namespace {

zebString cellsOf(const zebParameter& parm) {
  zebCStream table;
  parm.toCStream(table);
  parm.nameToCStream(table);
  zebString value, name;
  table.getColm(0, value);
  table.getColm(1, name);
  return value + "|" + name;
}

TEST(Parameter, WritesItselfForTheUserAndTheTableIfItHasAName) {
  zebDefault<int> named(5, "x"), nameless(5);
  Capture screen(outPerf);
  named.toOStream(g_ostrm);
  nameless.toOStream(g_ostrm);
  EXPECT_EQ(screen.text(), "x=5 ");
  for (int round = 0; round < 2; ++round) EXPECT_TRUE(named.firstValue() && !named.nextValue());
  EXPECT_EQ(cellsOf(named), "5|x");
  EXPECT_EQ(cellsOf(nameless), "|");
}

TEST(Parameter, ShowsTheDeprecatedTextOfAnOldValueInTheTable) {
  zebDefault<int> parm(4, "x");
  parm.m_deprecatedValues.push_back(4);
  parm.m_deprecatedNames.push_back("four");
  EXPECT_TRUE(parm.setDeprecatedFlag(true));
  EXPECT_EQ(cellsOf(parm), "four|x");
  EXPECT_FALSE(parm.setDeprecatedFlag(false));
  EXPECT_EQ(cellsOf(parm), "4|x");
}

TEST(MapDefault, TakesAnyBeginningOfAWordInAnyCaseTheFirstThatFits) {
  zebMapDefault<int> parm(9, "q", "Really");
  parm[3] = "Statistic";
  parm[1] = "Renamed";
  parm[1] = "Stop";
  EXPECT_EQ(parm.prompt(), "Really {Statistic|Stop}");
  parm.translate("STO");
  EXPECT_EQ(parm.value(), 1);
  parm.translate("st");
  EXPECT_EQ(parm.description(), "q = Statistic");
}

TEST(AlignmentItems, KeepTheirValuesWithinALine) {
  EXPECT_EQ(DefaultAlign().validItem("70"), 6);
  EXPECT_EQ(DefaultAlign().validItem("-1"), -1);
  EXPECT_EQ(DefaultShift().validItem("127"), 64);
  EXPECT_EQ(DefaultShift().validItem("-1"), -64);
}

TEST(ParameterInput, EndsWithALineThatShowsTheValueInForce) {
  zebIStream in;
  for (const char* item : {"x=8", "y=none", "z=9"}) in.m_dataList.set(item);
  zebDefault<int> x(5, "x"), y(6, "y"), settled(7, "z"), nameless(4);
  settled.m_ask = false;
  Capture screen(outPerf);
  for (zebDefault<int>* parm : {&x, &y, &settled, &nameless}) parm->fromIStream(in);
  EXPECT_EQ(screen.text(), " x = 8\n-Invalid value of y = none\n y = 6\n z = 7\n");
}

TEST(ParameterInput, ShowsTheAnswerOfTheConsoleAtAnyLevelAndRestoresTheLevel) {
  Console console("8\n");
  Capture screen(outErr);
  zebIStream in;
  in.setIStream(&c_in);
  zebDefault<int> x(5, "x", "Give x");
  x.fromIStream(in);
  EXPECT_EQ(console.text(), "\n Give x [5] = ");
  EXPECT_EQ(screen.text(), " x = 8\n");
  EXPECT_EQ(g_ostrm.outLevel(), outErr);
}

}  // namespace
