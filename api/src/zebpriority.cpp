#include "zebpriority.h"

#include <sched.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

int _prio;
int _policy;
sched_param _param;
bool _bSavedPrio = false;

void save() {
  _prio = getpriority(PRIO_PROCESS, 0);
  _policy = sched_getscheduler(0);
  sched_getparam(0, &_param);
}

void change(int nice, int policy, int priority) {
  sched_param param{};
  param.sched_priority = priority;
  setpriority(PRIO_PROCESS, 0, nice);
  if (priority != -1) sched_setscheduler(0, policy, &param);
}

}  // namespace

void zebSetPriority(int level) {
  _bSavedPrio = level != 0;
  if (level == 0 || getuid() != 0) return;
  save();
  if (level == 1) change(-20, SCHED_RR, sched_get_priority_max(SCHED_FIFO));
  if (level == 2) change(0, SCHED_OTHER, 0);
  if (level == 3) change(10, SCHED_OTHER, 0);
}

void zebResetPriority() {
  if (!_bSavedPrio) return;
  _bSavedPrio = false;
  if (getuid() != 0) return;
  setpriority(PRIO_PROCESS, 0, _prio);
  sched_setscheduler(0, _policy, &_param);
}
