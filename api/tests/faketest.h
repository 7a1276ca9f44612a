// faketest.h: a test that records the calls of its operations and measures scripted clocks.
#ifndef FAKETEST_H
#define FAKETEST_H

#include "capture.h"
#include "zebtest.h"
#include "zebticker.h"

inline zebResult fakeLoop(int loops, long long* clocks) {
  *clocks = 1000LL * loops;
  return resOk;
}

class FakeTest : public zebTest {
 public:
  explicit FakeTest(const zebString& name = "fake", const zebString& info = "FakeClass//FAKE_REG")
      : zebTest(fakeLoop, nullptr, name, "dir/source", info) {
    zebCpuTicker::m_freqMHz = 1000;  // or the first line would wait for an estimate
  }

  void beginTest() override {
    m_calls += "begin ";
    zebTest::beginTest();
  }
  bool canStart() override {
    m_calls += "canStart ";
    for (zebParameter* parm : m_startParms) m_parms.push_back(parm);
    return m_start;
  }
  void parmsFromIstrm() override { m_calls += "parms "; }
  void outputRegInfo() override { m_calls += "regInfo "; }
  bool initData() override {
    m_calls += "init ";
    return m_ready;
  }
  void outputConst() override { m_calls += "const "; }
  zebResult runTiming() override {
    m_calls += "time ";
    if (m_action) m_action();
    return m_scripted ? m_timing : zebTest::runTiming();
  }
  void outputResult(zebResult r) override {
    m_calls += "output ";
    zebTest::outputResult(r);
  }
  void flushData() override { m_calls += "flush "; }
  void flushStart() override { m_calls += "flushStart "; }
  void endTest() override { m_calls += "end"; }

  zebString m_calls;
  zebList<zebParameter*> m_startParms;
  bool m_start = true, m_ready = true, m_scripted = false;
  zebResult m_timing = resOk;
  void (*m_action)() = nullptr;
};

#endif
