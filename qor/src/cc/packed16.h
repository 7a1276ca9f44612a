// packed16.h: three channels in the bits of a word.
#ifndef QOR_CC_PACKED16_H
#define QOR_CC_PACKED16_H

#include "simd.h"

namespace qor {
namespace {

// Bytes shifted to the left, or to the right if negative, as far as the mask has room.
template <int left, int mask>
inline Vec shiftedBytes(Vec bytes) {
  if constexpr (left >= 0) return bitAnd(shiftLeft16<left>(bytes), all8(mask));
  return bitAnd(shiftRight16<-left>(bytes), all8(mask));
}

// kVec pixels that have the upper bits of each byte, a's lowest.
template <int bitsA, int bitsB, int bitsC>
inline void storeFields(uint8_t* p, const Vec3& v) {
  constexpr int upper = bitsA + bitsB - 8;  // bits of b in the upper byte
  const Vec low =
      bitOr(shiftedBytes<bitsA - 8, (1 << bitsA) - 1>(v.a), shiftedBytes<upper, 0xFF & -(1 << bitsA)>(v.b));
  const Vec high = bitOr(shiftedBytes<upper - 8, (1 << upper) - 1>(v.b),
                         shiftedBytes<upper + bitsC - 8, ((1 << bitsC) - 1) << upper>(v.c));
  storeZipped8(p, low, high);
}

}  // namespace
}  // namespace qor

#endif
