// packed422.h: two pixels in four bytes, taken apart in any place of memory.
#ifndef QOR_CC_PACKED422_H
#define QOR_CC_PACKED422_H

#include "formats.h"
#include "simd.h"

namespace qor {
namespace {

// Byte 0 or 1 of each word.
template <int byte>
inline Vec byteOf(Vec words) {
  return byte == 0 ? bitAnd(words, all16(0xFF)) : shiftRight16<8>(words);
}

// Luma to plane a, chroma to b and c; no byte more. What the vectors leave, an odd last
// pixel among it, is taken one by one.
template <int luma>
void splitBoth(const Source& s, const Place& at, const TileRows& out) {
  constexpr int chroma = 1 - luma;
  const uint8_t* in = s.row(0, at.y) + static_cast<ptrdiff_t>(at.x) * 2;
  uint8_t *y = out.row(0, 0), *cb = out.row(1, 0), *cr = out.row(2, 0);
  int i = 0;
  for (; i + 2 * kVec <= at.n; i += 2 * kVec) {
    Vec pairs[2];
    for (int k = 0; k < 2; ++k) {
      const Vec a = load(in + 2 * i + 2 * k * kVec), b = load(in + 2 * i + (2 * k + 1) * kVec);
      store(y + i + k * kVec, narrow(byteOf<luma>(a), byteOf<luma>(b)));
      pairs[k] = narrow(byteOf<chroma>(a), byteOf<chroma>(b));
    }
    store(cb + i / 2, narrow(byteOf<0>(pairs[0]), byteOf<0>(pairs[1])));
    store(cr + i / 2, narrow(byteOf<1>(pairs[0]), byteOf<1>(pairs[1])));
  }
  for (; i < at.n; ++i) {
    y[i] = in[2 * i + luma];
    (i % 2 == 0 ? cb : cr)[i / 2] = in[2 * i + chroma];
  }
  if (at.n % 2 != 0) cr[at.n / 2] = at.x + at.n > 1 ? in[2 * at.n - 4 + chroma] : kNeutralChroma;
}

}  // namespace
}  // namespace qor

#endif
