// formats_422.cpp: two pixels in four bytes, with one Cb and one Cr between them.
#include "formats.h"
#include "packed422.h"
#include "pairs.h"
#include "simd.h"

namespace qor {
namespace {

// The even and the odd words of a vector, each twice.
inline Vec twiceEven(Vec v) {
  return bitOr(bitAnd(v, all32(0xFFFF)), shiftLeft32<16>(v));
}
inline Vec twiceOdd(Vec v) {
  return bitOr(shiftRight32<16>(v), bitAnd(v, all32(static_cast<int>(0xFFFF0000u))));
}

// luma and chroma: offsets of the first of each in a pair of pixels.
template <int luma, int chroma>
void loadPairs(const Source& s, const Place& at, const TileRows& out) {
  const uint8_t* in = s.row(0, at.y) + static_cast<ptrdiff_t>(at.x) * 2;
  uint8_t *y = out.row(0, 0), *cb = out.row(1, 0), *cr = out.row(2, 0);
  uint8_t rest[2 * kVec];
  for (int i = 0; i < at.n; i += kVec) {
    const uint8_t* from = in + 2 * i;
    if (at.n - i < kVec) from = static_cast<const uint8_t*>(__builtin_memcpy(rest, from, 2 * (at.n - i)));
    const Vec first = load(from), second = load(from + kVec);
    const Vec chroma1 = byteOf<chroma>(first), chroma2 = byteOf<chroma>(second);
    store(y + i, narrow(byteOf<luma>(first), byteOf<luma>(second)));
    store(cb + i, narrow(twiceEven(chroma1), twiceEven(chroma2)));
    store(cr + i, narrow(twiceOdd(chroma1), twiceOdd(chroma2)));
  }
  if (at.n % 2 == 0) return;
  const int last = at.n - 1;
  // The pair's other half lies beyond the row: take that of the pair before.
  cr[last] = at.x + last > 0 ? in[2 * last + chroma - 2] : kNeutralChroma;
}

// The rounded mean of each pair of kVec / 2 bytes, in double words.
inline Vec pairMeans(const uint8_t* bytes) {
  return shiftRight32<1>(add32(multiplyPairs(widen(bytes), all16(1)), all32(1)));
}

template <int luma, int chroma>
void storePairs(const Target& d, const Place& at, const TileRows& in) {
  constexpr int pixels = kVec / 2;
  uint8_t* out = d.row(0, at.y) + static_cast<ptrdiff_t>(at.x) * 2;
  uint8_t *y = in.row(0, 0), *cb = in.row(1, 0), *cr = in.row(2, 0);
  cb[at.n] = cb[at.n - 1];  // an odd last pixel is a pair by itself
  for (int i = 0; i < at.n; i += pixels) {
    const Vec both = bitOr(pairMeans(cb + i), shiftLeft32<16>(pairMeans(cr + i)));
    const Vec bright = widen(y + i);
    const Vec pairs = luma == 0 ? bitOr(bright, shiftLeft16<8>(both)) : bitOr(both, shiftLeft16<8>(bright));
    if (at.n - i >= pixels) {
      store(out + 2 * i, pairs);
    } else {
      uint8_t rest[kVec];
      store(rest, pairs);
      __builtin_memcpy(out + 2 * i, rest, 2 * (at.n - i));
    }
  }
}

template <int luma>
void storeBoth(const Target& d, const Place& at, const TileRows& in) {
  uint8_t* out = d.row(0, at.y) + static_cast<ptrdiff_t>(at.x) * 2;
  const uint8_t *y = in.row(0, 0), *cb = in.row(1, 0), *cr = in.row(2, 0);
  uint8_t chroma[kRowBytes];
  mergePairs(cb, cr, (at.n + 1) / 2, chroma);
  luma == 0 ? mergePairs(y, chroma, at.n, out) : mergePairs(chroma, y, at.n, out);
}

int ownLine(int y, int) {
  return y;
}
LineSet ownLines(int c, int rows) {
  return {c, 1, c < rows ? 1 : 0};
}

template <int luma>
constexpr HalfChroma kHalfPairs = {true,           luma, 2, ownLine, ownLines, nullptr, splitBoth<luma>,
                                   storeBoth<luma>};

template <int luma, int chroma>
constexpr Format pairs() {
  return {1,
          2,
          0,
          1,
          1,
          3,
          {loadPairs<luma, chroma>, nullptr, nullptr},
          {storePairs<luma, chroma>, nullptr, nullptr},
          &kHalfPairs<luma>};
}

}  // namespace

const Format kYuyv = pairs<0, 1>();
const Format kUyvy = pairs<1, 0>();

}  // namespace qor
