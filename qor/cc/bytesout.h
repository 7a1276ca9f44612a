// bytesout.h: three channels of bytes, a vector of pixels at a time, to where they go.
#ifndef QOR_CC_BYTESOUT_H
#define QOR_CC_BYTESOUT_H

#include "simd.h"
#include "transforms.h"

namespace qor {
namespace {

inline BytesOut toPlanes(const TileRows& rows) {
  return {{rows.plane[0], rows.plane[1], rows.plane[2]}};
}

// kVec pixels from pixel i of n; planes have room for a whole vector behind the last.
inline void put(const BytesOut& out, int i, int n, const Vec3& v) {
  if (!out.pixels) {
    store(out.plane[0] + i, v.a);
    store(out.plane[1] + i, v.b);
    store(out.plane[2] + i, v.c);
    return;
  }
  uint8_t rest[4 * kVec];
  uint8_t *whole = out.pixels + out.stride * i, *to = n - i < kVec ? rest : whole;
  const Vec3 ordered = out.swapped ? Vec3{v.c, v.b, v.a} : v;
  if (out.stride == 3)
    store3<1>(to, ordered);
  else
    store4(to, {ordered.a, ordered.b, ordered.c, all8(out.alpha)});
  if (to == rest) __builtin_memcpy(whole, rest, out.stride * (n - i));
}

}  // namespace
}  // namespace qor

#endif
