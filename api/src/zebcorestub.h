// zebcorestub.h: who answers when the library's core isn't linked?
//
// The framework's own answers about the processor, and stand-bys that do
// nothing for what only a library can do.
#ifndef ZEBCORESTUB_H
#define ZEBCORESTUB_H

#include "qordefs.h"

QorCpuType zeb_qorGetCpuType();  // 0: unknown
int zeb_qorGetNumCoresOnDie();   // 1 if unknown

const char* s_qorGetStatusString(QorStatus status);

// These return zebNoCore, by which the framework knows that there is no core.
QorStatus s_qorInit();
QorStatus s_qorInitCpu(QorCpuType cpu);
QorStatus s_qorSetNumThreads(int n);

#endif
