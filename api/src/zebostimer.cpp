#include "zebostimer.h"

#include <fcntl.h>
#include <linux/rtc.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

[[noreturn]] void fail(const char* text) {
  const int error = errno;
  perror(text);
  exit(error);
}

}  // namespace

LinuxRTClock g_rtc;

LinuxRTClock::LinuxRTClock(const char* device) : fd(-1), enabled(false) {
  if (getuid() == 0) fd = open(device, O_RDONLY);
  if (fd == -1) return;
  if (ioctl(fd, RTC_IRQP_SET, static_cast<unsigned long>(INT_PER_SEC)) == -1) {
    fail("\n-- zebCpuTicker. ioctl: Setting of IRQ rate fails\n");
  }
  if (ioctl(fd, RTC_PIE_ON, 0) == -1) {
    fail("\n-- zebCpuTicker. ioctl: Enabling of periodic interrupts fails\n");
  }
  enabled = true;
}

LinuxRTClock::~LinuxRTClock() {
  if (fd == -1) return;
  enabled = false;
  if (ioctl(fd, RTC_PIE_OFF, 0) == -1) {
    fail("\n-- zebCpuTicker. ioctl: Disabling of periodic interrupts fails\n");
  }
  close(fd);
}

void OSTimer::GetCounter(long long* reading) {
  *reading = 0;
  if (g_rtc.fd == -1) {
    *reading = clock();
  } else if (g_rtc.enabled) {
    unsigned int data = 0;
    if (read(g_rtc.fd, &data, sizeof(data)) == -1) fail("\n-- OSTimer. read: Reading of TRC data fails\n");
    *reading = data >> 8;  // the low byte holds flags
  }
}

int OSTimer::getOSFreq() {
  return g_rtc.fd == -1 ? static_cast<int>(CLOCKS_PER_SEC) : LinuxRTClock::INT_PER_SEC;
}

float OSTimer::getSec() const {
  return static_cast<float>(m_stop - m_start) / static_cast<float>(getOSFreq());
}
