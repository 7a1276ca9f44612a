// hostile.h: what may a library function do to the program that measures it?
//
// Each function misbehaves in one way. They take the arguments of a pixel
// function and give its status, so they are registered as any function is.
#ifndef HOSTILE_H
#define HOSTILE_H

#include "qordefs.h"

// In the order of registration.
#define HOSTILE_FUNCTIONS(X)                                  \
  /* These don't return. */                                   \
  X(qoriDivide87_8u_C3R)                                      \
  X(qoriDivideInt_8u_C3R)                                     \
  X(qoriIllegal_8u_C3R)                                       \
  X(qoriNull_8u_C3R)                                          \
  X(qoriStack_8u_C3R)                                         \
  /* Registers of the floating-point units left changed. */   \
  X(qoriFlags87_8u_C3R)                                       \
  X(qoriFlagsSSX_8u_C3R)                                      \
  X(qoriMasks_8u_C3R)                                         \
  X(qoriRounding_8u_C3R)                                      \
  X(qoriPrecision_8u_C3R)                                     \
  X(qoriDenormals_8u_C3R)                                     \
  X(qoriRegisters87_8u_C3R)                                   \
  /* Errors and warnings of the library. */                   \
  X(qoriErrorFirst_8u_C3R)                                    \
  X(qoriErrorFifth_8u_C3R)                                    \
  X(qoriErrorLast_8u_C3R)                                     \
  X(qoriWarningFifth_8u_C3R)                                  \
  X(qoriWarningLast_8u_C3R)                                   \
  /* Threads that are still there when the call has ended. */ \
  X(qoriThreads_8u_C3R)

// The arguments are those of any pixel function; most functions here look at none of them.
#define HOSTILE(func) QorStatus func(const Qor8u*, int, Qor8u*, int, QoriSize)

#define DECLARE(func) HOSTILE(func);
HOSTILE_FUNCTIONS(DECLARE)
#undef DECLARE

// A thread that doesn't return: the end of the process, since its stack isn't the one that a test is left by.
HOSTILE(qoriThreadCrash_8u_C3R);

extern int g_calls;  // of the present measurement; initData sets it to 0

#endif
