#include "zebpriority.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

bool runsAt(int nice, int policy) {
  return getpriority(PRIO_PROCESS, 0) == nice && sched_getscheduler(0) == policy;
}

bool changesUntilTheReset() {
  setpriority(PRIO_PROCESS, 0, 0);
  zebSetPriority(1);
  const bool high = runsAt(-20, SCHED_RR);
  zebResetPriority();
  const bool normal = runsAt(0, SCHED_OTHER);
  setpriority(PRIO_PROCESS, 0, 7);
  zebResetPriority();
  return high && normal && runsAt(7, SCHED_OTHER);
}

// In a process of its own, since a changed priority can't always be taken back.
TEST(PriorityDeathTest, ChangesUntilTheReset) {
  const sched_param high{1}, old{};
  if (getuid() != 0 || sched_setscheduler(0, SCHED_RR, &high) != 0) GTEST_SKIP() << "not allowed here";
  sched_setscheduler(0, SCHED_OTHER, &old);
  EXPECT_EXIT(_exit(changesUntilTheReset() ? 0 : 1), testing::ExitedWithCode(0), "");
}

}  // namespace
