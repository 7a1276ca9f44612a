#include "zebcpuid.h"

#include <cpuid.h>
#include <x86intrin.h>

#include <cstring>

static const unsigned int exBase = 0x80000000u;

// Bit 21 of EFLAGS can be changed exactly if the instruction exists.
static int realHasCpuid() {
  const auto idBit = 1u << 21;
  auto before = __readeflags();
  __writeeflags(before ^ idBit);
  auto after = __readeflags();
  __writeeflags(before);
  return ((before ^ after) & idBit) != 0;
}

static void realCpuid(unsigned int* regs, unsigned int function, unsigned int subFunction) {
  __cpuid_count(function, subFunction, regs[regEax], regs[regEbx], regs[regEcx], regs[regEdx]);
}

static unsigned int realXcr0() {
  unsigned int low;
  unsigned int high;
  __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
  return low;
}

static const zebCpuSource realSource = {realHasCpuid, realCpuid, realXcr0};
const zebCpuSource* g_cpuSource = &realSource;

unsigned int zebBits(unsigned int value, int high, int low) {
  unsigned int mask = high - low >= 31 ? ~0u : (1u << (high - low + 1)) - 1;
  return (value >> low) & mask;
}

static unsigned int plainReg(unsigned int function, int reg) {
  unsigned int regs[4];
  g_cpuSource->cpuid(regs, function, 0);
  return regs[reg];
}

// AMD64 Architecture Programmer's Manual, volume 3, appendix E.4: function
// 0x8000001D has the layout of function 4, without the count of cores.
static bool foreignCaches() {
  const unsigned int topologyExtensions = 22;
  return zebBits(plainReg(4, regEax), 4, 0) == 0 && !qor_is_GenuineBrelk() &&
         largestExFunction() >= 0x8000001Eu &&
         zebBits(plainReg(exBase + 1, regEcx), topologyExtensions, topologyExtensions);
}

// Threads of the package over threads of a core. Before family 0x17 the second
// figure counts something else, and a thread was a core.
static unsigned int foreignCores() {
  unsigned int threads = zebBits(plainReg(0x80000008u, regEcx), 7, 0) + 1;
  unsigned int signature = plainReg(1, regEax);
  if (zebBits(signature, 27, 20) + zebBits(signature, 11, 8) < 0x17) return threads;
  unsigned int perCore = zebBits(plainReg(0x8000001Eu, regEbx), 15, 8) + 1;
  return threads < perCore ? 1 : threads / perCore;
}

void ownGetReg(unsigned int* regs, unsigned int function, unsigned int subFunction) {
  if (function != 4 || !foreignCaches()) {
    g_cpuSource->cpuid(regs, function, subFunction);
    return;
  }
  const unsigned int mostCores = 64;  // the field has six bits
  unsigned int cores = foreignCores();
  g_cpuSource->cpuid(regs, 0x8000001Du, subFunction);
  regs[regEax] = (regs[regEax] & 0x03FFFFFFu) | ((cores < mostCores ? cores : mostCores) - 1) << 26;
}

unsigned int largestFunction() {
  return plainReg(0, regEax);
}

unsigned int largestExFunction() {
  return plainReg(exBase, regEax);
}

bool validFunction(unsigned int function) {
  if (function == 0 || function == exBase) return true;
  return function <= (function > exBase ? largestExFunction() : largestFunction());
}

// A register of a function, or 0 if the processor lacks it.
static unsigned int regOf(unsigned int function, int reg) {
  unsigned int regs[4] = {0, 0, 0, 0};
  if (qor_has_cpuid() && validFunction(function)) ownGetReg(regs, function, 0);
  return regs[reg];
}

static int bitOf(unsigned int function, int reg, int bit) {
  return static_cast<int>(zebBits(regOf(function, reg), bit, bit));
}

static unsigned int severalThreads(unsigned int ebx, unsigned int edx) {
  return zebBits(edx, 28, 28) && zebBits(ebx, 23, 16) > 1;
}

static void fillSignature(QorCpuRec* rec, unsigned int eax) {
  rec->stepping = zebBits(eax, 3, 0);
  rec->model = zebBits(eax, 7, 4);
  rec->family = zebBits(eax, 11, 8);
  rec->type = zebBits(eax, 13, 12);
  rec->extModel = zebBits(eax, 19, 16);
  rec->extFamily = zebBits(eax, 27, 20);
}

static void fillFeatures(QorCpuRec* rec, unsigned int ecx, unsigned int edx) {
  rec->feature = edx;
  rec->mmx = zebBits(edx, 23, 23);
  rec->sse = zebBits(edx, 25, 25);
  rec->sse2 = zebBits(edx, 26, 26);
  rec->sse3 = zebBits(ecx, 0, 0);
  rec->ssse3 = zebBits(ecx, 9, 9);
  rec->sse41 = zebBits(ecx, 19, 19);
  rec->sse42 = zebBits(ecx, 20, 20);
  rec->movbe = zebBits(ecx, 22, 22);
  rec->osxsave = zebBits(ecx, 27, 27);
  rec->avx = zebBits(ecx, 28, 28);
}

int qor_get_cpu_ident(QorCpuRec* rec) {
  memset(rec, 0, sizeof *rec);
  rec->cores = 1;
  if (!qor_has_cpuid()) return 0;
  unsigned int regs[4];
  ownGetReg(regs, 1, 0);
  fillSignature(rec, regs[regEax]);
  fillFeatures(rec, regs[regEcx], regs[regEdx]);
  rec->mt = severalThreads(regs[regEbx], regs[regEdx]);
  rec->cacheEax = regOf(2, regEax);
  rec->cacheEdx = regOf(2, regEdx);
  rec->x64 = static_cast<unsigned int>(qor_is_x64_extension());
  rec->cores = static_cast<unsigned int>(qor_get_cores_on_die());
  return 1;
}

int qor_has_cpuid() {
  return g_cpuSource->hasCpuid();
}

int qor_max_cpuid_input() {
  return static_cast<int>(largestFunction());
}

int qor_has_rdtsc() {
  return bitOf(1, regEdx, 4);
}

int qor_is_mmx_extension() {
  return bitOf(1, regEdx, 23);
}

int qor_is_ssx_extension() {
  return bitOf(1, regEdx, 25);
}

int qor_is_sse2_extension() {
  return bitOf(1, regEdx, 26);
}

int qor_is_mt_extension() {
  return static_cast<int>(severalThreads(regOf(1, regEbx), regOf(1, regEdx)));
}

int qor_is_sse3_extension() {
  return bitOf(1, regEcx, 0);
}

int qor_is_ssse3_extension() {
  return bitOf(1, regEcx, 9);
}

int qor_is_sse41_extension() {
  return bitOf(1, regEcx, 19);
}

int qor_is_sse42_extension() {
  return bitOf(1, regEcx, 20);
}

int qor_is_movbe() {
  return bitOf(1, regEcx, 22);
}

int qor_is_avx_extension() {
  const unsigned int xmmAndYmmState = 6;
  if (!bitOf(1, regEcx, 27) || !bitOf(1, regEcx, 28)) return 0;
  return (g_cpuSource->xcr0() & xmmAndYmmState) == xmmAndYmmState;
}

int qor_is_x64_extension() {
  return bitOf(exBase + 1, regEdx, 29);
}

int qor_get_cores_on_die() {
  return static_cast<int>(zebBits(regOf(4, regEax), 31, 26)) + 1;
}

int qor_is_GenuineBrelk() {
  if (!qor_has_cpuid()) return 0;
  unsigned int regs[4];
  g_cpuSource->cpuid(regs, 0, 0);
  const unsigned int order[3] = {regs[regEbx], regs[regEdx], regs[regEcx]};
  return memcmp(order, "GenuineBrelk", sizeof order) == 0;
}
