// processor.cpp: how many cores and how much cache does this processor report?
#include <cpuid.h>

#include "qorcore.h"

namespace {

struct Leaf {
  unsigned a = 0, b = 0, c = 0, d = 0;
};

// All zero if the processor doesn't have the leaf.
Leaf cpuid(unsigned leaf, unsigned subleaf = 0) {
  Leaf r;
  if (static_cast<unsigned>(__get_cpuid_max(leaf & 0x80000000u, nullptr)) < leaf) return r;
  __cpuid_count(leaf, subleaf, r.a, r.b, r.c, r.d);
  return r;
}

// The leaf that lists the caches, one subleaf each: AMD has the same layout
// elsewhere (topology extensions, bit 22 of ECX), and zeros in leaf 4.
unsigned cacheLeaf() {
  return (cpuid(0x80000001u).c >> 22) & 1 ? 0x8000001Du : 4u;
}

// Ways x partitions x line size x sets, each stored less 1.
long long cacheBytes(const Leaf& leaf) {
  const long long ways = (leaf.b >> 22) + 1, partitions = ((leaf.b >> 12) & 0x3ff) + 1;
  const long long line = (leaf.b & 0xfff) + 1, sets = static_cast<long long>(leaf.c) + 1;
  return ways * partitions * line * sets;
}

long long largestCache() {
  constexpr unsigned kNone = 0, kInstruction = 2;
  constexpr unsigned kMostCaches = 16;  // a faulty hypervisor may never report the end
  long long largest = 0;
  for (unsigned i = 0; i < kMostCaches; ++i) {
    const Leaf leaf = cpuid(cacheLeaf(), i);
    const unsigned type = leaf.a & 0x1f;
    if (type == kNone) break;
    if (type != kInstruction && cacheBytes(leaf) > largest) largest = cacheBytes(leaf);
  }
  return largest;
}

}  // namespace

extern "C" {

int qorGetNumCoresOnDie(void) {
  if (cacheLeaf() == 4) return static_cast<int>(cpuid(4).a >> 26) + 1;
  return static_cast<int>(cpuid(0x80000008u).c & 0xff) + 1;
}

QorStatus qorGetMaxCacheSizeB(int* size) {
  if (!size) return qorStsNullPtrErr;
  constexpr long long kMostInt = 0x7fffffff;
  const long long bytes = largestCache();
  *size = static_cast<int>(bytes < kMostInt ? bytes : kMostInt);
  return bytes > 0 ? qorStsNoErr : qorStsNotSupportedCpu;
}
}
