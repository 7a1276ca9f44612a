// The settings of the timing engine, and the texts of its figures.
#include <climits>
#include <cstdio>

#include "zebostream.h"
#include "zebticker.h"
#include "zebtool.h"
#include "zebtoolloops.h"

namespace {

const int autoStart = 1;
const int autoStop = 2048;

int atLeastOne(int n) {
  return n < 1 ? 1 : n;
}

// n by 2 to the power -f. Shifting by more than 31 places would be undefined, and makes no difference.
int shifted(int n, int f) {
  if (f > 0) return f > 31 ? 0 : static_cast<int>(static_cast<unsigned int>(n) >> f);
  return loopCount(static_cast<long long>(n) << (f < -31 ? 31 : -f));
}

}  // namespace

void zebTool::setMethodAuto() {
  m_method = methodAuto;
}

void zebTool::setMethodLoop(int loops) {
  m_method = methodManual;
  m_manualLoops = atLeastOne(loops);
}

void zebTool::setMethodStat(int calls, long long clocks) {
  m_method = methodStatistic;
  m_statCalls = calls;
  m_statClocks = clocks;
}

void zebTool::setMethodBest(int start, int stop, long long clocks) {
  m_method = methodIterative;
  m_startLoops = atLeastOne(start);
  const int leastStop = loopCount(8LL * start);
  m_stopLoops = stop > leastStop ? stop : leastStop;
  m_minClocks = clocks;
}

bool zebTool::getMethodAuto() const {
  return m_method == methodAuto;
}

bool zebTool::getMethodLoop(int& loops) const {
  if (m_method != methodManual) return false;
  loops = m_manualLoops;
  return true;
}

bool zebTool::getMethodStat(int& calls, long long& clocks) const {
  if (m_method != methodStatistic) return false;
  calls = m_statCalls;
  clocks = m_statClocks;
  return true;
}

bool zebTool::getMethodBest(int& start, int& stop, long long& clocks) const {
  if (m_method != methodIterative) return false;
  start = m_startLoops;
  stop = m_stopLoops;
  clocks = m_minClocks;
  return true;
}

void zebTool::getAutoParameters(int& start, int& stop, long long& clocks) {
  start = autoStart;
  stop = autoStop;
  clocks = 10 * zebCpuTicker::getClockFactor();
}

void zebTool::setLoopFactor(int f) {
  m_autoStartLoops = f == 0 ? 0 : shifted(autoStart, f);
  m_autoStopLoops = f == 0 ? 0 : shifted(autoStop, f);
}

zebString zebTool::getAccuracyStr(double accuracy) {
  const double percent = 100 * accuracy;
  char text[64];
  snprintf(text, sizeof(text), percent < 0.1 ? "%.2f%c" : "%.1f%c", percent, '%');
  return text;
}

zebString clockStr(long long clocks) {
  zebString zeros;
  for (; clocks > INT_MAX; clocks /= 10) zeros += "0";
  zebString text;
  return text << clocks << zeros;
}

void writeInfo(zebString& text) {
  if (g_ostrm.beginMessage(msgInfo)) {
    g_ostrm << text;
    g_ostrm.endMessage();
  }
  text = "";
}
