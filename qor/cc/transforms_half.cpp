// transforms_half.cpp: chroma that two pixels of a row share, from and to three channels.
//
// Two neighbours share a chroma sample, so its terms are double words that are added
// to the even and to the odd pixels alike, without being spread.
#include "simd.h"
#include "transforms.h"

namespace qor {

void termsOfChroma(const TileRows& in, int n, const FromHalf& f, ChromaTerms& terms) {
  constexpr int step = kVec / 2, lane = kVec / 4;
  const uint8_t *b = in.plane[1], *c = in.plane[2];
  const Vec timesB = all16(f.timesChroma[0]), timesC = all16(f.timesChroma[1]);
  Vec factors[3], offsets[3];
  for (int i = 0; i < 3; ++i) {
    factors[i] = allPairs(f.chroma[i][0], f.chroma[i][1]);
    offsets[i] = all32(f.offset[i]);
  }
  for (int k = 0; k < (n + 1) / 2; k += step) {
    const Vec wordsB = multiply16(widen(b + k), timesB), wordsC = multiply16(widen(c + k), timesC);
    const Vec low = low16(wordsB, wordsC), high = high16(wordsB, wordsC);
    for (int i = 0; i < 3; ++i) {
      store(terms.of[i] + k, addPairs(offsets[i], low, factors[i]));
      store(terms.of[i] + k + lane, addPairs(offsets[i], high, factors[i]));
    }
  }
}

void applyTerms(const TileRows& in, const ChromaTerms& terms, const TileRows& out, int n, const FromHalf& f) {
  constexpr int lane = kVec / 4;
  const uint8_t* a = in.plane[0];
  uint8_t* const to[3] = {out.plane[0], out.plane[1], out.plane[2]};
  const Vec times = all16(f.timesLuma), ofEven = allPairs(f.luma, 0), ofOdd = allPairs(0, f.luma);
  for (int i = 0; i < n; i += kVec) {
    const Vec bytes = load(a + i);
    const Vec low = multiply16(low8(bytes, zero()), times), high = multiply16(high8(bytes, zero()), times);
    const Vec lowEven = multiplyPairs(low, ofEven), lowOdd = multiplyPairs(low, ofOdd),
              highEven = multiplyPairs(high, ofEven), highOdd = multiplyPairs(high, ofOdd);
    for (int c = 0; c < 3; ++c) {
      const Vec first = load(terms.of[c] + i / 2), second = load(terms.of[c] + i / 2 + lane);
      store(to[c] + i, pack16(upperWords(add32(lowEven, first), add32(lowOdd, first)),
                              upperWords(add32(highEven, second), add32(highOdd, second))));
    }
  }
}

namespace {

// Sums of four samples, kVec / 2 of them.
inline Vec sumsOfFour(const uint8_t* row, int rows, int apart) {
  const auto pairs = [](const uint8_t* p) {
    const Vec v = load(p);
    return add16(bitAnd(v, all16(0xFF)), shiftRight16<8>(v));
  };
  const Vec first = pairs(row);
  return add16(first, rows == 1 ? first : pairs(row + apart));
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
