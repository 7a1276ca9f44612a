// qorcore.h: how is the library set up, and what does it know of the machine?
//
// May be included from C. Nothing here has to be called before a conversion.
#ifndef QORCORE_H
#define QORCORE_H

#include "qordefs.h"

#ifdef __cplusplus
extern "C" {
#endif

// Conversions run on one of four code paths: SSE2, SSE4.2, AVX2 (Haswell's set)
// and AVX-512 (Ice Lake's set, VBMI among it; 64-bit builds only). All give the
// same results to the last bit. Without a call the best that this processor has
// is in force. A change during a running conversion reaches the next one.

// Chooses the best code path for this processor. Always succeeds.
QOR_API QorStatus qorInit(void);

// Forces the best code path that the processor with this code could run:
//   SSE2     0 (unknown: the floor), 6..11, 32..36, 65..68, 96: SSE2 to SSE4.1
//   SSE4.2   37, 69, 71
//   AVX2     70 (AVX: the codes know no later AVX)
//   AVX-512  38 (next generation)
// If this processor lacks that path, or the code stands for a processor below
// SSE2 or isn't known: qorStsNotSupportedCpu, and the path in force stays.
QOR_API QorStatus qorInitCpu(QorCpuType cpu);

// The code of the path in force, not of the processor: 65 (SSE2), 69 (SSE4.2),
// 70 (AVX2) or 38 (AVX-512).
QOR_API QorCpuType qorGetCpuType(void);

// Conversions split their rows over n threads, the caller's among them; the
// results stay the same bits. At first n is 1, and no thread is started. n below
// 1: qorStsSizeErr, nothing changed.
QOR_API QorStatus qorSetNumThreads(int n);

// What a status means: a static text in English, never null, also for a value
// that no function returns.
QOR_API const char* qorGetStatusString(QorStatus status);

// Cores that share this processor's package, at least 1. Read from CPUID
// leaf 4, bits 31..26 of EAX, or from leaf 0x80000008 (AMD
// APM vol. 3); a virtual machine may report fewer or more than it has.
QOR_API int qorGetNumCoresOnDie(void);

// *size := bytes of the largest data or unified cache of this processor, by
// CPUID leaf 4 or, with AMD's topology extensions, 0x8000001D. If no cache is
// reported *size is 0 and the status qorStsNotSupportedCpu.
QOR_API QorStatus qorGetMaxCacheSizeB(int* size);

#ifdef __cplusplus
}
#endif

#endif
