// What the dialogs set, with the words of their items given in place of a user.
#include <gtest/gtest.h>

#include "capture.h"
#include "zebistream.h"
#include "zebmemory.h"
#include "zebsession.h"
#include "zebtool.h"

namespace {

class Dialogs : public testing::Test {
 protected:
  ~Dialogs() override {
    g_istrm.m_dataList.clear();
    g_tool = m_tool;
    initTimingMethod = nullptr;
  }

  // The method that these data select.
  const zebTool& method(const char* data) {
    zebStringList words;
    zebString(data).parse(words, " ");
    for (const zebString& word : words) g_istrm.m_dataList.set(word);
    session.readTimingMethod();
    return g_tool;
  }

  Capture screen{outPerf};
  zebSession session;

 private:
  zebTool m_tool = g_tool;
};

TEST_F(Dialogs, GiveEachMethodItsOwnFigures) {
  int a = 0, b = 0;
  long long clocks = 0;
  EXPECT_TRUE(method("Method=s").getMethodStat(a, clocks));
  EXPECT_EQ(a, 3);
  EXPECT_EQ(clocks, 10000);
  EXPECT_TRUE(method("Method=iterative StartNumLoops=4 StopNumLoops=8").getMethodBest(a, b, clocks));
  EXPECT_EQ(a, 4);
  EXPECT_EQ(b, 32);
}

TEST_F(Dialogs, BeginWithTheMethodThatTheSuiteRegistered) {
  int start = 0, stop = 0;
  long long clocks = 0;
  initTimingMethod = [](zebTool& tool) { tool.setMethodBest(4, 1000, 77); };
  EXPECT_TRUE(method("").getMethodBest(start, stop, clocks));
  EXPECT_EQ(start, 4);
  EXPECT_EQ(clocks, 77);
}

TEST_F(Dialogs, TakeAccuracyInPercentAndAnyOtherNumberForNone) {
  const struct {
    const char* percent;
    double accuracy;
  } cases[] = {{"Accuracy=50", 0.5}, {"Accuracy=1", 0.01}, {"Accuracy=0", 500},
               {"Accuracy=51", 500}, {"Accuracy=-5", 500}, {"Accuracy=x", 0.05}};
  for (const auto& c : cases) EXPECT_EQ(method(c.percent).m_wantedAccuracy, c.accuracy) << c.percent;
}

TEST_F(Dialogs, RefuseAShiftThatLeadsInFrontOfTheData) {
  g_istrm.m_dataList.set("MutualVectorShift=-64");
  session.readDataOffset();
  EXPECT_EQ(zebGetVectorShift(), 512);
  EXPECT_TRUE(contains(screen.text(), "-Invalid value of MutualVectorShift = -64\n"));
}

}  // namespace
