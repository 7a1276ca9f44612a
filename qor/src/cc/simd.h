// simd.h: the vocabulary of one code path: bytes and words in vectors.
//
// A Vec has kVec bytes: 16 on the SSE paths, 32 with AVX2, 64 with AVX-512. What
// is "in lanes" works on each 16 bytes for themselves: taking bytes apart by
// low/high and packing them again restores their order at any width. All the rest
// is in the order of memory.
#ifndef QOR_CC_SIMD_H
#define QOR_CC_SIMD_H

#include <immintrin.h>
#include <stdint.h>

namespace qor {

#if defined(__AVX512VBMI__)
using Vec = __m512i;
#define QORCC_V(name) _mm512_##name
#define QORCC_BITS(name) _mm512_##name##_si512
#elif defined(__AVX2__)
using Vec = __m256i;
#define QORCC_V(name) _mm256_##name
#define QORCC_BITS(name) _mm256_##name##_si256
#else
using Vec = __m128i;
#define QORCC_V(name) _mm_##name
#define QORCC_BITS(name) _mm_##name##_si128
#endif
constexpr int kVec = sizeof(Vec);

inline Vec load(const void* p) {
  return QORCC_BITS(loadu)(static_cast<const Vec*>(p));
}
inline void store(void* p, Vec v) {
  QORCC_BITS(storeu)(static_cast<Vec*>(p), v);
}
inline Vec zero() {
  return QORCC_BITS(setzero)();
}
inline Vec all8(int v) {
  return QORCC_V(set1_epi8)(static_cast<char>(v));
}
inline Vec all16(int v) {
  return QORCC_V(set1_epi16)(static_cast<short>(v));
}
inline Vec all32(int v) {
  return QORCC_V(set1_epi32)(v);
}
// A pair of words in each double word.
inline Vec allPairs(int even, int odd) {
  return all32(static_cast<int>(static_cast<uint16_t>(even) | static_cast<uint32_t>(odd) << 16));
}
inline Vec bitAnd(Vec a, Vec b) {
  return QORCC_BITS(and)(a, b);
}
inline Vec bitOr(Vec a, Vec b) {
  return QORCC_BITS(or)(a, b);
}
inline Vec bitXor(Vec a, Vec b) {
  return QORCC_BITS(xor)(a, b);
}
inline Vec add16(Vec a, Vec b) {
  return QORCC_V(add_epi16)(a, b);
}
inline Vec subtract16(Vec a, Vec b) {
  return QORCC_V(sub_epi16)(a, b);
}
inline Vec add32(Vec a, Vec b) {
  return QORCC_V(add_epi32)(a, b);
}
template <int bits>
inline Vec shiftRight16(Vec v) {
  return QORCC_V(srli_epi16)(v, bits);
}
template <int bits>
inline Vec shiftLeft16(Vec v) {
  return QORCC_V(slli_epi16)(v, bits);
}
template <int bits>
inline Vec shiftRight32(Vec v) {
  return QORCC_V(srli_epi32)(v, bits);
}
template <int bits>
inline Vec shiftLeft32(Vec v) {
  return QORCC_V(slli_epi32)(v, bits);
}
template <int bits>
inline Vec shiftRightSigned32(Vec v) {
  return QORCC_V(srai_epi32)(v, bits);
}
// a0 b0 + a1 b1, in 32 bits, for each pair of signed words.
inline Vec multiplyPairs(Vec a, Vec b) {
  return QORCC_V(madd_epi16)(a, b);
}
// sum + a0 b0 + a1 b1.
inline Vec addPairs(Vec sum, Vec a, Vec b) {
#if defined(__AVX512VNNI__)
  return _mm512_dpwssd_epi32(sum, a, b);
#else
  return add32(sum, multiplyPairs(a, b));
#endif
}
// The upper word of each product of signed words.
inline Vec multiplyHigh16(Vec a, Vec b) {
  return QORCC_V(mulhi_epi16)(a, b);
}
inline Vec multiplyHighUnsigned16(Vec a, Vec b) {
  return QORCC_V(mulhi_epu16)(a, b);
}
// The low word of each product.
inline Vec multiply16(Vec a, Vec b) {
  return QORCC_V(mullo_epi16)(a, b);
}
// a b / 2^15, rounded, of signed words.
inline Vec multiplyRounded16(Vec a, Vec b) {
#if defined(__SSSE3__)
  return QORCC_V(mulhrs_epi16)(a, b);
#else
  const Vec high = multiplyHigh16(a, b), low = shiftRight16<14>(multiply16(a, b));
  return add16(add16(high, high), _mm_avg_epu16(low, zero()));
#endif
}
// Sums of neighbouring bytes, in words.
inline Vec sumsOfPairs(Vec bytes) {
#if defined(__SSSE3__)
  return QORCC_V(maddubs_epi16)(bytes, all8(1));
#else
  return add16(bitAnd(bytes, all16(0xFF)), shiftRight16<8>(bytes));
#endif
}
// Rounded up.
inline Vec mean8(Vec a, Vec b) {
  return QORCC_V(avg_epu8)(a, b);
}
inline Vec saturatingAdd8(Vec a, Vec b) {
  return QORCC_V(adds_epu8)(a, b);
}
// Signed.
inline Vec saturatingAdd16(Vec a, Vec b) {
  return QORCC_V(adds_epi16)(a, b);
}
// The same 16 bytes in each lane.
struct alignas(16) Bytes16 {
  uint8_t at[16];
};
inline Vec lanes(const Bytes16& m) {
  const __m128i lane = _mm_load_si128(reinterpret_cast<const __m128i*>(&m));
#if defined(__AVX512VBMI__)
  return _mm512_broadcast_i32x4(lane);
#elif defined(__AVX2__)
  return _mm256_broadcastsi128_si256(lane);
#else
  return lane;
#endif
}
constexpr Bytes16 placesOfPairs(int even, int odd) {
  Bytes16 m = {};
  for (int q = 0; q < 16; ++q)
    m.at[q] = static_cast<uint8_t>(q / 4 * 4 + (q % 4 < 2 ? even : odd) * 2 + q % 2);
  return m;
}
// The words `even` and `odd` of each pair to its two places.
template <int even, int odd>
inline Vec wordsOfPairs(Vec v) {
#if defined(__SSSE3__)
  static constexpr Bytes16 places = placesOfPairs(even, odd);
  return QORCC_V(shuffle_epi8)(v, lanes(places));
#else
  constexpr int order = even | odd << 2 | (even + 2) << 4 | (odd + 2) << 6;
  return _mm_shufflehi_epi16(_mm_shufflelo_epi16(v, order), order);
#endif
}
inline Vec evenWords(Vec v) {
  return wordsOfPairs<0, 0>(v);
}
inline Vec oddWords(Vec v) {
  return wordsOfPairs<1, 1>(v);
}
inline Vec exchangedWords(Vec v) {
  return wordsOfPairs<1, 0>(v);
}
// Two vectors of one word each, in turn.
inline Vec pairsOf(Vec even, Vec odd) {
  return bitOr(shiftRight32<16>(even), shiftLeft32<16>(odd));
}

// In lanes.
inline Vec low8(Vec a, Vec b) {
  return QORCC_V(unpacklo_epi8)(a, b);
}
inline Vec high8(Vec a, Vec b) {
  return QORCC_V(unpackhi_epi8)(a, b);
}
inline Vec low16(Vec a, Vec b) {
  return QORCC_V(unpacklo_epi16)(a, b);
}
inline Vec high16(Vec a, Vec b) {
  return QORCC_V(unpackhi_epi16)(a, b);
}
// Signed to signed, saturated; in lanes.
inline Vec pack32(Vec a, Vec b) {
  return QORCC_V(packs_epi32)(a, b);
}
inline Vec packSigned16(Vec a, Vec b) {
  return QORCC_V(packs_epi16)(a, b);
}
// Signed to unsigned, saturated; in lanes.
inline Vec pack16(Vec a, Vec b) {
  return QORCC_V(packus_epi16)(a, b);
}

// kVec / 2 bytes to words.
inline Vec widen(const uint8_t* p) {
#if defined(__AVX512VBMI__)
  return _mm512_cvtepu8_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)));
#elif defined(__AVX2__)
  return _mm256_cvtepu8_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)));
#else
  return _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)), zero());
#endif
}

// What packing two vectors leaves in lanes.
inline Vec inMemoryOrder(Vec packed) {
#if defined(__AVX512VBMI__)
  return _mm512_permutexvar_epi64(_mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), packed);
#elif defined(__AVX2__)
  return _mm256_permute4x64_epi64(packed, 0xD8);
#else
  return packed;
#endif
}

// Words of 0..255, kVec of them, to bytes.
inline Vec narrow(Vec a, Vec b) {
  return inMemoryOrder(pack16(a, b));
}

// Words of each vector, beyond 0..255 as the nearest, to kVec / 2 bytes.
inline void storeNarrow(uint8_t* p, Vec a, uint8_t* q, Vec b) {
  const Vec bytes = narrow(a, b);
#if defined(__AVX512VBMI__)
  _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), _mm512_castsi512_si256(bytes));
  _mm256_storeu_si256(reinterpret_cast<__m256i*>(q), _mm512_extracti64x4_epi64(bytes, 1));
#elif defined(__AVX2__)
  _mm_storeu_si128(reinterpret_cast<__m128i*>(p), _mm256_castsi256_si128(bytes));
  _mm_storeu_si128(reinterpret_cast<__m128i*>(q), _mm256_extracti128_si256(bytes, 1));
#else
  _mm_storel_epi64(reinterpret_cast<__m128i*>(p), bytes);
  _mm_storel_epi64(reinterpret_cast<__m128i*>(q), _mm_unpackhi_epi64(bytes, bytes));
#endif
}

// Double words of 0..255, kVec of them, to bytes.
inline Vec narrow(Vec a, Vec b, Vec c, Vec d) {
  const Vec bytes = pack16(pack32(a, b), pack32(c, d));
#if defined(__AVX512VBMI__)
  const Vec order = _mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15);
  return _mm512_permutexvar_epi32(order, bytes);
#elif defined(__AVX2__)
  return _mm256_permutevar8x32_epi32(bytes, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7));
#else
  return bytes;
#endif
}

// a0 b0 a1 b1 ... of bytes.
inline void storeZipped8(uint8_t* p, Vec a, Vec b) {
  const Vec low = low8(a, b), high = high8(a, b);
#if defined(__AVX512VBMI__)
  const Vec first = _mm512_setr_epi64(0, 1, 8, 9, 2, 3, 10, 11);
  const Vec second = _mm512_setr_epi64(4, 5, 12, 13, 6, 7, 14, 15);
  store(p, _mm512_permutex2var_epi64(low, first, high));
  store(p + kVec, _mm512_permutex2var_epi64(low, second, high));
#elif defined(__AVX2__)
  store(p, _mm256_permute2x128_si256(low, high, 0x20));
  store(p + kVec, _mm256_permute2x128_si256(low, high, 0x31));
#else
  store(p, low);
  store(p + kVec, high);
#endif
}

// Of two vectors' lanes the even and the odd ones.
struct Halves {
  Vec first, second;
};
inline Halves loadAlternateLanes(const uint8_t* p) {
  const Vec a = load(p), b = load(p + kVec);
#if defined(__AVX512VBMI__)
  const Vec even = _mm512_setr_epi64(0, 1, 4, 5, 8, 9, 12, 13),
            odd = _mm512_setr_epi64(2, 3, 6, 7, 10, 11, 14, 15);
  return {_mm512_permutex2var_epi64(a, even, b), _mm512_permutex2var_epi64(a, odd, b)};
#elif defined(__AVX2__)
  return {_mm256_permute2x128_si256(a, b, 0x20), _mm256_permute2x128_si256(a, b, 0x31)};
#else
  return {a, b};
#endif
}
// Four vectors whose lanes j together are the 64 bytes at p + 64 j.
inline void storeLanesInTurn(uint8_t* p, Vec a, Vec b, Vec c, Vec d) {
#if defined(__AVX512VBMI__)
  const Vec even = _mm512_setr_epi64(0, 1, 8, 9, 4, 5, 12, 13),
            odd = _mm512_setr_epi64(2, 3, 10, 11, 6, 7, 14, 15);
  const Vec ab02 = _mm512_permutex2var_epi64(a, even, b), ab13 = _mm512_permutex2var_epi64(a, odd, b),
            cd02 = _mm512_permutex2var_epi64(c, even, d), cd13 = _mm512_permutex2var_epi64(c, odd, d);
  store(p, _mm512_shuffle_i64x2(ab02, cd02, 0x44));
  store(p + 64, _mm512_shuffle_i64x2(ab13, cd13, 0x44));
  store(p + 128, _mm512_shuffle_i64x2(ab02, cd02, 0xEE));
  store(p + 192, _mm512_shuffle_i64x2(ab13, cd13, 0xEE));
#elif defined(__AVX2__)
  store(p, _mm256_permute2x128_si256(a, b, 0x20));
  store(p + 32, _mm256_permute2x128_si256(c, d, 0x20));
  store(p + 64, _mm256_permute2x128_si256(a, b, 0x31));
  store(p + 96, _mm256_permute2x128_si256(c, d, 0x31));
#else
  store(p, a);
  store(p + 16, b);
  store(p + 32, c);
  store(p + 48, d);
#endif
}

struct Vec3 {
  Vec a, b, c;
};
struct Vec4 {
  Vec a, b, c, d;
};

inline void store4(uint8_t* p, const Vec4& v) {
  const Vec lowAB = low8(v.a, v.b), highAB = high8(v.a, v.b), lowCD = low8(v.c, v.d),
            highCD = high8(v.c, v.d);
  storeLanesInTurn(p, low16(lowAB, lowCD), high16(lowAB, lowCD), low16(highAB, highCD),
                   high16(highAB, highCD));
}

// kVec pixels of four bytes.
inline Vec4 load4(const uint8_t* p) {
  const Vec x0 = load(p), x1 = load(p + kVec), x2 = load(p + 2 * kVec), x3 = load(p + 3 * kVec);
  const Vec low = all32(0xFF);
  return {narrow(bitAnd(x0, low), bitAnd(x1, low), bitAnd(x2, low), bitAnd(x3, low)),
          narrow(bitAnd(shiftRight32<8>(x0), low), bitAnd(shiftRight32<8>(x1), low),
                 bitAnd(shiftRight32<8>(x2), low), bitAnd(shiftRight32<8>(x3), low)),
          narrow(bitAnd(shiftRight32<16>(x0), low), bitAnd(shiftRight32<16>(x1), low),
                 bitAnd(shiftRight32<16>(x2), low), bitAnd(shiftRight32<16>(x3), low)),
          narrow(shiftRight32<24>(x0), shiftRight32<24>(x1), shiftRight32<24>(x2), shiftRight32<24>(x3))};
}

// Three interleaved channels of elements of `size` bytes. On SSE4.2 and AVX2 each
// channel has every element's place of a lane in exactly one of the three vectors, so
// two blends and one shuffle collect it.
#if defined(__AVX512VBMI__)

template <int size>
struct alignas(64) Places {
  uint8_t at[64];  // little-endian numbers of `size` bytes

  constexpr Places() : at() {}
  constexpr void set(int place, int number) { at[place * size] = static_cast<uint8_t>(number); }
};
// Channel c of vectors 0 and 1; then what has its place in the third.
template <int size>
constexpr Places<size> splitFirst(int channel) {
  constexpr int n = 64 / size;
  Places<size> r;
  for (int k = 0; k < n; ++k) r.set(k, 3 * k + channel < 2 * n ? 3 * k + channel : 0);
  return r;
}
template <int size>
constexpr Places<size> splitSecond(int channel) {
  constexpr int n = 64 / size;
  Places<size> r;
  for (int k = 0; k < n; ++k) r.set(k, 3 * k + channel < 2 * n ? k : 3 * k + channel - n);
  return r;
}
// Vector j of three: first a and b, then c into it.
template <int size>
constexpr Places<size> joinFirst(int j) {
  constexpr int n = 64 / size;
  Places<size> r;
  for (int q = 0; q < n; ++q) {
    const int p = n * j + q;
    r.set(q, p % 3 == 0 ? p / 3 : p % 3 == 1 ? n + p / 3 : 0);
  }
  return r;
}
template <int size>
constexpr Places<size> joinSecond(int j) {
  constexpr int n = 64 / size;
  Places<size> r;
  for (int q = 0; q < n; ++q) r.set(q, (n * j + q) % 3 == 2 ? n + (n * j + q) / 3 : q);
  return r;
}

template <int size>
inline Vec fromBoth(Vec a, const Places<size>& places, Vec b) {
  if constexpr (size == 1) return _mm512_permutex2var_epi8(a, load(&places), b);
  if constexpr (size == 2) return _mm512_permutex2var_epi16(a, load(&places), b);
  return _mm512_permutex2var_epi32(a, load(&places), b);
}
template <int size, int channel>
inline Vec split(Vec x0, Vec x1, Vec x2) {
  static constexpr Places<size> first = splitFirst<size>(channel), second = splitSecond<size>(channel);
  return fromBoth(fromBoth(x0, first, x1), second, x2);
}
template <int size, int j>
inline Vec join(const Vec3& v) {
  static constexpr Places<size> first = joinFirst<size>(j), second = joinSecond<size>(j);
  return fromBoth(fromBoth(v.a, first, v.b), second, v.c);
}
template <int size>
inline Vec3 load3(const uint8_t* p) {
  const Vec x0 = load(p), x1 = load(p + kVec), x2 = load(p + 2 * kVec);
  return {split<size, 0>(x0, x1, x2), split<size, 1>(x0, x1, x2), split<size, 2>(x0, x1, x2)};
}
template <int size>
inline void store3(uint8_t* p, const Vec3& v) {
  store(p, join<size, 0>(v));
  store(p + kVec, join<size, 1>(v));
  store(p + 2 * kVec, join<size, 2>(v));
}

#elif defined(__SSE4_1__)

// Places p with p % 3 == r.
template <int size>
constexpr Bytes16 third(int r) {
  Bytes16 m = {};
  for (int q = 0; q < 16; ++q) m.at[q] = q / size % 3 == r ? 0xFF : 0;
  return m;
}
template <int size>
constexpr Bytes16 splitPlaces(int channel) {
  constexpr int n = 16 / size;
  Bytes16 m = {};
  for (int q = 0; q < 16; ++q)
    m.at[q] = static_cast<uint8_t>((3 * (q / size) + channel) % n * size + q % size);
  return m;
}
// Of the one of three vectors whose place p belongs to the channel.
template <int size>
constexpr Bytes16 joinPlaces(int channel) {
  constexpr int n = 16 / size;
  Bytes16 m = {};
  for (int q = 0; q < 16; ++q) {
    int j = 0;
    while ((n * j + q / size) % 3 != channel) ++j;
    m.at[q] = static_cast<uint8_t>((n * j + q / size) / 3 * size + q % size);
  }
  return m;
}

// The same places as bits of a lane's words.
template <int size>
constexpr int wordsOfThird(int r) {
  int bits = 0;
  for (int q = 0; q < 8; ++q) bits |= (2 * q / size % 3 == r) << q;
  return bits;
}
// Of three vectors the one whose number is place % 3.
template <int size>
inline Vec choose(Vec v0, Vec v1, Vec v2) {
  if constexpr (size > 1) {
    constexpr int words1 = wordsOfThird<size>(1), words2 = wordsOfThird<size>(2);
    return QORCC_V(blend_epi16)(QORCC_V(blend_epi16)(v0, v1, words1), v2, words2);
  }
  static constexpr Bytes16 third1 = third<size>(1), third2 = third<size>(2);
  return QORCC_V(blendv_epi8)(QORCC_V(blendv_epi8)(v0, v1, lanes(third1)), v2, lanes(third2));
}
// Three vectors' lanes in turn.
inline Vec3 loadLanes(const uint8_t* p) {
#if defined(__AVX2__)
  const Vec x0 = load(p), x1 = load(p + 32), x2 = load(p + 64);
  return {_mm256_blend_epi32(x0, x1, 0xF0), _mm256_permute2x128_si256(x0, x2, 0x21),
          _mm256_blend_epi32(x1, x2, 0xF0)};
#else
  return {load(p), load(p + 16), load(p + 32)};
#endif
}
inline void storeLanes(uint8_t* p, Vec a, Vec b, Vec c) {
#if defined(__AVX2__)
  store(p, _mm256_permute2x128_si256(a, b, 0x20));
  store(p + 32, _mm256_blend_epi32(c, a, 0xF0));
  store(p + 64, _mm256_permute2x128_si256(b, c, 0x31));
#else
  store(p, a);
  store(p + 16, b);
  store(p + 32, c);
#endif
}
// A lane's elements are 1 more than a multiple of 3, or 2 more for words: the vectors
// of one channel's places follow each other downwards or upwards.
template <int size>
inline Vec3 load3(const uint8_t* p) {
  static constexpr Bytes16 split0 = splitPlaces<size>(0), split1 = splitPlaces<size>(1),
                           split2 = splitPlaces<size>(2);
  const auto [x0, x1, x2] = loadLanes(p);
  const bool up = size == 2;
  return {QORCC_V(shuffle_epi8)(up ? choose<size>(x0, x1, x2) : choose<size>(x0, x2, x1), lanes(split0)),
          QORCC_V(shuffle_epi8)(up ? choose<size>(x2, x0, x1) : choose<size>(x1, x0, x2), lanes(split1)),
          QORCC_V(shuffle_epi8)(up ? choose<size>(x1, x2, x0) : choose<size>(x2, x1, x0), lanes(split2))};
}
template <int size>
inline void store3(uint8_t* p, const Vec3& v) {
  static constexpr Bytes16 join0 = joinPlaces<size>(0), join1 = joinPlaces<size>(1),
                           join2 = joinPlaces<size>(2);
  const Vec a = QORCC_V(shuffle_epi8)(v.a, lanes(join0)), b = QORCC_V(shuffle_epi8)(v.b, lanes(join1)),
            c = QORCC_V(shuffle_epi8)(v.c, lanes(join2));
  const bool up = size == 2;
  storeLanes(p, choose<size>(a, b, c), up ? choose<size>(c, a, b) : choose<size>(b, c, a),
             up ? choose<size>(b, c, a) : choose<size>(c, a, b));
}

#else

// Each round interleaves halves; after the last, log2 of a lane's elements, every
// channel is together.
template <int size>
inline Vec3 load3(const uint8_t* p) {
  Vec x0 = load(p), x1 = load(p + 16), x2 = load(p + 32);
  for (int elements = 16 / size; elements > 1; elements /= 2) {
    const auto zip = [](Vec low, Vec high) {
      return size == 1 ? low8(low, high) : size == 2 ? low16(low, high) : _mm_unpacklo_epi32(low, high);
    };
    const Vec y0 = zip(x0, _mm_unpackhi_epi64(x1, x1)), y1 = zip(_mm_unpackhi_epi64(x0, x0), x2),
              y2 = zip(x1, _mm_unpackhi_epi64(x2, x2));
    x0 = y0, x1 = y1, x2 = y2;
  }
  return {x0, x1, x2};
}
template <int size>
inline void store3(uint8_t* p, const Vec3& v) {
  alignas(16) uint8_t channel[3][16];
  store(channel[0], v.a), store(channel[1], v.b), store(channel[2], v.c);
  for (int i = 0; i < 16 / size; ++i)
    for (int c = 0; c < 3; ++c) __builtin_memcpy(p + (3 * i + c) * size, channel[c] + i * size, size);
}

#endif

}  // namespace qor

#endif
