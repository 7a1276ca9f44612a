// transforms_fixed.cpp: a matrix and an offset for bytes, in fixed point.
//
// Results differ from the rounded formula by at most one, and seldom:
// docs/library.md has the figures.
#include "bytesout.h"
#include "simd.h"
#include "transforms.h"

namespace qor {
namespace {

// Double words of two bytes each, kVec pixels in lanes.
struct Pairs {
  Vec pixels[4];

  Pairs(Vec a, Vec b) {
    const Vec low = low8(a, b), high = high8(a, b);
    pixels[0] = low8(low, zero());
    pixels[1] = high8(low, zero());
    pixels[2] = low8(high, zero());
    pixels[3] = high8(high, zero());
  }
};

// One row of the matrix. Its second pair of factors may be 0.
struct Row {
  Vec ac, bd, offset;

  Row(const Fixed& f, int i)
      : ac(allPairs(f.m[i][0], f.m[i][2])), bd(allPairs(f.m[i][1], f.m[i][3])), offset(all32(f.offset[i])) {}

  template <int shift, bool firstOnly>
  Vec bytes(const Pairs& acPairs, const Pairs& bdPairs) const {
    const auto dot = [&](int k) {
      const Vec first = addPairs(offset, acPairs.pixels[k], ac);
      return shiftRightSigned32<shift>(firstOnly ? first : addPairs(first, bdPairs.pixels[k], bd));
    };
    return pack16(pack32(dot(0), dot(1)), pack32(dot(2), dot(3)));
  }
};

template <int shift, int twice, bool firstOnly>
struct Products {
  const uint8_t *pa, *pb, *pc;
  Row row0, row1, row2;
  bool swapped;

  Vec3 at(int i) const {
    const Vec a = load(pa + i), b = load(pb + i), c = load(pc + i);
    const Pairs ac(a, c), bd(b, twice == 0 ? a : twice == 1 ? b : c);
    const Vec first = row0.bytes<shift, firstOnly>(ac, bd), third = row2.bytes<shift, false>(ac, bd);
    return {swapped ? third : first, row1.bytes<shift, false>(ac, bd), swapped ? first : third};
  }
  Vec3 last(int i, int) const { return at(i); }
  void move(ptrdiff_t) {}
};

template <int shift, int twice, bool firstOnly>
void multiply(const TileRows& in, const BytesOut& out, int n, const Fixed& f) {
  putAll(out,
         Products<shift, twice, firstOnly>{in.plane[0], in.plane[1], in.plane[2], Row(f, 0), Row(f, 1),
                                           Row(f, 2), out.swapped},
         n);
}

}  // namespace

void applyFixed(const TileRows& in, const TileRows& out, int n, const Matrix& matrix) {
  multiplyFixed(in, toPlanes(out), n, matrix);
}

void multiplyFixed(const TileRows& in, const BytesOut& out, int n, const Matrix& matrix) {
  const Fixed& f = matrix.fixed;
  if (matrix.fromLuma.times != 0) return coloursOfPlanes(in, out, n, matrix.fromLuma);
  if (f.shift == 15) return multiply<15, 2, false>(in, out, n, f);  // no factor needs two shares
  if (f.twice == 0) return multiply<14, 0, false>(in, out, n, f);
  // Luma and chroma to channels, of which the first knows no Cb.
  if (f.twice == 1 && f.m[0][1] == 0 && f.m[0][3] == 0) return multiply<14, 1, true>(in, out, n, f);
  f.twice == 1 ? multiply<14, 1, false>(in, out, n, f) : multiply<14, 2, false>(in, out, n, f);
}

}  // namespace qor
