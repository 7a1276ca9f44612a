// One run of a test: the order of its steps, the folding of results, what a crash leaves behind.
#include <gtest/gtest.h>

#include <csignal>
#include <new>

#include "disturb.h"
#include "faketest.h"
#include "zeb87.h"
#include "zebexception.h"
#include "zebiterator.h"
#include "zebssx.h"
#include "zebtrace.h"

namespace {

constexpr const char* s_allSteps = "begin canStart parms regInfo init const time output flush flushStart end";

TEST(TestRun, TakesTheStepsThatAreStillPossible) {
  const struct {
    bool start, ready, cache;
    zebResult result;
    const char *steps, *told;
  } cases[] = {
      {true, true, false, resOk, s_allSteps, ""},
      {false, true, false, resDataError, "begin canStart flushStart end", "-- Can't start timing\n"},
      {true, false, false, resDataError, "begin canStart parms regInfo init flush flushStart end",
       "-- Error while initialization of function data\n"},
      {true, true, true, resNotRun, "begin canStart flushStart end",
       "-- Can't run In-Outof-Cache timing: no program support for function fake\n"},
  };
  for (const auto& c : cases) {
    Capture console(outErr);
    FakeTest fake;
    fake.m_start = c.start;
    fake.m_ready = c.ready;
    zebTest::m_cache = c.cache;
    EXPECT_EQ(fake.run(), c.result);
    EXPECT_EQ(fake.m_calls, c.steps);
    EXPECT_TRUE(contains(console.text(), c.told)) << c.told;
  }
  zebTest::m_cache = false;
}

TEST(TestRun, EndsTheLoopAtAnErrorAndCountsAWarningOnlyWhereWarningsAreShown) {
  const struct {
    int level;
    zebResult timing, result;
    const char* told;
  } cases[] = {
      {outErr, resAccuracyWarning, resOk, ""},
      {outWarn, resAccuracyWarning, resAccuracyWarning, "-- wrong measure accuracy on test parameters:\n"},
      {outErr, resLibError, resLibError, " on test parameters:\n"},
      {outErr, resNotRun, resError, "-- Internal test problem: runTiming() function returns undefined"},
  };
  for (const auto& c : cases) {
    Capture console(c.level);
    TableFile table(g_cstrm);
    zebIterator<int> size(0, "size", "");
    for (int v : {1, 2}) size.add(v);
    FakeTest fake;
    fake.m_startParms.push_back(&size);
    fake.m_scripted = true;
    fake.m_timing = c.timing;
    EXPECT_EQ(fake.run(), c.result);
    EXPECT_EQ(fake.m_calls == s_allSteps, zebIsError(c.result)) << fake.m_calls.c_str();
    EXPECT_EQ(table.text().empty(), zebIsError(c.result)) << "an error leaves no line";
    EXPECT_TRUE(contains(console.text(), c.told)) << console.text().c_str();
  }
}

TEST(TestRun, SurvivesCrashesAndExceptionsAndTellsWhere) {
  const struct {
    void (*action)();
    const char* told;
  } cases[] = {{[] { raise(SIGSEGV); }, "Signal: Illegal storage access."},
               {[] {
                  EXPECT_EQ(g_ostrm.outLevel(), outPerf) << "warnings tell of the measurement, too";
                  throw zebException(zebString("bad value"));
                },
                "Exception: bad value"},
               {[] { throw std::bad_alloc(); }, "Exception: std::bad_alloc"}};
  for (const auto& c : cases) {
    Capture console(outWarn);
    FakeTest crash;
    crash.m_action = c.action;
    EXPECT_EQ(crash.run(), resException);
    EXPECT_EQ(crash.m_calls, "begin canStart parms regInfo init const time end");
    EXPECT_TRUE(contains(console.text(), zebString("--QOR. ") + c.told + " in runTiming\n")) << c.told;
    EXPECT_EQ(g_ostrm.outLevel(), outWarn);
  }
  g_trace.clear();
}

TEST(TestRun, MarksEachUnitThatAnyCombinationLeftDisturbed) {
  Capture console(outWarn);
  zebIterator<int> pass(0, "pass", "");
  for (int v : {1, 2}) pass.add(v);
  FakeTest fake;
  fake.m_startParms.push_back(&pass);
  fake.m_scripted = true;
  static int s_passes = 0;
  fake.m_action = [] {
    s_passes++ == 0 ? overflow87() : overflowSSX();
    g_ctrl87.stop();
    g_ssx.stop();
  };
  EXPECT_EQ(fake.run(), resCtrlStatus);
  EXPECT_TRUE(fake.m_bad87 && fake.m_badSSX);
}

}  // namespace
