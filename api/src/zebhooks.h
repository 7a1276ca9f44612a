// zebhooks.h: what does the framework call of the library under test?
//
// Seven function pointers, filled by the suite's environment function or, where
// that leaves a gap, by stand-bys of the framework's own.
#ifndef ZEBHOOKS_H
#define ZEBHOOKS_H

#include "qordefs.h"

extern QorCpuType (*qor_GetCpuType)();
extern int (*qor_GetNumCoresOnDie)();
extern QorStatus (*qor_GetMaxCacheSizeB)(int* size);
extern const char* (*qor_GetStatusString)(QorStatus status);
extern QorStatus (*qor_Init)();
extern QorStatus (*qor_InitCpu)(QorCpuType cpu);
extern QorStatus (*qor_SetNumThreads)(int n);

extern void (*qorEnvironment)();  // fills the pointers; null when the suite registered none

// What qor_Init answers when no library core is linked.
constexpr QorStatus zebNoCore = -2;

// Calls the environment function, then gives each empty pointer its stand-by.
void setQorEnvironment();

// Tell each library of the version list to the listing.
void setQorLibInfo();

// "--status = qorStsNoErr" or the error or warning line with the library's own text.
void zebReportQorStatus(QorStatus status);

void initStaticCpu();  // key -T
void setNumThreads();  // key -N

extern int s_cpuType;     // key -T: -1 when not given
extern int s_numThreads;  // key -N: 0 when not given

#endif
