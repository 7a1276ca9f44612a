#include "zebtool.h"

#include "zeb87.h"
#include "zebfpu.h"
#include "zebostream.h"
#include "zebpriority.h"
#include "zebssx.h"
#include "zebticker.h"
#include "zebtrace.h"

namespace {

TestFuncOld _funcOld = nullptr;
zebTool* _pTool = nullptr;

// Lets a function of the old form pass for a loop function.
zebResult _funcLoop(int loops, long long* clocks) {
  const zebResult r = _funcOld(*_pTool, loops);
  *clocks = _pTool->m_numClocks * zebCpuTicker::getClockFactor();
  return r;
}

void ctrlStart() {
  g_ctrl87.start();
  g_ssx.start();
}

void ctrlStop() {
  g_ctrl87.stop();
  g_ssx.stop();
}

// What the library leaves behind in the units (a rounding, unmasked exceptions, a full register stack) must
// not reach the code that computes figures, nor the data of the next test. Flags of SSE stay.
class UnitsAsFound {
 public:
  ~UnitsAsFound() {
    zeb_init_fpu();
    zeb_set_cw_fpu(m_control87, 0xFFFF);
    zeb_set_ssx(m_ssx, 0xFFC0);
  }

 private:
  unsigned int m_control87 = zeb_get_cw_fpu();
  unsigned int m_ssx = zeb_get_ssx();
};

}  // namespace

zebTool g_tool;
int zebTool::m_priority = 0;
zebResult (*zebTool::m_pCheckStatus)(int status) = nullptr;

void zebTool::reset() {
  m_result = resNotRun;
  m_funcTicks = 0;
  m_numLoops = 0;
  m_numClocks = 0;
  m_accuracy = 1.0;
  m_comment = "";
  m_funcLoop = nullptr;
  m_funcStat = nullptr;
  m_funcCall = m_funcInit = nullptr;
}

zebResult zebTool::timing(TestFuncLoop loop, TestFuncStat stat, TestFuncCall call, TestFuncCall init) {
  reset();
  if (!loop && !stat && !call) {
    g_ostrm << msgErr << " Internal test problem: The test cannot execute standard timing.\n"
            << " No one of funcLoop, funcStat or funcCall is registered in the test.\n"
            << msgEndFlush;
    return resError;
  }
  m_funcLoop = loop;
  m_funcStat = stat;
  m_funcCall = call;
  m_funcInit = init;
  if (m_method == methodManual && !loop && !call) return replaceManual();
  if (m_method == methodStatistic && !stat && !call) return replaceStatistic();
  runMethod();
  return m_result;
}

zebResult zebTool::timing(TestFuncOld old) {
  _funcOld = old;
  _pTool = this;
  return timing(_funcLoop, nullptr, nullptr, nullptr);
}

zebResult zebTool::replaceManual() {
  g_ostrm << msgErr << " ATTENTION! The test cannot execute Manual loop timing.\n"
          << " Statistic timing will be run instead.\n"
          << msgEnd;
  setMethodStat(m_manualLoops, 0);
  return timing(nullptr, m_funcStat, nullptr, m_funcInit);
}

zebResult zebTool::replaceStatistic() {
  g_ostrm << msgErr << " ATTENTION! The test cannot execute Statistic timing.\n"
          << " Manual loop timing will be run instead.\n"
          << msgEnd;
  setMethodLoop(m_statCalls);
  return timing(m_funcLoop, nullptr, nullptr, m_funcInit);
}

void zebTool::runMethod() {
  static const struct {
    const char* name;
    void (zebTool::*run)();
  } s_methods[] = {{"autoTiming", &zebTool::autoLoopTiming},
                   {"customLoopTiming", &zebTool::customLoopTiming},
                   {"statisticTiming", &zebTool::statisticTiming},
                   {"iterativeTiming", &zebTool::iterativeTiming}};
  g_trace.traceIn(s_methods[m_method].name);
  (this->*s_methods[m_method].run)();
  g_trace.traceOut(s_methods[m_method].name);
}

void zebTool::customLoopTiming() {
  zebString info;
  info << "    Manual method: \n"
       << "        numLoops   = " << m_manualLoops << "\n";
  writeInfo(info);
  tracedRun(m_manualLoops, &m_funcTicks);
  m_accuracy = 0;
  m_comment << "nLps=" << m_manualLoops;
  info << "        funcClocks = " << m_funcTicks << "\n"
       << "        result     = " << zebResultString(m_result) << "\n";
  writeInfo(info);
}

void zebTool::statisticTiming() {
  zebString info;
  info << "    Statistical method:\n"
       << "        minCalls   = " << m_statCalls << "\n"
       << "        maxClocks  = " << clockStr(m_statClocks) << "\n";
  writeInfo(info);
  int calls = m_statCalls;
  g_trace.traceIn("runTimFuncStat");
  runTimFuncStat(m_statClocks, &calls, &m_funcTicks);
  g_trace.traceOut("runTimFuncStat");
  m_accuracy = 0;
  m_comment << "nCalls=" << calls;
  info << "        numCalls   = " << calls << "\n"
       << "        funcClocks = " << m_funcTicks << "\n"
       << "        result     = " << zebResultString(m_result) << "\n";
  writeInfo(info);
}

void zebTool::iterativeTiming() {
  bestTiming(m_startLoops, m_stopLoops, m_minClocks);
}

void zebTool::autoLoopTiming() {
  int start = 0;
  int stop = 0;
  long long clocks = 0;
  getAutoParameters(start, stop, clocks);
  if (m_autoStartLoops != 0) start = m_autoStartLoops;
  if (m_autoStopLoops != 0) stop = m_autoStopLoops;
  bestTiming(start, stop, clocks);
}

void zebTool::updateResult(zebResult r) {
  if (r > m_result) m_result = r;
}

void zebTool::tracedRun(int loops, double* clocksPerLoop) {
  g_trace.traceIn("runTimFunc");
  runTimFunc(loops, clocksPerLoop);
  g_trace.traceOut("runTimFunc");
}

// A run that shows no clocks is tried once more.
void zebTool::runTimFunc(int loops, double* clocksPerLoop) {
  for (int attempt = 0; attempt < 2; ++attempt) {
    m_numClocks = 0;
    if (m_setUse && !m_funcCall) {
      m_result = resNotRun;
      return;
    }
    updateResult(m_setUse ? runResetting(loops) : runWatched(loops));
    if (zebIsError(m_result) || m_numClocks > 0) break;
  }
  *clocksPerLoop = static_cast<double>(m_numClocks) / loops;
}

zebResult zebTool::runResetting(int loops) {
  UnitsAsFound units;
  g_trace.traceIn("qorFunctionCalls");
  const zebResult r = timCall_Loop(loops, &m_numClocks, true);
  g_trace.traceOut("qorFunctionCalls");
  return r;
}

zebResult zebTool::runWatched(int loops) {
  if (m_initEach && m_funcInit) {
    g_trace.traceIn("initFunc call");
    m_funcInit();
    g_trace.traceOut("initFunc call");
  }
  UnitsAsFound units;
  ctrlStart();
  g_trace.traceIn("qorFunctionCalls");
  zebSetPriority(m_priority);
  const zebResult r = callLoop(loops);
  zebResetPriority();
  g_trace.traceOut("qorFunctionCalls");
  ctrlStop();
  return r;
}

zebResult zebTool::callLoop(int loops) {
  if (m_funcLoop) return m_funcLoop(loops, &m_numClocks);
  if (m_funcCall) return timCall_Loop(loops, &m_numClocks, false);
  g_ostrm << msgErr << "ZEB internal error: file "
          << "api/src/zebtool"
          << ", line " << __LINE__ << "\n"
          << msgEndFlush;
  return resError;
}

void zebTool::runTimFuncStat(long long minClocks, int* calls, double* clocksPerCall) {
  if (m_setUse && !m_funcCall) {
    m_result = resNotRun;
    return;
  }
  long long clocks = minClocks;
  const zebResult r = m_setUse ? runStatResetting(calls, &clocks) : runStatWatched(calls, &clocks);
  *clocksPerCall = *calls == 0 ? 0 : static_cast<double>(clocks) / *calls;
  updateResult(r);
}

zebResult zebTool::runStatResetting(int* calls, long long* clocks) {
  UnitsAsFound units;
  return timCall_Stat(calls, clocks, true);
}

zebResult zebTool::runStatWatched(int* calls, long long* clocks) {
  UnitsAsFound units;
  ctrlStart();
  zebSetPriority(m_priority);
  g_trace.traceIn("qorFunctionCalls");
  const zebResult r = m_funcStat ? m_funcStat(calls, clocks) : timCall_Stat(calls, clocks, false);
  g_trace.traceOut("qorFunctionCalls");
  zebResetPriority();
  ctrlStop();
  return r;
}
