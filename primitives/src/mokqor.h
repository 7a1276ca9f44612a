// mokqor.h: which functions of the library does the framework call?
//
// Primitives don't include the library's headers; a test source that has
// included qorcore.h or qorcc.h gets the matching binding and registers it.
#ifndef MOKQOR_H
#define MOKQOR_H

#include "zebhooks.h"
#include "zebregister.h"

#ifdef QORCORE_H
inline void mokSetQorEnvironment() {
  qor_GetCpuType = qorGetCpuType;
  qor_GetNumCoresOnDie = qorGetNumCoresOnDie;
  qor_GetMaxCacheSizeB = qorGetMaxCacheSizeB;
  qor_GetStatusString = qorGetStatusString;
  qor_Init = qorInit;
  qor_InitCpu = qorInitCpu;
  qor_SetNumThreads = qorSetNumThreads;
}

[[maybe_unused]] static const bool regQorEnvironment = zebRegQorEnvironment(mokSetQorEnvironment);
#endif

#ifdef QORCC_H
inline const QorLibraryVersion* mokGetQorVersion_qorcc() {
  return qorccGetLibVersion();
}

[[maybe_unused]] static const bool regVersion_qorcc = zebRegQorVersion(mokGetQorVersion_qorcc);
#endif

#endif
