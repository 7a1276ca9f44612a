#include <gtest/gtest.h>

#include "capture.h"
#include "disturb.h"
#include "scriptedfunction.h"
#include "zebctrlstatus.h"
#include "zebtool.h"

namespace {

zebString outcomeOf(zebTool& tool, const std::vector<double>& figures, void (*onRun)(int) = nullptr) {
  ScriptedFunction f(figures);
  f.m_onRun = onRun;
  tool.timing(ScriptedFunction::loop, nullptr, nullptr, [] { return 0; });
  return f.m_runs << " | " << tool.m_funcTicks << " " << tool.m_comment << " "
                  << zebResultString(tool.m_result);
}

// The expected values are worked out by hand from the figures.
TEST(BestTiming, GrowsTheLoopsUntilTheFigureSettles) {
  const int end = 2147483647;
  const struct {
    int start, stop, clocks;  // of the iterative method; 0: Auto
    std::vector<double> figures;
    const char* outcome;  // loops of each run | answer, comment, result
  } courses[] = {
      {0, 0, 0, {100, 103, 102, 104}, "1 4 4 4 | 102 nLps=4 successfully"},
      {0, 0, 0, {200, 150, 120, 110, 109}, "1 4 8 16 32 | 109 nLps=32 successfully"},
      {0, 0, 0, {100, 103, 103, 140, 100}, "1 4 4 4 16 16 16 | 100 nLps=16 successfully"},
      {0, 0, 0, {5}, "1 10 40 | 5 nLps=40 successfully"},
      {0, 0, 0, {0, 100}, "1 1 4 | 100 nLps=4 successfully"},
      {0, 0, 0, {0.5}, "1 1 10 | 0.5  accuracy error"},
      {0, 0, 0, {100, 0}, "1 4 4 | 0  accuracy error"},
      {1, 8, 10, {2000, 1500, 927, 1000, 1073}, "1 4 8 8 8 | 927 nLps=8 acc=7.3% wrong measure accuracy"},
      {1, 30, 10, {400, 300, 200, 100, 130, 100}, "1 4 8 16 16 16 30 | 100 nLps=30 successfully"},
      {2, 16, 1000, {499}, "2 | 499  accuracy error"},
      {1 << 29,
       end,
       9,
       {1, 2},
       "536870912 2147483647 2147483647 2147483647 | 2 nLps=2147483647 successfully"},
  };
  for (const auto& c : courses) {
    zebTool tool;
    if (c.start) tool.setMethodBest(c.start, c.stop, c.clocks);
    EXPECT_EQ(outcomeOf(tool, c.figures), c.outcome);
  }
}

// From a number of loops on the function disturbs the state.
int s_disturbFrom;

void disturb(int loops) {
  if (loops >= s_disturbFrom) overflowSSX();
}

TEST(BadStatus, IsAvoidedByHalfTheLoopsIfAskedFor) {
  const zebString bad = "-- Status    SSX: ?Overflow _Inexact \n";
  const zebString attempt = bad + "-- Attempting to avoid bad control status\n";
  const zebString fails = "-- Attempt fails: ";
  const struct {
    int disturbFrom;
    std::vector<double> figures;
    const char* runs;
    zebString printed;
  } cases[] = {
      {8, {100, 200, 150, 210, 205}, "1 4 8 4 4 4 4 4", attempt + "-- Attempt is successful\n"},
      {2, {100}, "1 4 2 2 2 2 2", attempt + bad + fails + "Bad control status repeats.\n"},
      {8, {100, 200, 150, 300}, "1 4 8 4 4 4 4 4", attempt + fails + "Accuracy is unsatisfactory.\n"},
      {16, {100, 200, 200}, "1 4 8", ""},
  };
  for (const auto& c : cases) {
    zebInitCtrlStatus();
    s_disturbFrom = c.disturbFrom;
    zebTool tool;
    tool.m_initEach = true;
    const Capture screen(3);
    EXPECT_EQ(outcomeOf(tool, c.figures, disturb).find(c.runs), 0);
    EXPECT_EQ(tool.m_funcTicks, c.figures[0] + 100 * (c.figures.size() > 1));
    EXPECT_EQ(screen.text(), c.printed);
  }
  zebInitCtrlStatus();
}

}  // namespace
