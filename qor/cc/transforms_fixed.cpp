// transforms_fixed.cpp: a matrix and an offset for bytes, in fixed point.
//
// Results differ from the rounded formula by at most one, and seldom:
// docs/library.md has the figures.
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

// Tile rows have room for a whole vector behind their last pixel.
template <int shift, int twice, bool firstOnly>
void multiplyFixed(const TileRows& in, const TileRows& out, int n, const Fixed& f) {
  const uint8_t *pa = in.plane[0], *pb = in.plane[1], *pc = in.plane[2];
  const Row row0(f, 0), row1(f, 1), row2(f, 2);
  uint8_t *to0 = out.plane[0], *to1 = out.plane[1], *to2 = out.plane[2];
  for (int i = 0; i < n; i += kVec) {
    const Vec a = load(pa + i), b = load(pb + i), c = load(pc + i);
    const Pairs ac(a, c), bd(b, twice == 0 ? a : twice == 1 ? b : c);
    store(to0 + i, row0.bytes<shift, firstOnly>(ac, bd));
    store(to1 + i, row1.bytes<shift, false>(ac, bd));
    store(to2 + i, row2.bytes<shift, false>(ac, bd));
  }
}

}  // namespace

void applyFixed(const TileRows& in, const TileRows& out, int n, const Matrix& matrix) {
  const Fixed& f = matrix.fixed;
  if (f.shift == 15) return multiplyFixed<15, 2, false>(in, out, n, f);  // no factor needs two shares
  if (f.twice == 0) return multiplyFixed<14, 0, false>(in, out, n, f);
  // Luma and chroma to channels, of which the first knows no Cb.
  if (f.twice == 1 && f.m[0][1] == 0 && f.m[0][3] == 0) return multiplyFixed<14, 1, true>(in, out, n, f);
  f.twice == 1 ? multiplyFixed<14, 1, false>(in, out, n, f) : multiplyFixed<14, 2, false>(in, out, n, f);
}

// Writes no byte more than n.
void applyLuma(const TileRows& in, const TileRows& out, int n, const Matrix& matrix) {
  const Luma& f = matrix.luma;
  const uint8_t *pa = in.plane[0], *pb = in.plane[1], *pc = in.plane[2];
  uint8_t* to = out.plane[0];
  const auto bytePairs = [](const uint8_t* of, int first, int second) {
    return all16(of[first] | (second < 0 ? 0 : of[second]) << 8);
  };
  const Vec highAB = bytePairs(f.high, 0, 1), highC = bytePairs(f.high, 2, -1),
            lowAB = bytePairs(f.low, 0, 1), lowC = bytePairs(f.low, 2, -1), offset = all16(f.offset),
            middle = all8(128);
  const auto words = [&](Vec ab, Vec cb) {
    const Vec high = add16(multiplyBytes(highAB, ab), multiplyBytes(highC, cb));
    const Vec low = add16(multiplyBytes(lowAB, ab), multiplyBytes(lowC, cb));
    return shiftRight16<8>(add16(add16(high, offset), shiftRightSigned16<7>(low)));
  };
  for (int i = 0; i < n; i += kVec) {
    const Vec a = bitXor(load(pa + i), middle), b = bitXor(load(pb + i), middle),
              c = bitXor(load(pc + i), middle);
    const Vec bytes = pack16(words(low8(a, b), low8(c, b)), words(high8(a, b), high8(c, b)));
    if (n - i >= kVec) {
      store(to + i, bytes);
    } else {
      uint8_t rest[kVec];
      store(rest, bytes);
      __builtin_memcpy(to + i, rest, n - i);
    }
  }
}

}  // namespace qor
