// hostile.h: what may a library function do to the program that measures it?
//
// Each function misbehaves in one way. They take the arguments of a pixel
// function and give its status, so they are registered as any function is.
#ifndef HOSTILE_H
#define HOSTILE_H

#include "qordefs.h"

#define HOSTILE(func) QorStatus func(const Qor8u*, int, Qor8u*, int, QoriSize);

// These don't return.
HOSTILE(qoriDivide87_8u_C3R)
HOSTILE(qoriDivideInt_8u_C3R)
HOSTILE(qoriIllegal_8u_C3R)
HOSTILE(qoriNull_8u_C3R)
HOSTILE(qoriStack_8u_C3R)
// Registers of the floating-point units left changed.
HOSTILE(qoriFlags87_8u_C3R)
HOSTILE(qoriFlagsSSX_8u_C3R)
HOSTILE(qoriMasks_8u_C3R)
HOSTILE(qoriRounding_8u_C3R)
HOSTILE(qoriPrecision_8u_C3R)
HOSTILE(qoriDenormals_8u_C3R)
HOSTILE(qoriRegisters87_8u_C3R)
// Errors and warnings of the library.
HOSTILE(qoriErrorFirst_8u_C3R)
HOSTILE(qoriErrorFifth_8u_C3R)
HOSTILE(qoriErrorLast_8u_C3R)
HOSTILE(qoriWarningFifth_8u_C3R)
HOSTILE(qoriWarningLast_8u_C3R)
// Threads that are still there when the call has ended.
HOSTILE(qoriThreads_8u_C3R)
// A thread that doesn't return: the end of the process, since its stack isn't the one that a test is left by.
HOSTILE(qoriThreadCrash_8u_C3R)

#undef HOSTILE

extern int g_calls;  // of the present measurement; initData sets it to 0

#endif
