#include "zebhooks.h"

#include "zebcorestub.h"
#include "zebcpucache.h"
#include "zebcputype.h"
#include "zebostream.h"
#include "zebregister.h"

QorCpuType (*qor_GetCpuType)() = nullptr;
int (*qor_GetNumCoresOnDie)() = nullptr;
QorStatus (*qor_GetMaxCacheSizeB)(int* size) = nullptr;
const char* (*qor_GetStatusString)(QorStatus status) = nullptr;
QorStatus (*qor_Init)() = nullptr;
QorStatus (*qor_InitCpu)(QorCpuType cpu) = nullptr;
QorStatus (*qor_SetNumThreads)(int n) = nullptr;

void (*qorEnvironment)() = nullptr;

int s_cpuType = -1;
int s_numThreads = 0;

namespace {

template <class F>
void standBy(F& hook, F own) {
  if (!hook) hook = own;
}

void reportError(QorStatus status) {
  g_ostrm << (status < 0 ? "--QOR ERROR. " : "--QOR WARNING. ") << "status = " << status << ": "
          << qor_GetStatusString(status) << "\n";
}

}  // namespace

void setQorEnvironment() {
  if (qorEnvironment) {
    qorEnvironment();
    g_ostrm << "\nQOR Core library functions have been integrated into ZEB\n";
  }
  standBy(qor_GetCpuType, zeb_qorGetCpuType);
  standBy(qor_GetNumCoresOnDie, zeb_qorGetNumCoresOnDie);
  standBy(qor_GetMaxCacheSizeB, zeb_qorGetMaxCacheSizeB);
  standBy(qor_GetStatusString, s_qorGetStatusString);
  standBy(qor_Init, s_qorInit);
  standBy(qor_InitCpu, s_qorInitCpu);
  standBy(qor_SetNumThreads, s_qorSetNumThreads);
}

void setQorLibInfo() {
  if (!qorVersionList) return;
  for (QorVersionFunc getVersion : *qorVersionList) {
    const QorLibraryVersion* const v = getVersion();
    zebRegLibInfo(zebString(v->name) + ", " + v->version + ", " + v->buildDate);
  }
  g_ostrm << "QOR libraries information has been set into ZEB\n";
}

void zebReportQorStatus(QorStatus status) {
  if (status == qorStsNoErr) {
    g_ostrm << "--status = qorStsNoErr\n";
  } else {
    reportError(status);
  }
}

void initStaticCpu() {
  if (!qorEnvironment) return;
  if (s_cpuType == -1) {
    qor_Init();
    return;
  }
  g_ostrm << msgErr << "\n--calling qorInitCpu( qorCpu" << zebCpuType::cpuLabel(s_cpuType) << "=" << s_cpuType
          << " )\n";
  const QorStatus status = qor_InitCpu(s_cpuType);
  zebReportQorStatus(status);
  if (status < 0) {
    g_ostrm << "--calling qorInit()\n";
    const QorStatus again = qor_Init();
    if (again < 0) reportError(again);
  }
  g_ostrm << msgEnd;
}

void setNumThreads() {
  if (!qorEnvironment || s_numThreads < 1) return;
  g_ostrm << msgErr << "\n--calling qorSetNumThreads( " << s_numThreads << " )\n";
  zebReportQorStatus(qor_SetNumThreads(s_numThreads));
  g_ostrm << msgEnd;
}
