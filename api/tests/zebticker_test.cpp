#include "zebticker.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>

#include "zebostimer.h"

TEST(ProcessorFrequency, IsTakenForTheUsualOneWithinThreePerCent) {
  const int cases[][2] = {{2405, 2400}, {2700, 2660}, {3060, 3060}, {60, 60}, {3300, 3300},
                          {2900, 2900}, {5100, 5100}, {20, 20},     {0, 0},   {2230, 2200}};
  for (auto& [measured, taken] : cases) EXPECT_EQ(nearestTypicalMHz(measured), taken);
}

TEST(SystemTimer, CountsMicrosecondsWithoutTheDevice) {
  OSTimer timer;
  timer.m_stop = OSTimer::getOSFreq() * 5 / 2;
  EXPECT_FLOAT_EQ(timer.getUSec(), 2500000.f);
}

TEST(RealTimeClockDeathTest, MayNotRefuseTheRate) {
  if (getuid() != 0) GTEST_SKIP() << "only root opens the device";
  EXPECT_EXIT(LinuxRTClock("/dev/null"), testing::ExitedWithCode(ENOTTY),
              "\n-- zebCpuTicker. ioctl: Setting of IRQ rate fails\n: Inappropriate ioctl for device");
}
