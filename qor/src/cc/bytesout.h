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

// Planes have room for a whole vector behind the last pixel.
struct PlanesOut {
  uint8_t *a, *b, *c;

  void move(ptrdiff_t step) {
    a += step;
    b += step;
    c += step;
  }

  void put(int i, const Vec3& v) const {
    store(a + i, v.a);
    store(b + i, v.b);
    store(c + i, v.c);
  }
  void putLast(int i, int, const Vec3& v) const { put(i, v); }
};

struct ThreeOut {
  uint8_t* pixels;

  void move(ptrdiff_t step) { pixels += step; }

  void put(int i, const Vec3& v) const { store3<1>(pixels + 3 * i, v); }
  void putLast(int i, int count, const Vec3& v) const {
    uint8_t rest[3 * kVec];
    store3<1>(rest, v);
    __builtin_memcpy(pixels + 3 * i, rest, 3 * count);
  }
};

struct FourOut {
  uint8_t* pixels;
  Vec alpha;

  void move(ptrdiff_t step) { pixels += step; }

  void put(int i, const Vec3& v) const { store4(pixels + 4 * i, {v.a, v.b, v.c, alpha}); }
  void putLast(int i, int count, const Vec3& v) const {
    uint8_t rest[4 * kVec];
    store4(rest, {v.a, v.b, v.c, alpha});
    __builtin_memcpy(pixels + 4 * i, rest, 4 * count);
  }
};

// A function of its own, with copies of its own: what is the same for all pixels stays in
// registers, since no store could change it.
template <class Out, class Pixels>
[[gnu::noinline]] void putEach(const Out& whereto, const Pixels& of, int n, const RowSet& rows) {
  Out out = whereto;
  Pixels pixels = of;
  for (int r = 0; r < rows.count; ++r) {
    int i = 0;
    for (; i + kVec <= n; i += kVec) out.put(i, pixels.at(i));
    if (i < n) out.putLast(i, n - i, pixels.last(i, n - i));
    out.move(rows.outStep);
    pixels.move(rows.inStep);
  }
}

// n pixels of each row: `pixels.at(i)` has the kVec from pixel i, `pixels.last(i, count)`
// fewer at the end; `pixels.move(step)` goes to another row. They heed out.swapped.
template <class Pixels>
void putAll(const BytesOut& out, const Pixels& pixels, int n, const RowSet& rows = {}) {
  if (!out.pixels) return putEach(PlanesOut{out.plane[0], out.plane[1], out.plane[2]}, pixels, n, rows);
  if (out.stride == 3) return putEach(ThreeOut{out.pixels}, pixels, n, rows);
  putEach(FourOut{out.pixels, all8(out.alpha)}, pixels, n, rows);
}

}  // namespace
}  // namespace qor

#endif
