// transforms_half.cpp: three channels to luma, and to chroma that two pixels of a row share.
#include "simd.h"
#include "transforms.h"

namespace qor {
namespace {

struct LumaWeights {
  Vec a, b, c, offset;

  // Of colours that come with c first, if swapped.
  LumaWeights(const Luma& f, bool swapped)
      : a(all16(f.of[swapped ? 2 : 0])),
        b(all16(f.of[1])),
        c(all16(f.of[swapped ? 0 : 2])),
        offset(all16(f.offset)) {}

  Vec words(Vec ofA, Vec ofB, Vec ofC) const {
    const Vec sum = add16(multiplyHighUnsigned16(ofA, a), multiplyHighUnsigned16(ofB, b));
    return shiftRight16<8>(add16(add16(sum, offset), multiplyHighUnsigned16(ofC, c)));
  }
  Vec bytes(const Vec3& v) const {
    return pack16(words(low8(zero(), v.a), low8(zero(), v.b), low8(zero(), v.c)),
                  words(high8(zero(), v.a), high8(zero(), v.b), high8(zero(), v.c)));
  }
};

inline void storeUpTo(uint8_t* to, Vec bytes, int n) {
  if (n >= kVec) return store(to, bytes);
  uint8_t rest[kVec];
  store(rest, bytes);
  __builtin_memcpy(to, rest, n);
}

}  // namespace

void applyLuma(const TileRows& in, const TileRows& out, int n, const Matrix& matrix) {
  const uint8_t *a = in.plane[0], *b = in.plane[1], *c = in.plane[2];
  uint8_t* to = out.plane[0];
  const LumaWeights weights(matrix.luma, false);
  for (int i = 0; i < n; i += kVec)
    storeUpTo(to + i, weights.bytes({load(a + i), load(b + i), load(c + i)}), n - i);
}

void lumaOfThree(const uint8_t* in, uint8_t* luma, int n, const Matrix& matrix) {
  const LumaWeights weights(matrix.luma, false);
  uint8_t rest[3 * kVec];
  for (int i = 0; i < n; i += kVec) {
    const uint8_t* from = in + 3 * i;
    if (n - i < kVec) from = static_cast<const uint8_t*>(__builtin_memcpy(rest, from, 3 * (n - i)));
    storeUpTo(luma + i, weights.bytes(load3<1>(from)), n - i);
  }
}

namespace {

// Sums of four samples of a channel, kVec / 2 of them, that lie in two rows.
inline Vec sumsOfFour(Vec first, Vec second) {
  return add16(sumsOfPairs(first), sumsOfPairs(second));
}
inline Vec3 sumsOfFour(const Vec3& first, const Vec3& second) {
  return {sumsOfFour(first.a, second.a), sumsOfFour(first.b, second.b), sumsOfFour(first.c, second.c)};
}

struct ChromaWeights {
  Vec of[2], offset[2];

  ChromaWeights(const ToHalf& f, bool swapped) {
    for (int i = 0; i < 2; ++i) {
      of[i] = allPairs(f.m[i][swapped], f.m[i][!swapped]);
      offset[i] = all32(f.offset[i]);
    }
  }

  // Of kVec / 2 samples.
  void put(uint8_t* b, uint8_t* c, const Vec3& sums) const {
    const Vec ab = subtract16(sums.a, sums.b), cb = subtract16(sums.c, sums.b);
    const Vec low = low16(ab, cb), high = high16(ab, cb);
    const auto words = [&](int i) {
      return pack32(shiftRightSigned32<17>(addPairs(offset[i], low, of[i])),
                    shiftRightSigned32<17>(addPairs(offset[i], high, of[i])));
    };
    storeNarrow(b, words(0), c, words(1));
  }
};

// n pixels of three bytes, and the last again if another completes its pair.
inline const uint8_t* withWholePairs(const uint8_t* pixels, int n, uint8_t* room) {
  __builtin_memcpy(room, pixels, 3 * n);
  __builtin_memcpy(room + 3 * n, pixels + 3 * (n - 1), 3);
  return room;
}

template <int rows>
[[gnu::noinline]] void halve(const PixelRows& from, int n, uint8_t* b, uint8_t* c, const LumaWeights& w,
                             const ChromaWeights& chromaWeights) {
  // Copies, which no store could change.
  const LumaWeights luma = w;
  const ChromaWeights chroma = chromaWeights;
  const PixelRows r = from;
  uint8_t rest[2][3 * kVec + 3];
  for (int i = 0; i < n; i += kVec) {
    Vec3 v[2];
    for (int k = 0; k < rows; ++k) {
      const uint8_t* pixels = r.pixels[k] + 3 * i;
      v[k] = load3<1>(n - i < kVec ? withWholePairs(pixels, n - i, rest[k]) : pixels);
      storeUpTo(r.luma[k] + i, luma.bytes(v[k]), n - i);
    }
    chroma.put(b + i / 2, c + i / 2, sumsOfFour(v[0], v[rows - 1]));
  }
}

}  // namespace

void halveThree(const PixelRows& from, bool swapped, int n, uint8_t* b, uint8_t* c, const Matrix& matrix) {
  const LumaWeights luma(matrix.luma, swapped);
  const ChromaWeights chroma(matrix.toHalf, swapped);
  from.pixels[1] ? halve<2>(from, n, b, c, luma, chroma) : halve<1>(from, n, b, c, luma, chroma);
}

void chromaOfPairs(const TileRows& in, int rows, int apart, const TileRows& out, int n, const ToHalf& f) {
  for (int p = 0; p < 3 && n % 2 != 0; ++p)
    for (int r = 0; r < rows; ++r) {
      uint8_t* last = in.plane[p] + r * apart + n - 1;
      last[1] = last[0];
    }
  const ChromaWeights weights(f, false);
  const auto at = [&](int row, int i) {
    const int place = row * apart + i;
    return Vec3{load(in.plane[0] + place), load(in.plane[1] + place), load(in.plane[2] + place)};
  };
  for (int i = 0; i < n; i += kVec)
    weights.put(out.plane[1] + i / 2, out.plane[2] + i / 2, sumsOfFour(at(0, i), at(rows - 1, i)));
}

}  // namespace qor
