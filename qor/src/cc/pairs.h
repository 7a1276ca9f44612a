// pairs.h: pairs of bytes apart and together, in any place of memory.
#ifndef QOR_CC_PAIRS_H
#define QOR_CC_PAIRS_H

#include "simd.h"

namespace qor {
namespace {

// n pairs to two rows.
inline void splitPairs(const uint8_t* pairs, ptrdiff_t n, uint8_t* first, uint8_t* second) {
  ptrdiff_t i = 0;
  for (; i + kVec <= n; i += kVec) {
    const Vec low = load(pairs + 2 * i), high = load(pairs + 2 * i + kVec);
    store(first + i, narrow(bitAnd(low, all16(0xFF)), bitAnd(high, all16(0xFF))));
    store(second + i, narrow(shiftRight16<8>(low), shiftRight16<8>(high)));
  }
  for (; i < n; ++i) {
    first[i] = pairs[2 * i];
    second[i] = pairs[2 * i + 1];
  }
}

inline void mergePairs(const uint8_t* first, const uint8_t* second, ptrdiff_t n, uint8_t* pairs) {
  ptrdiff_t i = 0;
  for (; i + kVec <= n; i += kVec) storeZipped8(pairs + 2 * i, load(first + i), load(second + i));
  for (; i < n; ++i) {
    pairs[2 * i] = first[i];
    pairs[2 * i + 1] = second[i];
  }
}

}  // namespace
}  // namespace qor

#endif
