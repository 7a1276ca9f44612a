// One run of a test: the order of its steps, the folding of results, what a crash leaves behind.
#include <gtest/gtest.h>

#include <csignal>
#include <new>

#include "faketest.h"
#include "zeb87.h"
#include "zebexception.h"
#include "zebiterator.h"
#include "zebsession.h"
#include "zebssx.h"
#include "zebticker.h"
#include "zebtrace.h"

namespace {

// The frequency estimate isn't what these tests are about.
class TestRun : public ::testing::Test {
 protected:
  void SetUp() override { zebCpuTicker::m_freqMHz = 1000; }
  FakeTest test;
};

constexpr const char* s_allSteps = "begin canStart parms regInfo init const time output flush flushStart end";
int s_passes = 0;

}  // namespace

TEST_F(TestRun, TakesTheStepsThatAreStillPossible) {
  const struct {
    bool start, ready, nameExit, cache;
    zebResult result;
    const char *steps, *told;
  } cases[] = {
      {true, true, false, false, resOk, s_allSteps, ""},
      {false, true, false, false, resDataError, "begin canStart flushStart end", "-- Can't start timing\n"},
      {true, false, false, false, resDataError, "begin canStart parms regInfo init flush flushStart end",
       "-- Error while initialization of function data\n"},
      {true, true, true, false, resOk, "begin canStart parms flushStart end", ""},
      {true, true, false, true, resNotRun, "begin canStart flushStart end",
       "-- Can't run In-Outof-Cache timing: no program support for function fake\n"},
  };
  for (const auto& c : cases) {
    Capture console(outErr);
    FakeTest fake;
    fake.m_start = c.start;
    fake.m_ready = c.ready;
    zebSession::m_nameExit = c.nameExit;
    zebTest::m_cache = c.cache;
    EXPECT_EQ(fake.run(), c.result);
    EXPECT_EQ(fake.m_calls, c.steps);
    EXPECT_TRUE(contains(console.text(), c.told)) << c.told;
    zebSession::m_nameExit = zebTest::m_cache = false;
  }
}

TEST_F(TestRun, EndsTheLoopAtAnErrorAndCountsAWarningOnlyWhereWarningsAreShown) {
  const struct {
    int level;
    zebResult timing, result;
    int passes;
    const char* told;
  } cases[] = {
      {outErr, resAccuracyWarning, resOk, 2, ""},
      {outWarn, resAccuracyWarning, resAccuracyWarning, 2, "-- wrong measure accuracy on test parameters:\n"},
      {outErr, resLibError, resLibError, 1, " on test parameters:\n"},
      {outErr, resNotRun, resError, 1, "-- Internal test problem: runTiming() function returns undefined"},
  };
  for (const auto& c : cases) {
    Capture console(c.level);
    zebIterator<int> size(0, "size", ""), empty(0, "empty", "");
    for (int v : {1, 2}) size.add(v);
    FakeTest fake;
    fake.m_startParms.push_back(&size);
    fake.m_scripted = true;
    fake.m_timing = c.timing;
    const int lines = g_cstrm.m_lineCount;
    EXPECT_EQ(fake.run(), c.result);
    EXPECT_EQ(fake.m_calls == s_allSteps, c.passes == 1) << fake.m_calls.c_str();
    EXPECT_EQ(g_cstrm.m_lineCount - lines, c.passes == 1 ? 0 : 2);
    EXPECT_TRUE(contains(console.text(), c.told)) << console.text().c_str();
    EXPECT_EQ(contains(console.text(), "-- performance:\n"), c.result == resAccuracyWarning);
    fake.m_startParms.push_back(&empty);
    EXPECT_EQ(fake.run(), resDataError) << "a list without values";
  }
}

TEST_F(TestRun, SurvivesCrashesAndExceptionsAndTellsWhere) {
  Capture console(outWarn);
  const struct {
    void (*action)();
    const char* told;
  } cases[] = {{[] { raise(SIGSEGV); }, "Signal: Illegal storage access."},
               {[] { raise(SIGSEGV); }, "Signal: Illegal storage access."},
               {[] {
                  EXPECT_EQ(g_ostrm.outLevel(), outPerf) << "warnings tell of the measurement, too";
                  throw zebException(zebString("bad value"));
                },
                "Exception: bad value"},
               {[] { throw std::bad_alloc(); }, "Exception: std::bad_alloc"}};
  for (const auto& c : cases) {
    FakeTest crash;
    crash.m_action = c.action;
    EXPECT_EQ(crash.run(), resException);
    EXPECT_EQ(crash.m_calls, "begin canStart parms regInfo init const time end");
    EXPECT_TRUE(contains(console.text(), zebString("--QOR. ") + c.told + " in runTiming\n")) << c.told;
    EXPECT_EQ(g_ostrm.outLevel(), outWarn);
  }
  EXPECT_EQ(test.run(), resOk);
  g_trace.clear();
}

TEST_F(TestRun, MarksEachUnitThatAnyCombinationLeftDisturbed) {
  Capture console(outWarn);
  zebIterator<int> pass(0, "pass", "");
  for (int v : {1, 2}) pass.add(v);
  test.m_startParms.push_back(&pass);
  s_passes = 0;
  test.m_scripted = true;
  test.m_action = [] {
    volatile float narrow = 1e38f;
    volatile long double wide = 1e300L;
    g_ctrl87.start();
    g_ssx.start();
    if (s_passes++ == 0) {
      narrow = static_cast<float>(wide);  // overflows in the one unit
    } else {
      narrow = narrow * narrow;  // and in the other
    }
    g_ctrl87.stop();
    g_ssx.stop();
  };
  EXPECT_EQ(test.run(), resCtrlStatus);
  EXPECT_EQ(s_passes, 2);
  EXPECT_TRUE(test.m_bad87);
  EXPECT_TRUE(test.m_badSSX);
  EXPECT_TRUE(contains(console.text(), "-- modified control status on test parameters:\n"));
}
