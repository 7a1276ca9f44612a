#include "zebcorestub.h"

#include "zebcpuid.h"
#include "zebcputype.h"
#include "zebhooks.h"

QorCpuType zeb_qorGetCpuType() {
  QorCpuRec rec;
  return qor_get_cpu_ident(&rec) ? zebDecideCpuType(rec, qor_is_GenuineBrelk()) : 0;
}

int zeb_qorGetNumCoresOnDie() {
  return qor_get_cores_on_die();
}

const char* s_qorGetStatusString(QorStatus status) {
  return status < 0 ? "Error" : status == 0 ? "OK" : "Warning";
}

QorStatus s_qorInit() {
  return zebNoCore;
}

QorStatus s_qorInitCpu(QorCpuType) {
  return zebNoCore;
}

QorStatus s_qorSetNumThreads(int) {
  return zebNoCore;
}
