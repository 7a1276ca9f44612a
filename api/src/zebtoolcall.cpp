// The timing of a single-call function. Between two readings of the counter stands nothing but what is
// measured: no allocation, no text, no output.
#include "zebcounter.h"
#include "zebmemory.h"
#include "zebticker.h"
#include "zebtool.h"

namespace {

template <class Stretch>
long long ticksOf(Stretch stretch) {
  const long long start = qor_get_cpu_counter();
  stretch();
  return qor_get_cpu_counter() - start;
}

// Ticks of up to n passes; a negative status ends them.
template <class Pass>
long long ticksOfLoop(int n, int& status, Pass pass) {
  return ticksOf([&] {
    for (int i = 0; i < n && status >= 0; ++i) status = pass();
  });
}

zebResult judged(int status) {
  return zebTool::m_pCheckStatus ? zebTool::m_pCheckStatus(status) : resOk;
}

}  // namespace

zebResult zebTool::timCall_Loop(int loops, long long* clocks, bool resetData) {
  const TestFuncCall init = m_funcInit;
  const TestFuncCall call = m_funcCall;
  if (init) init();
  int status = call();  // not counted: the first call pays for cold caches
  if (status < 0 && m_pCheckStatus) return judged(status);
  status = 0;
  long long ticks;
  if (init || resetData) {
    ticks = ticksOfLoop(loops, status, [=] {
      if (init) init();
      if (resetData) zebResetAllVectors();
      return call();
    });
  } else {
    ticks = ticksOfLoop(loops, status, call);
  }
  *clocks = ticks * zebCpuTicker::getClockFactor();
  return judged(status);
}

zebResult zebTool::timCall_Stat(int* calls, long long* clocks, bool resetData) {
  const TestFuncCall call = m_funcCall;
  if (m_funcInit) m_funcInit();
  int status = call();
  if (status < 0 && m_pCheckStatus) return judged(status);
  status = 0;
  long long sum = 0;
  int i = 0;
  while (i < *calls || sum * zebCpuTicker::getClockFactor() < *clocks) {
    if (m_funcInit) m_funcInit();
    if (resetData) {
      sum += ticksOf([=] { zebResetAllVectors(), call(); });
    } else {
      sum += ticksOf(call);
    }
    status = call();
    if (status < 0) break;
    ++i;
  }
  *calls = i;
  *clocks = sum * zebCpuTicker::getClockFactor();
  return judged(status);
}
