// The methods Auto and Iterative: loops grow until the figure per call settles.
#include "zebctrlstatus.h"
#include "zebostream.h"
#include "zebticker.h"
#include "zebtool.h"
#include "zebtoolloops.h"

namespace {

// Below this the figure counts as settled without repeats.
const double excellentAccuracy = 0.01;

bool badStatus() {
  bool bad87, badSSX;
  return zebBadCtrlStatus(bad87, badSSX);
}

void reportBadStatus() {
  bool bad87, badSSX;
  if (zebBadCtrlStatus(bad87, badSSX)) zebPrintCtrlStatus(bad87, badSSX);
}

void warn(const char* text) {
  g_ostrm << msgWarn << text << msgEnd;
}

void writeInfoLine(const char* text) {
  zebString info(text);
  writeInfo(info);
}

}  // namespace

double zebTool::computeAccuracy(double a, double b) {
  const double difference = a > b ? a - b : b - a;
  return 2 * difference / (a + b);
}

double zebTool::computeAccuracy(const double* figures, int count) {
  if (count < 1) return 0;
  double sum = 0;
  for (int i = 0; i < count; ++i) sum += figures[i];
  const double mean = sum / count;
  // Figures of no clocks are never accurate, and dividing by their mean could raise a signal.
  if (!(mean > 0)) return 1.0;
  double greatest = 0;
  for (int i = 0; i < count; ++i) {
    const double difference = figures[i] > mean ? figures[i] - mean : mean - figures[i];
    if (difference > greatest) greatest = difference;
  }
  return greatest / mean;
}

double zebTool::computeBest(const double* figures, int count) {
  double best = figures[0];
  for (int i = 1; i < count; ++i) {
    if (figures[i] < best) best = figures[i];
  }
  return best;
}

// One measurement, which must reach the least clocks for its figure to tell anything.
zebResult zebTool::startIterations(int loops, long long minClocks) {
  m_numLoops = loops;
  tracedRun(m_numLoops, &m_funcTicks);
  if (zebIsError(m_result)) return m_result;
  return static_cast<double>(minClocks) <= m_numLoops * m_funcTicks ? resOk : resAccuracyError;
}

// Doubles the loops until two consecutive figures agree.
zebResult zebTool::continueIterations(int loops, int maxLoops) {
  m_numLoops = loops < maxLoops ? loops : maxLoops;
  for (;;) {
    const double previous = m_funcTicks;
    tracedRun(m_numLoops, &m_funcTicks);
    if (!(m_funcTicks > 0)) return resAccuracyError;
    m_accuracy = computeAccuracy(m_funcTicks, previous);
    if (m_avoidBadStatus && badStatus()) {
      m_numLoops /= 2;
      m_funcTicks = previous;
      return resCtrlStatus;
    }
    if (m_wantedAccuracy >= m_accuracy) return resOk;
    if (2LL * m_numLoops > maxLoops) return resAccuracyWarning;
    m_numLoops *= 2;
  }
}

// Repeats a measurement and takes the best; the present figure counts as the first one.
zebResult zebTool::repeatTiming(int loops, int count) {
  double figures[maxRepeats] = {m_funcTicks};
  const int first = m_numLoops == loops ? 1 : 0;
  m_numLoops = loops;
  zebString info;
  for (int i = first; i < count; ++i) {
    tracedRun(m_numLoops, &figures[i]);
    info << "        numLoops   = " << loops << "\n"
         << "        numClocks  = " << m_numClocks << "\n"
         << "        funcClocks = " << figures[i] << "\n";
    writeInfo(info);
  }
  m_accuracy = computeAccuracy(figures, count);
  m_funcTicks = computeBest(figures, count);
  zebResult r = m_accuracy > m_wantedAccuracy ? resAccuracyWarning : resOk;
  if (m_avoidBadStatus && badStatus()) r = resCtrlStatus;
  if (m_avoidBadStatus) reportBadStatus();
  info << "        accuracy   = " << getAccuracyStr(m_accuracy) << "\n"
       << "        bestClocks = " << m_funcTicks << "\n"
       << "        result     = " << zebResultString(r) << "\n";
  writeInfo(info);
  return r;
}

void zebTool::bestTiming(int loops, int maxLoops, long long minClocks) {
  m_avoidBadStatus = m_initEach;
  zebString info;
  info << "    Auto method: start\n"
       << "        minClocks  = " << clockStr(minClocks) << "\n";
  writeInfo(info);
  zebResult prior = priorMeasurement(loops, minClocks);
  while (prior == resAccuracyError && loops <= zebCpuTicker::getClockFactor()) {
    loops = loopCount(10LL * loops);
    maxLoops = loopCount(10LL * maxLoops);
    prior = priorMeasurement(loops, minClocks);
  }
  if (prior > resAccuracyError) {
    m_result = prior;
    writeInfoLine("    Auto method: exit\n");
  } else if (prior == resAccuracyError || !iterate(maxLoops)) {
    giveUp();
  } else {
    finish();
  }
}

zebResult zebTool::priorMeasurement(int loops, long long minClocks) {
  zebString info;
  info << "    Prior Measurement: \n"
       << "        numLoops   = " << loops << "\n";
  writeInfo(info);
  const zebResult r = startIterations(loops, minClocks);
  info << "        numClocks  = " << m_numClocks << "\n"
       << "        funcClocks = " << m_funcTicks << "\n"
       << "        result     = " << zebResultString(r) << "\n";
  writeInfo(info);
  return r;
}

// False if a figure was 0, so that there is nothing to go on with.
bool zebTool::iterate(int maxLoops) {
  while (m_numLoops < maxLoops) {
    const zebResult r = iterationMeasurement(loopCount(4LL * m_numLoops), maxLoops);
    if (r == resAccuracyError) return false;
    if (r == resCtrlStatus) {
      avoidBadStatus();
      return true;
    }
    if (m_accuracy <= excellentAccuracy) return true;
    writeInfoLine("    Simple Measurements: \n");
    if (repeatTiming(m_numLoops, 3) != resAccuracyWarning) return true;
  }
  return true;
}

zebResult zebTool::iterationMeasurement(int loops, int maxLoops) {
  zebString info;
  info << "    Iteration Measurement: \n"
       << "        startLoops = " << loops << "\n"
       << "        maxLoops   = " << maxLoops << "\n";
  writeInfo(info);
  const zebResult r = continueIterations(loops, maxLoops);
  info << "        stopLoops  = " << m_numLoops << "\n"
       << "        stopClocks = " << m_numClocks << "\n"
       << "        accuracy   = " << getAccuracyStr(m_accuracy) << "\n"
       << "        funcClocks = " << m_funcTicks << "\n"
       << "        result     = " << zebResultString(r) << "\n";
  writeInfo(info);
  return r;
}

// A long loop disturbed the floating-point state; at half the loops it may stay clean.
void zebTool::avoidBadStatus() {
  const double limit = 2 * m_wantedAccuracy;
  reportBadStatus();
  warn("-- Attempting to avoid bad control status\n");
  writeInfoLine("    Reduce loops to avoid bad ctrl status.\n    Simple Measurements: \n");
  zebClearCtrlStatus();
  const zebResult r = repeatTiming(m_numLoops, maxRepeats);
  if (r != resCtrlStatus && m_accuracy <= limit) {
    warn("-- Attempt is successful\n");
    return;
  }
  writeInfoLine("    Cannot avoid bad ctrl status\n");
  g_ostrm << msgWarn << "-- Attempt fails: "
          << (r == resCtrlStatus ? "Bad control status repeats.\n" : "Accuracy is unsatisfactory.\n")
          << msgEnd;
}

void zebTool::finish() {
  m_comment << "nLps=" << m_numLoops;
  if (m_accuracy > m_wantedAccuracy) {
    m_comment << " acc=" << getAccuracyStr(m_accuracy);
    if (m_result <= resOk) m_result = resAccuracyWarning;
  }
  writeInfoLine("    Auto method: stop\n");
}

void zebTool::giveUp() {
  m_result = resAccuracyError;
  writeInfoLine("    Auto method: exit\n");
  g_ostrm.flush();
}
