// formats_packed.cpp: interleaved channels, whole planes and 16-bit pixels.
#include "formats.h"
#include "packed16.h"
#include "simd.h"

namespace qor {
namespace {

// What is left of a row goes through a buffer, as no byte behind it may be touched;
// rows of a tile have room behind their end.
template <int size>
void loadThreeOf(const uint8_t* in, int n, const TileRows& out) {
  constexpr int pixels = kVec / size;
  uint8_t *a = out.plane[0], *b = out.plane[1], *c = out.plane[2], rest[3 * kVec];
  for (int i = 0; i < n; i += pixels) {
    const uint8_t* from = in + 3 * size * i;
    if (n - i < pixels) from = static_cast<const uint8_t*>(__builtin_memcpy(rest, from, 3 * size * (n - i)));
    const Vec3 v = load3<size>(from);
    store(a + size * i, v.a);
    store(b + size * i, v.b);
    store(c + size * i, v.c);
  }
}

template <int size>
void storeThreeOf(uint8_t* out, int n, const TileRows& in) {
  constexpr int pixels = kVec / size;
  const uint8_t *a = in.plane[0], *b = in.plane[1], *c = in.plane[2];
  uint8_t rest[3 * kVec];
  for (int i = 0; i < n; i += pixels) {
    uint8_t *whole = out + 3 * size * i, *to = n - i < pixels ? rest : whole;
    store3<size>(to, {load(a + size * i), load(b + size * i), load(c + size * i)});
    if (to == rest) __builtin_memcpy(whole, rest, 3 * size * (n - i));
  }
}

// Pixels of four bytes.
template <int channels>
void loadFourBytes(const uint8_t* in, int n, const TileRows& out) {
  uint8_t rest[4 * kVec];
  for (int i = 0; i < n; i += kVec) {
    const uint8_t* from = in + 4 * i;
    if (n - i < kVec) from = static_cast<const uint8_t*>(__builtin_memcpy(rest, from, 4 * (n - i)));
    const Vec4 v = load4(from);
    store(out.plane[0] + i, v.a);
    store(out.plane[1] + i, v.b);
    store(out.plane[2] + i, v.c);
    if (channels == 4) store(out.plane[3] + i, v.d);
  }
}

void storeFourBytes(uint8_t* out, int n, const TileRows& in) {
  const uint8_t *a = in.plane[0], *b = in.plane[1], *c = in.plane[2], *d = in.plane[3];
  uint8_t rest[4 * kVec];
  for (int i = 0; i < n; i += kVec) {
    uint8_t *whole = out + 4 * i, *to = n - i < kVec ? rest : whole;
    store4(to, {load(a + i), load(b + i), load(c + i), load(d + i)});
    if (to == rest) __builtin_memcpy(whole, rest, 4 * (n - i));
  }
}

// A pixel has `stride` elements, of which the first `channels` count.
template <class E, int stride, int channels>
void loadChannels(const Source& s, const Place& at, const TileRows& out) {
  const uint8_t* row = s.row(0, at.y) + static_cast<ptrdiff_t>(at.x) * stride * ptrdiff_t{sizeof(E)};
  if constexpr (stride == 3) return loadThreeOf<sizeof(E)>(row, at.n, out);
  if constexpr (sizeof(E) == 1 && stride == 4) return loadFourBytes<channels>(row, at.n, out);
  const E* in = reinterpret_cast<const E*>(row);
  E* plane[channels];
  for (int c = 0; c < channels; ++c) plane[c] = reinterpret_cast<E*>(out.row(c, 0));
  for (int i = 0; i < at.n; ++i)
    for (int c = 0; c < channels; ++c) plane[c][i].bits = in[i * stride + c].bits;
}

template <class E, int stride, int channels>
void storeChannels(const Target& d, const Place& at, const TileRows& in) {
  uint8_t* row = d.row(0, at.y) + static_cast<ptrdiff_t>(at.x) * stride * ptrdiff_t{sizeof(E)};
  if constexpr (stride == 3) return storeThreeOf<sizeof(E)>(row, at.n, in);
  // Not with an alpha that mustn't be written.
  if constexpr (sizeof(E) == 1 && channels == 4) return storeFourBytes(row, at.n, in);
  E* out = reinterpret_cast<E*>(row);
  const E* plane[channels];
  for (int c = 0; c < channels; ++c) plane[c] = reinterpret_cast<const E*>(in.row(c, 0));
  for (int i = 0; i < at.n; ++i)
    for (int c = 0; c < channels; ++c) out[i * stride + c].bits = plane[c][i].bits;
}

template <class E, int planes>
void loadPlanes(const Source& s, const Place& at, const TileRows& out) {
  for (int p = 0; p < planes; ++p)
    __builtin_memcpy(out.row(p, 0), s.row(p, at.y) + at.x * ptrdiff_t{sizeof(E)}, at.n * sizeof(E));
}

template <class E, int planes>
void storePlanes(const Target& d, const Place& at, const TileRows& in) {
  for (int p = 0; p < planes; ++p)
    __builtin_memcpy(d.row(p, at.y) + at.x * ptrdiff_t{sizeof(E)}, in.row(p, 0), at.n * sizeof(E));
}

// A field of 16-bit pixels as bytes in words: its high bits are repeated below.
template <int from, int bits>
inline Vec field(Vec pixels) {
  const Vec v = bitAnd(shiftRight16<from>(pixels), all16((1 << bits) - 1));
  return bitOr(shiftLeft16<8 - bits>(v), shiftRight16<2 * bits - 8>(v));
}

template <int bitsA, int bitsB, int bitsC>
void load16(const Source& s, const Place& at, const TileRows& out) {
  const Bytes2* in = reinterpret_cast<const Bytes2*>(s.row(0, at.y)) + at.x;
  uint8_t* __restrict a = out.row(0, 0), * __restrict b = out.row(1, 0), * __restrict c = out.row(2, 0);
  uint8_t rest[2 * kVec];
  for (int i = 0; i < at.n; i += kVec) {
    const void* from = in + i;
    if (at.n - i < kVec) from = __builtin_memcpy(rest, from, 2 * (at.n - i));
    const Vec low = load(from), high = load(static_cast<const uint8_t*>(from) + kVec);
    store(a + i, narrow(field<0, bitsA>(low), field<0, bitsA>(high)));
    store(b + i, narrow(field<bitsA, bitsB>(low), field<bitsA, bitsB>(high)));
    store(c + i, narrow(field<bitsA + bitsB, bitsC>(low), field<bitsA + bitsB, bitsC>(high)));
  }
}

// 0..15, each once, neighbours as unlike as possible (B. E. Bayer, ICC 1973).
constexpr uint8_t kBayer[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};

inline Vec bayerBytes(int y) {
  uint8_t bytes[kVec];
  for (int i = 0; i < kVec; ++i) bytes[i] = kBayer[y & 3][i & 3];
  return load(bytes);
}

// Of a channel that keeps its upper bits: a threshold below one step of it, 0..15 for
// 4 bits, comes first.
template <int bits, bool dither>
inline Vec dithered(const uint8_t* bytes, Vec bayer) {
  const Vec v = load(bytes);
  return dither ? saturatingAdd8(v, shiftedBytes<4 - bits, 0xF>(bayer)) : v;
}

template <int bitsA, int bitsB, int bitsC, bool dither>
void store16(const Target& d, const Place& at, const TileRows& in) {
  uint8_t* out = d.row(0, at.y) + ptrdiff_t{2} * at.x;
  const uint8_t *a = in.row(0, 0), *b = in.row(1, 0), *c = in.row(2, 0);
  const Vec bayer = bayerBytes(at.y);
  uint8_t rest[2 * kVec];
  for (int i = 0; i < at.n; i += kVec) {
    uint8_t *whole = out + 2 * i, *to = at.n - i < kVec ? rest : whole;
    storeFields<bitsA, bitsB, bitsC>(
        to, {dithered<bitsA, dither>(a + i, bayer), dithered<bitsB, dither>(b + i, bayer),
             dithered<bitsC, dither>(c + i, bayer)});
    if (to == rest) __builtin_memcpy(whole, rest, 2 * (at.n - i));
  }
}

template <int stride, int channels>
constexpr Format interleaved() {
  return {1,
          stride,
          0,
          0,
          1,
          channels,
          {loadChannels<Bytes1, stride, channels>, loadChannels<Bytes2, stride, channels>,
           loadChannels<Bytes4, stride, channels>},
          {storeChannels<Bytes1, stride, channels>, storeChannels<Bytes2, stride, channels>,
           storeChannels<Bytes4, stride, channels>}};
}

template <int planes>
constexpr Format planar() {
  return {planes,
          1,
          1,
          0,
          1,
          planes,
          {loadPlanes<Bytes1, planes>, loadPlanes<Bytes2, planes>, loadPlanes<Bytes4, planes>},
          {storePlanes<Bytes1, planes>, storePlanes<Bytes2, planes>, storePlanes<Bytes4, planes>}};
}

template <int a, int b, int c, bool dither>
constexpr Format pixels16() {
  return {1,
          1,
          0,
          0,
          1,
          3,
          {nullptr, load16<a, b, c>, nullptr},
          {nullptr, store16<a, b, c, dither>, nullptr},
          nullptr,
          dither};
}

}  // namespace

const Format kC1 = planar<1>(), kP3 = planar<3>(), kP4 = planar<4>();
const Format kC3 = interleaved<3, 3>(), kAC4 = interleaved<4, 3>(), kC4 = interleaved<4, 4>();
const Format kRgb565 = pixels16<5, 6, 5, false>();
const Format kRgb555 = pixels16<5, 5, 5, false>();
const Format kRgb444 = pixels16<4, 4, 4, false>();
const Format kRgb565Dither = pixels16<5, 6, 5, true>();
const Format kRgb555Dither = pixels16<5, 5, 5, true>();
const Format kRgb444Dither = pixels16<4, 4, 4, true>();

}  // namespace qor
