#include "hostile.h"

#include <unistd.h>

#include <thread>

#include "zebfpu.h"

int g_calls = 0;

HOSTILE(qoriDivide87_8u_C3R) {
  asm volatile("fld1\n\tfldz\n\tfdivrp\n\tfld1\n\tfwait");
  return qorStsNoErr;
}

HOSTILE(qoriDivideInt_8u_C3R) {
  asm volatile("xorl %%ecx, %%ecx\n\tmovl $1, %%eax\n\tcltd\n\tidivl %%ecx" : : : "eax", "ecx", "edx", "cc");
  return qorStsNoErr;
}

HOSTILE(qoriIllegal_8u_C3R) {
  asm volatile("ud2");
  return qorStsNoErr;
}

HOSTILE(qoriNull_8u_C3R) {
  asm volatile("movl $1, (%0)" : : "r"(nullptr) : "memory");
  return qorStsNoErr;
}

__attribute__((noinline)) static int deep(int n) {
  volatile char room[4096];
  room[n % 4096] = 1;
  return n < 0 ? 0 : deep(n + 1) + room[n % 4096];
}

HOSTILE(qoriStack_8u_C3R) {
  volatile int depth = 0;
  return deep(depth);
}

// Denormal and Overflow, written into the saved environment: no operation raises just these everywhere.
HOSTILE(qoriFlags87_8u_C3R) {
  unsigned int environment[7];
  asm volatile("fnstenv %0" : "=m"(environment));
  environment[1] |= 0x0A;
  asm volatile("fldenv %0" : : "m"(environment));
  return qorStsNoErr;
}

HOSTILE(qoriFlagsSSX_8u_C3R) {
  zeb_set_ssx(0x11, 0x3F);
  return qorStsNoErr;
}

HOSTILE(qoriMasks_8u_C3R) {
  zeb_set_cw_fpu(0, 0x3F);
  zeb_set_ssx(0, 0x1F80);
  return qorStsNoErr;
}

HOSTILE(qoriRounding_8u_C3R) {
  zeb_set_cw_fpu(0x800, 0xC00);
  zeb_set_ssx(0x4000, 0x6000);
  return qorStsNoErr;
}

HOSTILE(qoriPrecision_8u_C3R) {
  zeb_set_cw_fpu(0, 0x300);
  return qorStsNoErr;
}

HOSTILE(qoriDenormals_8u_C3R) {
  zeb_set_ssx(0x40, 0x8040);
  return qorStsNoErr;
}

// As MMX code does that forgets to say that it has ended.
HOSTILE(qoriRegisters87_8u_C3R) {
  for (int i = 0; i < 8; ++i) asm volatile("fld1");
  return qorStsNoErr;
}

// The first call of a measurement is the one that isn't counted.
HOSTILE(qoriErrorFirst_8u_C3R) {
  return g_calls++ == 0 ? qorStsSizeErr : qorStsNoErr;
}

HOSTILE(qoriErrorFifth_8u_C3R) {
  return ++g_calls == 5 ? qorStsSizeErr : qorStsNoErr;
}

HOSTILE(qoriErrorLast_8u_C3R) {
  return ++g_calls >= 11 ? qorStsSizeErr : qorStsNoErr;
}

HOSTILE(qoriWarningFifth_8u_C3R) {
  return ++g_calls == 5 ? qorStsNoOperation : qorStsNoErr;
}

HOSTILE(qoriWarningLast_8u_C3R) {
  return ++g_calls >= 11 ? qorStsNoOperation : qorStsNoErr;
}

HOSTILE(qoriThreads_8u_C3R) {
  std::thread([] {
    zeb_set_ssx(0x4011, 0x603F);
    usleep(50000);
  }).detach();
  return qorStsNoErr;
}

HOSTILE(qoriThreadCrash_8u_C3R) {
  std::thread([] { qoriNull_8u_C3R(nullptr, 0, nullptr, 0, {}); }).join();
  return qorStsNoErr;
}
