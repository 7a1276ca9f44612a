#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "disturb.h"
#include "scriptedfunction.h"
#include "zeb87.h"
#include "zebcounter.h"
#include "zebctrlstatus.h"
#include "zebmemory.h"
#include "zebobject.h"
#include "zebtool.h"

namespace {

int s_calls;
int s_inits;
int s_failAt;  // the number of the call that returns an error; 0 for none

int call() {
  return ++s_calls == s_failAt ? -5 : 0;
}
int slowCall() {
  for (const long long begin = qor_get_cpu_counter(); qor_get_cpu_counter() - begin < 20000;) continue;
  return call();
}
struct CallTiming : testing::Test {
  CallTiming() { s_calls = s_inits = s_failAt = 0; }
  ~CallTiming() override { zebTool::m_pCheckStatus = nullptr; }

  zebTool m_tool;
};

TEST_F(CallTiming, CallsOnceUncountedAndThenSoManyTimesOrUntilTheClocksAreSpent) {
  m_tool.setMethodLoop(10);
  m_tool.m_initEach = true;
  EXPECT_EQ(m_tool.timing(nullptr, nullptr, slowCall, [] { return ++s_inits, 0; }), resOk);
  EXPECT_EQ(s_calls, 1 + 10);
  EXPECT_EQ(s_inits, 1 + 1 + 10);
  EXPECT_GE(m_tool.m_funcTicks, 20000);
  int calls = 1;
  long long clocks = 100000;
  m_tool.timCall_Stat(&calls, &clocks, false);
  EXPECT_GE(clocks, 100000);
  EXPECT_LE(calls, 5);
}

TEST_F(CallTiming, EndsAtAnErrorThatIsNotOfTheWarmUpCallUnlessStatusesAreJudged) {
  const struct {
    bool judged;
    int failAt;
    int looped, single;  // calls of 10 loops, and of 3 single ones, each followed by an uncounted one
    zebResult result;
  } cases[] = {{false, 1, 11, 7, resOk},
               {false, 5, 5, 5, resOk},
               {true, 1, 1, 1, resLibError},
               {true, 3, 3, 3, resLibError}};
  m_tool.m_funcCall = call;
  for (const auto& c : cases) {
    zebTool::m_pCheckStatus = nullptr;
    if (c.judged) zebTool::m_pCheckStatus = [](int status) { return status < 0 ? resLibError : resOk; };
    s_failAt = c.failAt;
    s_calls = 0;
    int counted = 3;
    long long clocks = 0;
    EXPECT_EQ(m_tool.timCall_Loop(10, &clocks, false), c.result);
    EXPECT_EQ(s_calls, c.looped);
    s_calls = 0;
    clocks = 0;
    EXPECT_EQ(m_tool.timCall_Stat(&counted, &clocks, false), c.result);
    EXPECT_EQ(s_calls, c.single);
  }
}

int s_niceness;

int disturb() {
  overflow87();
  s_niceness = getpriority(PRIO_PROCESS, 0);
  return 0;
}

TEST_F(CallTiming, WatchesTheFunctionAloneAndRunsItAtThePriorityAskedFor) {
  for (int method : {zebTool::methodManual, zebTool::methodStatistic, zebTool::methodAuto}) {
    m_tool.m_method = method;
    zebInitCtrlStatus();
    overflow87();
    m_tool.timing(nullptr, nullptr, call, nullptr);
    EXPECT_FALSE(g_ctrl87.badStatus()) << method;
    zebTool::m_priority = 3;
    m_tool.timing(nullptr, nullptr, disturb, nullptr);
    zebTool::m_priority = 0;
    EXPECT_TRUE(g_ctrl87.badStatus()) << method;
    EXPECT_EQ(s_niceness, getuid() == 0 ? 10 : getpriority(PRIO_PROCESS, 0)) << method;
  }
  zebInitCtrlStatus();
}

struct Data : zebObject {
  bool setReservedCopy() override { return ++resets; }
  int resets = 0;
};

TEST_F(CallTiming, RestoresTheDataBeforeEachTimedCallWhenAskedAndPossible) {
  Data data;
  void* const block = zebMalloc(16, 0, 0, static_cast<zebObject*>(&data));
  m_tool.m_setUse = true;
  for (bool manual : {true, false}) {
    data.resets = 0;
    manual ? m_tool.setMethodLoop(10) : m_tool.setMethodStat(10, 0);
    m_tool.timing(nullptr, nullptr, call, nullptr);
    EXPECT_EQ(data.resets, 10);
    EXPECT_EQ(m_tool.timing(ScriptedFunction::loop, ScriptedFunction::stat, nullptr, nullptr), resNotRun);
  }
  zebFree(block);
}

}  // namespace
