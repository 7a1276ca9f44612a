// transforms_half.cpp: chroma that two pixels of a row share, from and to three channels.
//
// Two neighbours share a chroma sample, so its terms are double words that are added
// to the even and to the odd pixels alike, without being spread.
#include "bytesout.h"
#include "simd.h"
#include "transforms.h"

namespace qor {
namespace {

// The halves of a block of kVec pixels are, in each lane, its first and its last eight
// pixels, and the four chroma samples of each.
struct ChromaFactors {
  Vec factors[3], offsets[3], times;

  ChromaFactors(const FromHalf& f, bool swapped)
      : times(allPairs(f.timesChroma[swapped], f.timesChroma[!swapped])) {
    for (int i = 0; i < 3; ++i) {
      factors[i] = allPairs(f.chroma[i][swapped], f.chroma[i][!swapped]);
      offsets[i] = all32(f.offset[i]);
    }
  }

  // Of pairs of words.
  Vec term(int i, Vec pairs) const { return addPairs(offsets[i], pairs, factors[i]); }
};

// Luma of even and odd pixels.
struct LumaTerms {
  Vec firstEven, firstOdd, secondEven, secondOdd;

  // A channel's bytes, in the order of memory.
  Vec bytes(const Halves& chroma) const {
    return pack16(upperWords(add32(firstEven, chroma.first), add32(firstOdd, chroma.first)),
                  upperWords(add32(secondEven, chroma.second), add32(secondOdd, chroma.second)));
  }
};

struct LumaFactors {
  Vec times, ofEven, ofOdd;

  explicit LumaFactors(const FromHalf& f)
      : times(all16(f.timesLuma)), ofEven(allPairs(f.luma, 0)), ofOdd(allPairs(0, f.luma)) {}

  LumaTerms terms(const Halves& words) const {
    return ofProducts({multiply16(words.first, times), multiply16(words.second, times)});
  }
  // Of words that are multiplied already.
  LumaTerms ofProducts(const Halves& words) const {
    return {multiplyPairs(words.first, ofEven), multiplyPairs(words.first, ofOdd),
            multiplyPairs(words.second, ofEven), multiplyPairs(words.second, ofOdd)};
  }
};

inline Halves halves(Vec bytes) {
  return {low8(bytes, zero()), high8(bytes, zero())};
}

}  // namespace

void termsOfChroma(const TileRows& in, ChromaOrder order, int n, const FromHalf& f, ChromaTerms& terms) {
  const uint8_t *b = in.plane[1], *c = in.plane[2];
  const ChromaFactors factors(f, order == ChromaOrder::swappedPairs);
  for (int k = 0; k < (n + 1) / 2; k += kVec / 2) {
    Halves pairs;
    if (order == ChromaOrder::planes) {
      const Vec wordsB = widen(b + k), wordsC = widen(c + k);
      pairs = {low16(wordsB, wordsC), high16(wordsB, wordsC)};
    } else {
      pairs = halves(load(b + 2 * k));
    }
    pairs = {multiply16(pairs.first, factors.times), multiply16(pairs.second, factors.times)};
    for (int i = 0; i < 3; ++i) {
      store(terms.of[i] + k, factors.term(i, pairs.first));
      store(terms.of[i] + k + kVec / 4, factors.term(i, pairs.second));
    }
  }
}

void applyTerms(const uint8_t* luma, const ChromaTerms& terms, const BytesOut& out, int n,
                const FromHalf& f) {
  const LumaFactors factors(f);
  uint8_t rest[kVec];
  for (int i = 0; i < n; i += kVec) {
    const uint8_t* from = luma + i;
    if (n - i < kVec) from = static_cast<const uint8_t*>(__builtin_memcpy(rest, from, n - i));
    const LumaTerms bright = factors.terms(halves(load(from)));
    const auto chroma = [&](int c) {
      return Halves{load(terms.of[c] + i / 2), load(terms.of[c] + i / 2 + kVec / 4)};
    };
    put(out, i, n, {bright.bytes(chroma(0)), bright.bytes(chroma(1)), bright.bytes(chroma(2))});
  }
}

void applyPacked(const uint8_t* in, int lumaAt, bool swapped, uint8_t lastChroma, const BytesOut& out, int n,
                 const FromHalf& f) {
  const ChromaFactors colour(f, swapped);
  const LumaFactors brightness(f);
  // The products of the bytes of two pixels, of which one of each word counts.
  const int chromaShift = 8 * (1 - lumaAt), lumaShift = 8 * lumaAt;
  const Vec ofLuma = allPairs(f.timesLuma << lumaShift, f.timesLuma << lumaShift);
  const Vec ofChroma =
      allPairs(f.timesChroma[swapped] << chromaShift, f.timesChroma[!swapped] << chromaShift);
  uint8_t rest[2 * kVec];
  for (int i = 0; i < n; i += kVec) {
    const uint8_t* from = in + 2 * i;
    if (n - i < kVec) {
      from = static_cast<const uint8_t*>(__builtin_memcpy(rest, from, 2 * (n - i)));
      rest[2 * (n - i) + 1 - lumaAt] = lastChroma;
    }
    const Halves both = loadAlternateLanes(from);
    const LumaTerms bright =
        brightness.ofProducts({multiplyBytes(both.first, ofLuma), multiplyBytes(both.second, ofLuma)});
    const Halves pairs = {multiplyBytes(both.first, ofChroma), multiplyBytes(both.second, ofChroma)};
    const auto chroma = [&](int c) {
      return Halves{colour.term(c, pairs.first), colour.term(c, pairs.second)};
    };
    put(out, i, n, {bright.bytes(chroma(0)), bright.bytes(chroma(1)), bright.bytes(chroma(2))});
  }
}

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
