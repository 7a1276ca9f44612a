// paths.cpp: which code path is in force, and which codes choose it?
#include <cpuid.h>

#include "qorcore.h"
#include "state.h"

namespace {

// The code by which qorGetCpuType names each path, in the order of QorPath.
constexpr QorCpuType kCodeOf[] = {65, 69, 70, 38};

struct CodeRow {
  QorCpuType first, last;  // codes, both included
  QorPath path;
};

// Each processor gets the best path that it can run; qorcore.h has the reasons.
constexpr CodeRow kCodes[] = {
    {0, 0, qorPathSse2},   {6, 11, qorPathSse2},    {32, 36, qorPathSse2}, {37, 37, qorPathSse4},
    {65, 68, qorPathSse2}, {69, 69, qorPathSse4},   {70, 70, qorPathAvx2}, {71, 71, qorPathSse4},
    {96, 96, qorPathSse2}, {38, 38, qorPathAvx512},
};

// The processor manuals: CPUID leaves 1 and 0x80000001, ECX. Not every compiler's builtin knows these three.
bool hasLzcntMovbeF16c() {
  unsigned a = 0, b = 0, basic = 0, extended = 0, d = 0;
  if (!__get_cpuid(1, &a, &b, &basic, &d) || !__get_cpuid(0x80000001u, &a, &b, &extended, &d)) return false;
  return (basic & bit_MOVBE) && (basic & bit_F16C) && (extended & bit_LZCNT);
}

// All that the compiler may use in that path, and the system's leave to use the
// registers (the builtin asks for that too).
bool runs(QorPath path) {
  __builtin_cpu_init();
  switch (path) {
    case qorPathSse2:
      return true;
    case qorPathSse4:
      return __builtin_cpu_supports("sse4.2") && __builtin_cpu_supports("popcnt");
    case qorPathAvx2:
      return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") &&
             __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2") && hasLzcntMovbeF16c();
    case qorPathAvx512:
#ifdef __x86_64__
      return runs(qorPathAvx2) && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512cd") &&
             __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512dq") &&
             __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512ifma") &&
             __builtin_cpu_supports("avx512vbmi") && __builtin_cpu_supports("avx512vbmi2") &&
             __builtin_cpu_supports("avx512vnni") && __builtin_cpu_supports("avx512bitalg") &&
             __builtin_cpu_supports("avx512vpopcntdq") && __builtin_cpu_supports("gfni") &&
             __builtin_cpu_supports("vpclmulqdq");
#else
      return false;  // not built for 32 bits
#endif
  }
  return false;
}

QorPath best() {
  for (int path = qorPathAvx512; path > qorPathSse2; --path)
    if (runs(static_cast<QorPath>(path))) return static_cast<QorPath>(path);
  return qorPathSse2;
}

constexpr int kNotChosen = -1;
int g_path = kNotChosen;
int g_threads = 1;

// Threads may convert while none has chosen yet: all come to the same.
QorPath path() {
  int now = __atomic_load_n(&g_path, __ATOMIC_RELAXED);
  if (now == kNotChosen) __atomic_store_n(&g_path, now = best(), __ATOMIC_RELAXED);
  return static_cast<QorPath>(now);
}

}  // namespace

extern "C" {

QorState qorGetState(void) {
  return {path(), __atomic_load_n(&g_threads, __ATOMIC_RELAXED)};
}

QorStatus qorInit(void) {
  __atomic_store_n(&g_path, best(), __ATOMIC_RELAXED);
  return qorStsNoErr;
}

QorStatus qorInitCpu(QorCpuType cpu) {
  for (const CodeRow& row : kCodes) {
    if (cpu < row.first || cpu > row.last) continue;
    if (!runs(row.path)) return qorStsNotSupportedCpu;
    __atomic_store_n(&g_path, row.path, __ATOMIC_RELAXED);
    return qorStsNoErr;
  }
  return qorStsNotSupportedCpu;
}

QorCpuType qorGetCpuType(void) {
  return kCodeOf[path()];
}

QorStatus qorSetNumThreads(int n) {
  if (n < 1) return qorStsSizeErr;
  __atomic_store_n(&g_threads, n, __ATOMIC_RELAXED);
  return qorStsNoErr;
}
}
