// formats_chroma.cpp: luma with chroma of a lower resolution, in planes.
#include "formats.h"
#include "pairs.h"
#include "simd.h"

namespace qor {
namespace {

// How chroma lines lie about the luma lines.
enum class Lines { same, half, quarter, interlaced, filtered };

// The chroma line of luma line y. Interlaced: two lines that are left at the
// lower edge have one chroma line between them.
constexpr int chromaLine(Lines lines, int y, int height) {
  if (lines == Lines::same) return y;
  if (lines == Lines::quarter) return y >> 2;
  if (lines != Lines::interlaced) return y >> 1;
  const bool halfGroup = height - (y & ~3) == 2;
  return (y >> 2) * 2 + (halfGroup ? 0 : y & 1);
}

// 3/4 of line y/2 and 1/4 of the next line on the other side of y, for the
// bytes from `first`.
const uint8_t* filteredLine(const Source& s, int plane, int y, int first, int bytes, uint8_t* out) {
  const int near = y >> 1, beyond = near + (y & 1 ? 1 : -1);
  const int far = beyond < s.firstChroma || beyond > s.lastChroma ? near : beyond;
  const uint8_t *n = s.row(plane, near) + first, *f = s.row(plane, far) + first;
  for (int i = 0; i < bytes; ++i) out[i] = static_cast<uint8_t>((3 * n[i] + f[i] + 2) >> 2);
  return out;
}

template <Lines lines>
const uint8_t* chromaBytes(const Source& s, int plane, const Place& at, int first, int bytes, uint8_t* room) {
  if (lines == Lines::filtered) return filteredLine(s, plane, at.y, first, bytes, room);
  return s.row(plane, chromaLine(lines, at.y, at.height)) + first;
}

// n samples of one byte to 2n pixels; rows of a tile have room for whole vectors.
void repeatTwice(const uint8_t* in, int n, uint8_t* out) {
  constexpr int step = kVec / 2;
  uint8_t rest[step];
  for (int i = 0; i < n; i += step) {
    const uint8_t* from = in + i;
    if (n - i < step) from = static_cast<const uint8_t*>(__builtin_memcpy(rest, from, n - i));
    const Vec v = widen(from);
    store(out + 2 * i, bitOr(v, shiftLeft16<8>(v)));
  }
}

// n pairs to 2n pixels of both.
void repeatPairsTwice(const uint8_t* in, int n, uint8_t* first, uint8_t* second) {
  constexpr int step = kVec / 2;
  const Vec low = all16(0xFF), high = all16(static_cast<int>(0xFF00));
  uint8_t rest[kVec];
  for (int i = 0; i < n; i += step) {
    const uint8_t* from = in + 2 * i;
    if (n - i < step) from = static_cast<const uint8_t*>(__builtin_memcpy(rest, from, 2 * (n - i)));
    const Vec v = load(from);
    store(first + 2 * i, bitOr(bitAnd(v, low), shiftLeft16<8>(v)));
    store(second + 2 * i, bitOr(shiftRight16<8>(v), bitAnd(v, high)));
  }
}

constexpr int samples(int n, int hshift) {
  return (n + (1 << hshift) - 1) >> hshift;
}

// Chroma samples of n pixels to all of them.
template <int hshift>
void spread(const uint8_t* in, int n, uint8_t* out) {
  static_assert(hshift == 1 || hshift == 2);
  if (hshift == 1) return repeatTwice(in, samples(n, 1), out);
  uint8_t twice[kTilePixels / 2 + kVec];
  repeatTwice(in, samples(n, 2), twice);
  repeatTwice(twice, samples(n, 1), out);
}

template <int hshift, Lines lines>
void loadThree(const Source& s, const Place& at, const TileRows& out) {
  uint8_t room[kTilePixels];
  __builtin_memcpy(out.row(0, 0), s.row(0, at.y) + at.x, at.n);
  for (int p = 1; p < 3; ++p)
    spread<hshift>(chromaBytes<lines>(s, p, at, at.x >> hshift, samples(at.n, hshift), room), at.n,
                   out.row(p, 0));
}

template <int hshift, Lines lines>
void loadTwo(const Source& s, const Place& at, const TileRows& out) {
  uint8_t room[2 * kTilePixels];
  __builtin_memcpy(out.row(0, 0), s.row(0, at.y) + at.x, at.n);
  const uint8_t* in = chromaBytes<lines>(s, 1, at, (at.x >> hshift) * 2, 2 * samples(at.n, hshift), room);
  if constexpr (hshift == 1) return repeatPairsTwice(in, samples(at.n, 1), out.row(1, 0), out.row(2, 0));
  uint8_t twice[2][kTilePixels / 2 + kVec];
  repeatPairsTwice(in, samples(at.n, 2), twice[0], twice[1]);
  for (int p = 1; p < 3; ++p) repeatTwice(twice[p - 1], samples(at.n, 1), out.row(p, 0));
}

// Mean, rounded half up, of the blocks of 2^hshift pixels in a set of lines.
template <int hshift, int stride>
void averageBlocks(const TileRows& in, int plane, const LineSet& lines, int n, uint8_t* out) {
  constexpr int width = 1 << hshift;
  uint16_t sums[kTilePixels];
  const uint8_t* line = in.row(plane, lines.first);
  for (int i = 0; i < n; ++i) sums[i] = line[i];
  for (int r = 1; r < lines.count; ++r) {
    line += lines.apart * kRowBytes;
    for (int i = 0; i < n; ++i) sums[i] = static_cast<uint16_t>(sums[i] + line[i]);
  }
  const int whole = n >> hshift, rest = n & (width - 1), area = lines.count << hshift;
  const auto mean = [](int sum, int count) { return static_cast<uint8_t>((2 * sum + count) / (2 * count)); };
  for (int i = 0; i < whole; ++i) {
    int sum = 0;
    for (int k = 0; k < width; ++k) sum += sums[i * width + k];
    // Areas are powers of two but for a 16:2:0 block of three lines; none
    // gets a slow division.
    out[i * stride] =
        area == 12 ? mean(sum, 12) : static_cast<uint8_t>((sum + area / 2) >> __builtin_ctz(area));
  }
  if (rest == 0) return;
  int sum = 0;
  for (int k = whole * width; k < n; ++k) sum += sums[k];
  out[whole * stride] = mean(sum, rest * lines.count);
}

// The lines of a group for its chroma line c; none beyond the last.
LineSet linesOf(Lines lines, int c, int rows) {
  if (lines == Lines::same) return {c, 1, c < rows ? 1 : 0};
  if (lines != Lines::interlaced || rows < 3) return {0, 1, c == 0 ? rows : 0};
  return {c, 2, c < 2 ? (rows - c + 1) / 2 : 0};
}

// Sums of pairs of pixels, kVec of them, over the lines of a set, in words.
inline Vec pairSums(const uint8_t* line, const LineSet& lines) {
  Vec sum = zero();
  for (int r = 0; r < lines.count; ++r) {
    const Vec v = load(line + r * lines.apart * kRowBytes);
    sum = add16(sum, add16(bitAnd(v, all16(0xFF)), shiftRight16<8>(v)));
  }
  return sum;
}

// Means of kVec pixels, rounded half up, in words, for sets of 1, 2 or 4 lines.
inline Vec pairMeans(const uint8_t* line, const LineSet& lines) {
  const Vec sum = add16(pairSums(line, lines), all16(lines.count));
  return lines.count == 1   ? shiftRight16<1>(sum)
         : lines.count == 2 ? shiftRight16<2>(sum)
                            : shiftRight16<3>(sum);
}

// What averageBlocks does for pairs of pixels. An odd last pixel is paired with
// its copy, in the tile.
void averagePairs(const TileRows& in, int plane, const LineSet& lines, int n, uint8_t* out) {
  uint8_t* line = in.row(plane, lines.first);
  if (n % 2 != 0)
    for (int r = 0; r < lines.count; ++r) {
      uint8_t* last = line + r * lines.apart * kRowBytes + n - 1;
      last[1] = last[0];
    }
  const int whole = (n + 1) / 2;
  for (int i = 0; i < whole; i += kVec) {
    const Vec means = narrow(pairMeans(line + 2 * i, lines), pairMeans(line + 2 * i + kVec, lines));
    if (whole - i >= kVec) {
      store(out + i, means);
    } else {
      uint8_t rest[kVec];
      store(rest, means);
      __builtin_memcpy(out + i, rest, whole - i);
    }
  }
}

// The same for Cb and Cr, as pairs.
void averageBoth(const TileRows& in, const LineSet& lines, int n, uint8_t* out) {
  constexpr int step = kVec / 2;
  for (int p = 1; p < 3 && n % 2 != 0; ++p)
    for (int r = 0; r < lines.count; ++r) {
      uint8_t* last = in.row(p, lines.first) + r * lines.apart * kRowBytes + n - 1;
      last[1] = last[0];
    }
  const uint8_t *cb = in.row(1, lines.first), *cr = in.row(2, lines.first);
  const int whole = (n + 1) / 2;
  for (int i = 0; i < whole; i += step) {
    const Vec both = bitOr(pairMeans(cb + 2 * i, lines), shiftLeft16<8>(pairMeans(cr + 2 * i, lines)));
    if (whole - i >= step) {
      store(out + 2 * i, both);
    } else {
      uint8_t rest[kVec];
      store(rest, both);
      __builtin_memcpy(out + 2 * i, rest, 2 * (whole - i));
    }
  }
}

// stride 1: Cb and Cr in planes 1 and 2; 2: pairs in plane 1.
template <int hshift, Lines lines, int stride>
void storeChroma(const Target& d, const Place& at, const TileRows& in) {
  for (int r = 0; r < at.rows; ++r) __builtin_memcpy(d.row(0, at.y + r) + at.x, in.row(0, r), at.n);
  const int firstLine = chromaLine(lines, at.y, at.height);
  for (int c = 0;; ++c) {
    const LineSet set = linesOf(lines, c, at.rows);
    if (set.count == 0) break;
    const bool pairsOnly = hshift == 1 && set.count != 3;
    if (pairsOnly && stride == 2) {
      averageBoth(in, set, at.n, d.row(1, firstLine + c) + at.x);
      continue;
    }
    for (int p = 1; p < 3; ++p) {
      uint8_t* out = d.row(stride == 1 ? p : 1, firstLine + c) + (at.x >> hshift) * stride;
      if (pairsOnly)
        averagePairs(in, p, set, at.n, out);
      else
        averageBlocks<hshift, stride>(in, p, set, at.n, stride == 1 ? out : out + (p - 1));
    }
  }
}

// Of a format with half its chroma. Filtered chroma differs from row to row.
template <Lines lines>
int sharedLine(int y, int height) {
  return lines == Lines::filtered ? y : chromaLine(lines, y, height);
}
template <Lines lines>
LineSet sharingLines(int c, int rows) {
  return linesOf(lines, c, rows);
}

template <Lines lines, int stride>
void loadHalf(const Source& s, const Place& at, const TileRows& out) {
  const int bytes = samples(at.n, 1) * stride;
  uint8_t room[2 * kTilePixels];
  for (int p = 1; p < (stride == 2 ? 2 : 3); ++p) {
    const uint8_t* in = chromaBytes<lines>(s, p, at, at.x / 2 * stride, bytes, room);
    __builtin_memcpy(out.row(p, 0), in, bytes);
  }
}

template <Lines lines>
void splitHalf(const Source& s, const Place& at, const TileRows& out) {
  const int n = samples(at.n, 1);
  uint8_t room[2 * kTilePixels];
  splitPairs(chromaBytes<lines>(s, 1, at, at.x, 2 * n, room), n, out.row(1, 0), out.row(2, 0));
}

template <Lines lines, int stride>
void storeHalf(const Target& d, const Place& at, const TileRows& in) {
  const int firstLine = chromaLine(lines, at.y, at.height), n = samples(at.n, 1);
  for (int c = 0; linesOf(lines, c, at.rows).count != 0; ++c) {
    if (stride == 2) {
      mergePairs(in.row(1, c), in.row(2, c), n, d.row(1, firstLine + c) + at.x);
      continue;
    }
    for (int p = 1; p < 3; ++p) __builtin_memcpy(d.row(p, firstLine + c) + at.x / 2, in.row(p, c), n);
  }
}

template <Lines lines, int stride>
constexpr HalfChroma kHalfChroma = {false,
                                    0,
                                    stride,
                                    sharedLine<lines>,
                                    sharingLines<lines>,
                                    loadHalf<lines, stride>,
                                    stride == 2 ? splitHalf<lines> : loadHalf<lines, stride>,
                                    storeHalf<lines, stride>};

constexpr int groupRows(Lines lines) {
  if (lines == Lines::same) return 1;
  return lines == Lines::half || lines == Lines::filtered ? 2 : 4;
}

template <int hshift, Lines lines>
constexpr Format threePlanes() {
  return {3,
          1,
          1,
          hshift,
          groupRows(lines),
          3,
          {loadThree<hshift, lines>, nullptr, nullptr},
          {storeChroma<hshift, lines, 1>, nullptr, nullptr},
          hshift == 1 ? &kHalfChroma<lines, 1> : nullptr};
}

template <int hshift, Lines lines>
constexpr Format twoPlanes() {
  return {2,
          1,
          2,
          hshift,
          groupRows(lines),
          3,
          {loadTwo<hshift, lines>, nullptr, nullptr},
          {storeChroma<hshift, lines, 2>, nullptr, nullptr},
          hshift == 1 ? &kHalfChroma<lines, 2> : nullptr};
}

}  // namespace

const Format kP3x422 = threePlanes<1, Lines::same>();
const Format kP3x411 = threePlanes<2, Lines::same>();
const Format kP3x1620 = threePlanes<2, Lines::quarter>();
const Format kP3x420 = threePlanes<1, Lines::half>();
const Format kP3x420Interlaced = threePlanes<1, Lines::interlaced>();
const Format kP3x420Filtered = threePlanes<1, Lines::filtered>();
const Format kP2x411 = twoPlanes<2, Lines::same>();
const Format kP2x420 = twoPlanes<1, Lines::half>();
const Format kP2x420Filtered = twoPlanes<1, Lines::filtered>();

}  // namespace qor
