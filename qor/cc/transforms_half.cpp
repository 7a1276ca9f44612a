// transforms_half.cpp: three channels to chroma that two pixels of a row share.
#include "simd.h"
#include "transforms.h"

namespace qor {
namespace {

// Sums of four samples, kVec / 2 of them.
inline Vec sumsOfFour(const uint8_t* row, int rows, int apart) {
  const Vec first = sumsOfPairs(load(row));
  return add16(first, rows == 1 ? first : sumsOfPairs(load(row + apart)));
}

}  // namespace

void chromaOfPairs(const TileRows& in, int rows, int apart, const TileRows& out, int n, const ToHalf& f) {
  constexpr int step = kVec / 2;
  const uint8_t* const from[3] = {in.plane[0], in.plane[1], in.plane[2]};
  uint8_t* const to[2] = {out.plane[1], out.plane[2]};
  for (int p = 0; p < 3 && n % 2 != 0; ++p)
    for (int r = 0; r < rows; ++r) {
      uint8_t* last = in.plane[p] + r * apart + n - 1;
      last[1] = last[0];
    }
  Vec ab[2], ca[2], offset[2];
  for (int i = 0; i < 2; ++i) {
    ab[i] = allPairs(f.m[i][0], f.m[i][1]);
    ca[i] = allPairs(f.m[i][2], 0);
    offset[i] = all32(f.offset[i]);
  }
  // Of kVec / 2 samples.
  const auto words = [&](const Vec3& sums, int i) {
    const auto dot = [&](Vec abWords, Vec caWords) {
      return shiftRightSigned32<17>(addPairs(addPairs(offset[i], abWords, ab[i]), caWords, ca[i]));
    };
    return pack32(dot(low16(sums.a, sums.b), low16(sums.c, sums.a)),
                  dot(high16(sums.a, sums.b), high16(sums.c, sums.a)));
  };
  const auto sumsAt = [&](int k) {
    return Vec3{sumsOfFour(from[0] + 2 * k, rows, apart), sumsOfFour(from[1] + 2 * k, rows, apart),
                sumsOfFour(from[2] + 2 * k, rows, apart)};
  };
  for (int k = 0; k < (n + 1) / 2; k += 2 * step) {
    const Vec3 low = sumsAt(k), high = sumsAt(k + step);
    for (int i = 0; i < 2; ++i) store(to[i] + k, narrow(words(low, i), words(high, i)));
  }
}

}  // namespace qor
