// zebcpuid.h: what does the processor's CPUID instruction say?
//
// All answers are ints, true is 1. Register arrays hold EAX, EBX, ECX, EDX, in
// this order. Every execution of the instruction goes through g_cpuSource, so a
// test can put a processor of its own making in the place of the real one.
#ifndef ZEBCPUID_H
#define ZEBCPUID_H

enum { regEax, regEbx, regEcx, regEdx };

struct zebCpuSource {
  int (*hasCpuid)();
  // Stores the four registers for EAX := function, ECX := subFunction.
  void (*cpuid)(unsigned int* regs, unsigned int function, unsigned int subFunction);
  // The low half of XCR0; asked only if the processor says that XGETBV works.
  unsigned int (*xcr0)();
};

// Never null; the real processor unless a test says otherwise.
extern const zebCpuSource* g_cpuSource;

// Runs CPUID. A foreign processor that leaves function 4 blank but has an
// equivalent of it is answered from that, in the layout of function 4.
void ownGetReg(unsigned int* regs, unsigned int function, unsigned int subFunction);

unsigned int largestFunction();
unsigned int largestExFunction();
bool validFunction(unsigned int function);

// The bits high down to low of a value, shifted down to bit 0.
unsigned int zebBits(unsigned int value, int high, int low);

// One processor, as functions 1, 2, 4 and 0x80000001 describe it.
struct QorCpuRec {
  unsigned int family;
  unsigned int stepping;
  unsigned int model;
  unsigned int type;
  unsigned int feature;   // EDX of function 1
  unsigned int cacheEax;  // of function 2; 0 if the processor lacks it
  unsigned int cacheEdx;
  unsigned int mmx;
  unsigned int sse;
  unsigned int sse2;
  unsigned int mt;
  unsigned int sse3;
  unsigned int x64;
  unsigned int ssse3;
  unsigned int cores;
  unsigned int sse41;
  unsigned int sse42;
  unsigned int extFamily;
  unsigned int extModel;
  unsigned int movbe;
  unsigned int avx;  // what the processor has; the system's support is qor_is_avx_extension's
  unsigned int osxsave;
};

// Returns 0, with one core and all else 0, on a processor without CPUID.
int qor_get_cpu_ident(QorCpuRec* rec);

int qor_has_cpuid();
int qor_max_cpuid_input();
int qor_has_rdtsc();
int qor_is_mmx_extension();
int qor_is_ssx_extension();
int qor_is_sse2_extension();
int qor_is_mt_extension();
int qor_is_sse3_extension();
int qor_is_ssse3_extension();
int qor_is_sse41_extension();
int qor_is_sse42_extension();
int qor_is_movbe();
// The processor has AVX and the system saves its registers.
int qor_is_avx_extension();
int qor_is_x64_extension();
// Cores that share the package; 1 if unknown.
int qor_get_cores_on_die();
int qor_is_GenuineBrelk();

#endif
