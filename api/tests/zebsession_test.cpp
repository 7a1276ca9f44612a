// One run of a session: the order of its steps, what ends it early, what it leaves behind.
#include "zebsession.h"

#include <gtest/gtest.h>

#include "console.h"
#include "faketest.h"
#include "keyrun.h"
#include "zebdefault.h"
#include "zebticker.h"

namespace {

zebString s_steps;

// The step and the output level under which it is taken.
void note(const char* step) {
  s_steps << step << static_cast<int>(g_ostrm.outLevel()) << " ";
}

class NotingTest : public FakeTest {
 public:
  void beginTest() override {
    note("test");
    FakeTest::beginTest();
  }
};

class NotingSession : public zebSession {
 public:
  bool startSession() override {
    note("start");
    return m_start;
  }
  void listTests(int) override { note((*pTestList->begin())->m_name.c_str()); }
  void outputHeader() override { listTests(0); }
  void readCommonData() override { note(!m_batch && m_askMode ? "asking" : "silent"); }
  void putTableTitle() override { note("title"); }
  void outputFooter() override { note("footer"); }
  void outputSignal() override { note("signal"); }

  bool m_start = true;
};

}  // namespace

TEST(SessionRun, TakesItsStepsInOrder) {
  Console console("");
  KeyRun keys;
  zebCpuTicker::m_freqMHz = 1000;
  qorEnvironment = [] { note("library"); };
  s_parmFunc = [] { note("parms"); };
  pTestList = nullptr;
  g_pParmList = nullptr;
  const struct {
    const char* keys;
    bool start;
    const char* steps;
  } cases[] = {
      {"-ffake -LW", true, "library7 __zebBrelkCpu7 parms7 test1 asking7 title3 test3 footer3 signal3 "},
      {"-s- -fnone", true, "library7 fake7 parms7 asking7 title1 footer1 signal1 "},
      {"-ffake", false, "signal7 "},
      {"-e", true, "__zebBrelkCpu7 signal7 "},
      {"-e -s-", true, "fake7 signal7 "},
  };
  for (const auto& c : cases) {
    NotingSession session;
    session.m_start = c.start;
    zebDefault<int> parm(1, "parm", "");
    zebRegParm(parm);
    zebRegTest(new NotingTest);
    g_ostrm.setOutLevel(outErr);
    s_steps = "";
    EXPECT_EQ(keys.withArguments(c.keys, [&](int n, char** words) { return session.run(n, words); }), 0);
    g_ostrm.erase(++g_ostrm.begin());  // the console, which isn't ours to delete
    EXPECT_EQ(s_steps, zebString("library1 start7 ") + c.steps);
    EXPECT_EQ(g_pParmList->empty(), contains(c.steps, "parms")) << "no selected test uses the parameter";
    g_pParmList->clear();
  }
  g_pParmList = nullptr;
  s_parmFunc = nullptr;
}
