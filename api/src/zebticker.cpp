#include "zebticker.h"

#include <cstdlib>
#include <ctime>

#include "zebcpuid.h"
#include "zebostimer.h"
#include "zebpriority.h"

namespace {

const int typical_mhz[] = {60,   66,   75,   90,   100,  120,  133,  150,  166,  185,  200,  220,  240,
                           266,  300,  333,  400,  450,  500,  530,  550,  600,  800,  1000, 1400, 1700,
                           1800, 1900, 2000, 2200, 2260, 2400, 2500, 2530, 2600, 2660, 2800, 3060};

// The system's clock may advance in whole seconds only, so the stretch has to be long.
void waitTwoSeconds() {
  const time_t begin = time(nullptr);
  while (difftime(time(nullptr), begin) <= 2.0) continue;
}

}  // namespace

int zebCpuTicker::m_freqMHz = 0;

int zebCpuTicker::getFreq() {
  if (m_freqMHz == 0) m_freqMHz = estimateCpuFreqMHz();
  return m_freqMHz;
}

int estimateCpuFreqMHz() {
  if (!qor_has_rdtsc()) return 0;
  OSTimer timer;
  zebSetPriority(1);
  timer.start();
  const long long begin = qor_get_cpu_counter();
  waitTwoSeconds();
  const long long end = qor_get_cpu_counter();
  timer.stop();
  zebResetPriority();
  const float clocks = static_cast<float>((end - begin) * zebCpuTicker::getClockFactor());
  const float usec = timer.getUSec();
  // A clock that stood still tells nothing, and dividing by its zero would raise a signal.
  return usec > 0 ? nearestTypicalMHz(static_cast<int>(clocks / usec + 0.5)) : 0;
}

int nearestTypicalMHz(int mhz) {
  int difference = 1000;
  int nearest = typical_mhz[0];
  for (int typical : typical_mhz) {
    if (abs(mhz - typical) >= difference) continue;
    difference = abs(mhz - typical);
    nearest = typical;
  }
  return difference < 0.03 * mhz ? nearest : mhz;
}
