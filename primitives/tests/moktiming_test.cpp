#define MOK_SOURCE "primitives/tests/moktiming_test"
#include <gtest/gtest.h>

#include "capture.h"
#include "mokregister.h"
#include "zebhooks.h"
#include "zebtestlist.h"

namespace {

// What the library function below is to answer, call by call; 0 behind the end.
struct Script {
  int statuses[8] = {};
  int calls = 0;
  int restores = 0;
  bool unrestored = false;  // a call found data that were not restored
} s_script;

int s_argument = 0;
const long long s_restoreClocks = 1000000;

}  // namespace

static QorStatus fakeFunction(int argument) {
  const int call = s_script.calls++;
  return call < 8 ? s_script.statuses[call] + argument : 0;
}

static QorStatus fakeInplace(int argument) {
  s_script.unrestored |= s_script.restores <= s_script.calls;
  return fakeFunction(argument);
}

static void restoreFake() {
  ++s_script.restores;
  for (const long long start = qor_get_cpu_counter(); qor_get_cpu_counter() - start < s_restoreClocks;)
    continue;
}

MOK_REG(mokTest, fakeFunction, (s_argument))
MOK_REG_I(mokTest, fakeInplace, (s_argument), restoreFake())

namespace {

// Keeps g_ostrm from the console.
struct Timing : testing::Test {
  Timing() {
    s_script = Script();
    qor_GetStatusString = [](QorStatus) { return "Error"; };
  }

  Capture m_output{outPerf};
  int m_calls = 0;
  long long m_clocks = 0;
};

TEST_F(Timing, LoopsReportTheLastStatusOnlyAndSingleCallsTheLatestWarningOrTheErrorThatEndsThem) {
  const struct {
    Script script;  // of one uncounted call and four counted ones
    zebResult loop, stat;
    int counted;
  } cases[] = {{{}, resOk, resOk, 4},
               {{{0, 2, 3, 0, 0}}, resOk, resLibWarning, 4},
               {{{0, 0, 0, 0, 3}}, resLibWarning, resLibWarning, 4},
               {{{-5}}, resOk, resLibError, -1},
               {{{0, 0, 3, -5}}, resOk, resLibError, 2},
               {{{0, 0, 0, 0, -5}}, resLibError, resLibError, 3}};
  for (const auto& c : cases) {
    s_script = c.script;
    EXPECT_EQ(tim_fakeFunction_loop(4, &m_clocks), c.loop);
    EXPECT_EQ(s_script.calls, 1 + 4);
    EXPECT_GT(m_clocks, 0);
    s_script = c.script;
    m_calls = 4;
    m_clocks = 0;
    EXPECT_EQ(tim_fakeFunction_stat(&m_calls, &m_clocks), c.stat);
    EXPECT_EQ(m_calls, c.counted);
    EXPECT_EQ(s_script.calls, c.counted + (c.stat == resLibError ? 2 : 1));
  }
  EXPECT_EQ(m_output.text().find("--QOR WARNING. status = 3 in fakeFunction: Error\n"), 0);
  m_clocks = 200000;
  tim_fakeFunction_stat(&m_calls, &m_clocks);
  EXPECT_GE(m_clocks, 200000);
}

TEST_F(Timing, RestoresBeforeEachCallInsideTheLoopAndOutsideTheSingleCalls) {
  const int calls = 20;
  EXPECT_EQ(tim_fakeInplace_loop(calls, &m_clocks), resOk);
  EXPECT_GE(m_clocks, calls * s_restoreClocks);
  m_calls = calls;
  m_clocks = 0;
  EXPECT_EQ(tim_fakeInplace_stat(&m_calls, &m_clocks), resOk);
  EXPECT_LT(m_clocks, calls * s_restoreClocks / 2);
  EXPECT_EQ(s_script.calls, 2 * (calls + 1));
  EXPECT_EQ(s_script.restores, s_script.calls);
  EXPECT_FALSE(s_script.unrestored);
}

TEST_F(Timing, IsRegisteredByOneLine) {
  zebString found;
  for (zebTest* test : *pTestList) {
    if (test->m_fileName != "moktiming_test") continue;
    found << test->m_name << " " << test->m_info.m_testName << " " << test->m_info.m_macro << " ";
    const bool plain = test->m_name == "fakeFunction";
    EXPECT_EQ(test->m_funcStat, plain ? tim_fakeFunction_stat : tim_fakeInplace_stat);
    EXPECT_EQ(test->m_funcInit, plain ? nullptr : tinit_fakeInplace);
    s_argument = test->m_funcCall() + 1;
    EXPECT_EQ(test->m_funcCall(), s_argument) << "arguments are read anew";
    s_argument = 0;
  }
  EXPECT_EQ(found, "fakeFunction mokTest MOK_REG fakeInplace mokTest MOK_REG_I ");
}

}  // namespace
