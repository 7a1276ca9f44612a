// transforms_luma.cpp: luma and two chroma channels to three colours.
//
// Sums are words that saturate, less 128 and so wide that what a result needs fits.
// Where pixels share a chroma sample its terms are made once.
#include "bytesout.h"
#include "simd.h"
#include "transforms.h"

namespace qor {
namespace {

// (byte - 128) << 8 of kVec bytes, in lanes.
inline Halves centred(Vec bytes) {
  const Vec v = bitXor(bytes, all8(128));
  return {low8(zero(), v), high8(zero(), v)};
}
inline Halves multiply(const Halves& words, Vec factor) {
  return {multiplyRounded16(words.first, factor), multiplyRounded16(words.second, factor)};
}
inline Halves add(const Halves& a, const Halves& b) {
  return {add16(a.first, b.first), add16(a.second, b.second)};
}
inline Halves saturatingAdd(const Halves& a, const Halves& b) {
  return {saturatingAdd16(a.first, b.first), saturatingAdd16(a.second, b.second)};
}
inline Vec saturatingAdd(Vec a, Vec b) {
  return saturatingAdd16(a, b);
}
// Red or blue.
template <bool halved, class Words>
Words withEnd(const Words& luma, const Words& term) {
  const Words sum = saturatingAdd(luma, term);
  return halved ? saturatingAdd(sum, term) : sum;
}

struct Factors {
  Vec luma, offset, red, greenB, greenC, blue, times;

  explicit Factors(const FromLuma& f)
      : luma(all16(f.luma)),
        offset(all16(f.offset)),
        red(all16(f.red)),
        greenB(all16(f.greenB)),
        greenC(all16(f.greenC)),
        blue(all16(f.blue)),
        times(all16(f.times)) {}

  // Of bytes as upper ones of words.
  Vec ofLuma(Vec words) const { return add16(multiplyHighUnsigned16(words, luma), offset); }
  Halves ofLumaBytes(Vec bytes) const { return {ofLuma(low8(zero(), bytes)), ofLuma(high8(zero(), bytes))}; }

  Vec bytes(const Halves& sums) const {
    return bitXor(packSigned16(multiplyHigh16(sums.first, times), multiplyHigh16(sums.second, times)),
                  all8(128));
  }
};

// Red and blue exchanged, and with them the chroma that each is made of.
FromLuma exchanged(const FromLuma& f) {
  return {f.luma, f.offset, f.blue, f.greenC, f.greenB, f.red, f.times, f.halved};
}
FromLuma inOrder(const FromLuma& f, bool swapped) {
  return swapped ? exchanged(f) : f;
}

// Pixels each of which has its own chroma.
template <bool halved>
struct OfPlanes {
  const uint8_t *a, *b, *c;
  Factors f;

  Vec3 at(int i) const {
    const Halves luma = f.ofLumaBytes(load(a + i)), ofB = centred(load(b + i)), ofC = centred(load(c + i));
    const Halves green = add(multiply(ofB, f.greenB), multiply(ofC, f.greenC));
    return {f.bytes(withEnd<halved>(luma, multiply(ofC, f.red))), f.bytes(saturatingAdd(luma, green)),
            f.bytes(withEnd<halved>(luma, multiply(ofB, f.blue)))};
  }
  Vec3 last(int i, int) const { return at(i); }
  void move(ptrdiff_t) {}  // there is one row only
};

}  // namespace

void coloursOfPlanes(const TileRows& in, const BytesOut& out, int n, const FromLuma& f) {
  const uint8_t *a = in.plane[0], *b = in.plane[out.swapped ? 2 : 1], *c = in.plane[out.swapped ? 1 : 2];
  const Factors factors(inOrder(f, out.swapped));
  f.halved ? putAll(out, OfPlanes<true>{a, b, c, factors}, n)
           : putAll(out, OfPlanes<false>{a, b, c, factors}, n);
}

namespace {

inline Halves loadBoth(const int16_t* p) {
  return {load(p), load(p + kVec / 2)};
}
// Each word twice.
inline void storeRepeated(int16_t* p, Vec words) {
  store(p, low16(words, words));
  store(p + kVec / 2, high16(words, words));
}

}  // namespace

void termsOfChroma(const TileRows& in, ChromaOrder order, int n, const FromLuma& fromLuma,
                   ChromaTerms& terms) {
  const uint8_t *b = in.plane[1], *c = in.plane[2];
  const Factors f(fromLuma);
  const Vec middle = all16(0x8000), upper = all16(0xFF00);
  for (int k = 0; k < (n + 1) / 2; k += kVec / 2) {
    Vec ofB, ofC;
    if (order == ChromaOrder::planes) {
      ofB = shiftLeft16<8>(widen(b + k));
      ofC = shiftLeft16<8>(widen(c + k));
    } else {
      const Vec pairs = load(b + 2 * k), evens = shiftLeft16<8>(pairs), odds = bitAnd(pairs, upper);
      ofB = order == ChromaOrder::pairs ? evens : odds;
      ofC = order == ChromaOrder::pairs ? odds : evens;
    }
    ofB = bitXor(ofB, middle);
    ofC = bitXor(ofC, middle);
    const Vec red = multiplyRounded16(ofC, f.red), blue = multiplyRounded16(ofB, f.blue),
              green = add16(multiplyRounded16(ofB, f.greenB), multiplyRounded16(ofC, f.greenC));
    storeRepeated(terms.red + 2 * k, red);
    storeRepeated(terms.green + 2 * k, green);
    storeRepeated(terms.blue + 2 * k, blue);
  }
}

namespace {

template <bool halved>
struct OfTerms {
  const uint8_t* luma;
  const int16_t *first, *second, *third;
  Factors f;

  Vec3 made(Vec bytes, int i) const {
    const Halves v = f.ofLumaBytes(bytes);
    return {f.bytes(withEnd<halved>(v, loadBoth(first + i))), f.bytes(saturatingAdd(v, loadBoth(second + i))),
            f.bytes(withEnd<halved>(v, loadBoth(third + i)))};
  }
  Vec3 at(int i) const { return made(load(luma + i), i); }
  Vec3 last(int i, int count) const {
    uint8_t rest[kVec];
    return made(load(__builtin_memcpy(rest, luma + i, count)), i);
  }
  void move(ptrdiff_t step) { luma += step; }
};

}  // namespace

void applyTerms(const uint8_t* luma, const RowSet& rows, const ChromaTerms& terms, const BytesOut& out, int n,
                const FromLuma& f) {
  const int16_t *first = out.swapped ? terms.blue : terms.red, *third = out.swapped ? terms.red : terms.blue;
  const Factors factors(f);
  f.halved ? putAll(out, OfTerms<true>{luma, first, terms.green, third, factors}, n, rows)
           : putAll(out, OfTerms<false>{luma, first, terms.green, third, factors}, n, rows);
}

namespace {

// Words of pixels in turn: luma in one byte, in the other the chroma of two pixels. What
// the first colour is made of lies in the even words or in the odd ones.
template <int lumaAt, bool firstIsEven, bool halved>
struct OfPacked {
  const uint8_t* in;
  uint8_t lastChroma;
  Factors f;
  Vec ofEnds = pairsOf(firstIsEven ? f.red : f.blue, firstIsEven ? f.blue : f.red);
  Vec ofMiddle = pairsOf(firstIsEven ? f.greenC : f.greenB, firstIsEven ? f.greenB : f.greenC);

  struct Sums {
    Vec red, green, blue;
  };
  template <bool upper>
  static Vec byteOf(Vec words) {
    return upper ? bitAnd(words, all16(0xFF00)) : shiftLeft16<8>(words);
  }
  Sums sums(Vec pixels) const {
    const Vec luma = f.ofLuma(byteOf<lumaAt == 1>(pixels));
    const Vec chroma = bitXor(byteOf<lumaAt == 0>(pixels), all16(0x8000));
    const Vec ends = multiplyRounded16(chroma, ofEnds), middle = multiplyRounded16(chroma, ofMiddle);
    const Vec even = withEnd<halved>(luma, evenWords(ends)), odd = withEnd<halved>(luma, oddWords(ends));
    return {firstIsEven ? even : odd, saturatingAdd16(luma, add16(middle, exchangedWords(middle))),
            firstIsEven ? odd : even};
  }
  Vec3 made(const uint8_t* from) const {
    const Halves both = loadAlternateLanes(from);
    const Sums a = sums(both.first), b = sums(both.second);
    return {f.bytes({a.red, b.red}), f.bytes({a.green, b.green}), f.bytes({a.blue, b.blue})};
  }
  Vec3 at(int i) const { return made(in + 2 * i); }
  Vec3 last(int i, int count) const {
    uint8_t rest[2 * kVec];
    __builtin_memcpy(rest, in + 2 * i, 2 * count);
    rest[2 * count + 1 - lumaAt] = lastChroma;
    return made(rest);
  }
  void move(ptrdiff_t) {}
};

template <bool halved>
void putPacked(const uint8_t* in, int lumaAt, bool firstIsEven, uint8_t lastChroma, const BytesOut& out,
               int n, const Factors& f) {
  if (lumaAt == 0)
    return firstIsEven ? putAll(out, OfPacked<0, true, halved>{in, lastChroma, f}, n)
                       : putAll(out, OfPacked<0, false, halved>{in, lastChroma, f}, n);
  firstIsEven ? putAll(out, OfPacked<1, true, halved>{in, lastChroma, f}, n)
              : putAll(out, OfPacked<1, false, halved>{in, lastChroma, f}, n);
}

}  // namespace

void applyPacked(const uint8_t* in, int lumaAt, bool swapped, uint8_t lastChroma, const BytesOut& out, int n,
                 const FromLuma& f) {
  // Red is made of the second of a pair's samples.
  const bool firstIsEven = swapped != out.swapped;
  (f.halved ? putPacked<true> : putPacked<false>)(in, lumaAt, firstIsEven, lastChroma, out, n,
                                                  Factors(inOrder(f, out.swapped)));
}

}  // namespace qor
