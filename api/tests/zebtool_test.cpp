#include "zebtool.h"

#include <gtest/gtest.h>

#include "capture.h"
#include "scriptedfunction.h"

namespace {

TEST(Tool, KeepsLoopCountsWithinReason) {
  const int most = 2147483647;
  zebTool tool;
  const int bests[][4] = {{3, 5, 3, 24}, {0, -9, 1, 0}, {2000000000, 1, 2000000000, most}};
  for (const auto& [start, stop, takenStart, takenStop] : bests) {
    tool.setMethodBest(start, stop, 100);
    EXPECT_TRUE(tool.m_startLoops == takenStart && tool.m_stopLoops == takenStop) << start << " " << stop;
  }
  const int shifts[][3] = {{2, 0, 512}, {-3, 8, 16384}, {0, 0, 0}, {-20, 1048576, most}, {99, 0, 0}};
  for (const auto& [factor, start, stop] : shifts) {
    tool.setLoopFactor(factor);
    EXPECT_TRUE(tool.m_autoStartLoops == start && tool.m_autoStopLoops == stop) << factor;
  }
}

TEST(Tool, WritesAccuracyInPerCentAndGreatClockCountsWithZerosAtTheEnd) {
  EXPECT_EQ(zebTool::getAccuracyStr(0.0004), "0.04%");
  EXPECT_EQ(zebTool::getAccuracyStr(0.002), "0.2%");
  EXPECT_EQ(clockStr(2147483647), "2147483647");
  EXPECT_EQ(clockStr(123456789012345LL), "123456789000000");
}

TEST(Tool, RunsManualAndStatisticOnce) {
  ScriptedFunction f({100});
  zebTool tool;
  const Capture c(15);
  tool.setMethodLoop(25);
  EXPECT_EQ(tool.timing(ScriptedFunction::loop, nullptr, nullptr, nullptr), resOk);
  tool.setMethodStat(12, 10000000000);
  EXPECT_EQ(tool.timing(nullptr, ScriptedFunction::stat, nullptr, nullptr), resOk);
  EXPECT_EQ(f.m_wantedClocks, 10000000000);
  EXPECT_EQ(f.m_runs, "25 12");
  EXPECT_TRUE(contains(c.text(), "        numCalls   = 12\n        funcClocks = 100\n"));
}

TEST(Tool, ReplacesForGoodAMethodThatTheFunctionDoesNotAllow) {
  ScriptedFunction f({100});
  zebTool tool;
  const Capture c(1);
  tool.setMethodLoop(9);
  EXPECT_EQ(tool.timing(nullptr, ScriptedFunction::stat, nullptr, nullptr), resOk);
  EXPECT_EQ(tool.m_comment, "nCalls=9");
  EXPECT_EQ(f.m_wantedClocks, 0);
  EXPECT_EQ(tool.timing(ScriptedFunction::loop, nullptr, nullptr, nullptr), resOk);
  EXPECT_EQ(tool.m_comment, "nLps=9");
  EXPECT_TRUE(contains(c.text(), " Statistic timing will be run instead.\n"));
  EXPECT_TRUE(contains(c.text(), " Manual loop timing will be run instead.\n"));
}

TEST(Tool, RefusesWhatItCannotMeasureAndTakesTheOldForm) {
  zebTool tool;
  const Capture c(1);
  EXPECT_EQ(tool.timing(nullptr, nullptr, nullptr, [] { return 0; }), resError);
  EXPECT_EQ(tool.timing(nullptr, ScriptedFunction::stat, nullptr, nullptr), resError);
  EXPECT_TRUE(contains(c.text(), "Internal test problem: The test cannot execute standard timing.\n"));
  EXPECT_EQ(tool.timing([](zebTool& t, int loops) { return t.m_numClocks = 50 * loops, resLibWarning; }),
            resLibWarning);
  EXPECT_EQ(tool.m_funcTicks, 50) << "of a function of the old form";
}

}  // namespace
