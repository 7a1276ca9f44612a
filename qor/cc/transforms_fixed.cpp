// transforms_fixed.cpp: a matrix and an offset for bytes, in fixed point.
//
// Results differ from the rounded formula by at most one, and seldom:
// docs/library.md has the figures.
#include "simd.h"
#include "transforms.h"

namespace qor {
namespace {

struct Words {
  Vec low, high;
};

// The bytes less 128.
inline Words centred(Vec bytes) {
  const Vec middle = all16(128);
  return {sub16(low8(bytes, zero()), middle), sub16(high8(bytes, zero()), middle)};
}

// One row of the matrix.
struct Row {
  Vec ab, cd, offset;

  Row(const Fixed& f, int i)
      : ab(allPairs(f.m[i][0], f.m[i][1])), cd(allPairs(f.m[i][2], f.m[i][3])), offset(all32(f.offset[i])) {}

  template <int shift>
  Vec dot(Vec abWords, Vec cdWords) const {
    return shiftRightSigned32<shift>(addPairs(addPairs(offset, abWords, ab), cdWords, cd));
  }

  // For kVec / 2 pixels.
  template <int shift>
  Vec words(Vec a, Vec b, Vec c, Vec d) const {
    return pack32(dot<shift>(low16(a, b), low16(c, d)), dot<shift>(high16(a, b), high16(c, d)));
  }
};

// Tile rows have room for a whole vector behind their last pixel.
template <int shift, int twice>
void multiplyFixed(const TileRows& in, const TileRows& out, int n, const Fixed& f) {
  const uint8_t *pa = in.plane[0], *pb = in.plane[1], *pc = in.plane[2];
  const Row row0(f, 0), row1(f, 1), row2(f, 2);
  uint8_t *to0 = out.plane[0], *to1 = out.plane[1], *to2 = out.plane[2];
  for (int i = 0; i < n; i += kVec) {
    const Words a = centred(load(pa + i)), b = centred(load(pb + i)), c = centred(load(pc + i));
    const Words& d = twice == 0 ? a : twice == 1 ? b : c;
    const auto bytes = [&](const Row& row) {
      return pack16(row.words<shift>(a.low, b.low, c.low, d.low),
                    row.words<shift>(a.high, b.high, c.high, d.high));
    };
    store(to0 + i, bytes(row0));
    store(to1 + i, bytes(row1));
    store(to2 + i, bytes(row2));
  }
}

}  // namespace

void applyFixed(const TileRows& in, const TileRows& out, int n, const Matrix& matrix) {
  const Fixed& f = matrix.fixed;
  if (f.shift == 15) return multiplyFixed<15, 2>(in, out, n, f);  // no factor needs two shares
  if (f.twice == 0) return multiplyFixed<14, 0>(in, out, n, f);
  f.twice == 1 ? multiplyFixed<14, 1>(in, out, n, f) : multiplyFixed<14, 2>(in, out, n, f);
}

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
    store(to + i, pack16(words(low8(a, b), low8(c, b)), words(high8(a, b), high8(c, b))));
  }
}

}  // namespace qor
