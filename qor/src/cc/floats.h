// floats.h: pixels as floats, a vector of them at a time.
//
// Compiler vectors: arithmetic and comparisons are written as for one float, and a
// condition ? : chooses in each place.
#ifndef QOR_CC_FLOATS_H
#define QOR_CC_FLOATS_H

#include "ranges.h"
#include "simd.h"

namespace qor {

constexpr int kFloats = kVec / 4;
using Floats [[gnu::vector_size(kVec)]] = float;
using Ints [[gnu::vector_size(kVec)]] = int;

// Anywhere in memory.
using FloatsInMemory [[gnu::vector_size(kVec), gnu::aligned(1), gnu::may_alias]] = float;

inline Floats all(float v) {
  return Floats{} + v;
}
// As the comparisons in ranges.h: of equal values and beside a NaN the second one.
inline Floats larger(Floats a, Floats b) {
  return reinterpret_cast<Floats>(QORCC_V(max_ps)(a, b));
}
inline Floats smaller(Floats a, Floats b) {
  return reinterpret_cast<Floats>(QORCC_V(min_ps)(a, b));
}
inline Floats atLeast(Floats v, float low) {
  return larger(v, all(low));
}
inline Floats atMost(Floats v, float high) {
  return smaller(v, all(high));
}

// kFloats elements. g++ 12 takes the compiler's own conversions from bytes and
// words apart, hence the intrinsics.
inline Floats loadFloats(const Qor32f* p) {
  return *reinterpret_cast<const FloatsInMemory*>(p);
}
inline Floats toFloats(Vec doubleWords) {
  return reinterpret_cast<Floats>(QORCC_V(cvtepi32_ps)(doubleWords));
}
inline Floats loadFloats(const Qor8u* p) {
#if defined(__AVX512VBMI__)
  return toFloats(_mm512_cvtepu8_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))));
#elif defined(__AVX2__)
  return toFloats(_mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))));
#else
  int four;
  __builtin_memcpy(&four, p, sizeof four);
  return toFloats(low16(low8(_mm_cvtsi32_si128(four), zero()), zero()));
#endif
}
inline Floats loadFloats(const Qor16u* p) {
#if defined(__AVX512VBMI__)
  return toFloats(_mm512_cvtepu16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p))));
#elif defined(__AVX2__)
  return toFloats(_mm256_cvtepu16_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))));
#else
  return toFloats(low16(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)), zero()));
#endif
}
inline Floats loadFloats(const Qor16s* p) {
#if defined(__AVX512VBMI__)
  return toFloats(_mm512_cvtepi16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p))));
#elif defined(__AVX2__)
  return toFloats(_mm256_cvtepi16_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))));
#else
  return toFloats(
      shiftRightSigned32<16>(low16(zero(), _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)))));
#endif
}

// The low byte or word of each double word, one behind the other.
inline void storeLow(Qor8u* p, Vec v) {
#if defined(__AVX512VBMI__)
  _mm_storeu_si128(reinterpret_cast<__m128i*>(p), _mm512_cvtepi32_epi8(v));
#elif defined(__AVX2__)
  const __m256i bytes = narrow(v, v, v, v);
  _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm256_castsi256_si128(bytes));
#else
  const int four = _mm_cvtsi128_si32(narrow(v, v, v, v));
  __builtin_memcpy(p, &four, sizeof four);
#endif
}
inline void storeLow(Qor16s* p, Vec v) {
#if defined(__AVX512VBMI__)
  _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), _mm512_cvtepi32_epi16(v));
#elif defined(__AVX2__)
  const __m256i words = _mm256_permute4x64_epi64(pack32(v, v), 0xD8);
  _mm_storeu_si128(reinterpret_cast<__m128i*>(p), _mm256_castsi256_si128(words));
#else
  _mm_storel_epi64(reinterpret_cast<__m128i*>(p), pack32(v, v));
#endif
}
// Sign-extended words are packed without saturation.
inline void storeLow(Qor16u* p, Vec v) {
  storeLow(reinterpret_cast<Qor16s*>(p), shiftRightSigned32<16>(shiftLeft32<16>(v)));
}

// To nearest, half up, saturated, as element() does; floats unchanged.
template <class T>
inline void storeElements(T* p, Floats v) {
  if constexpr (Range<T>::span == 1) {
    *reinterpret_cast<FloatsInMemory*>(p) = v;
  } else {
    const Floats clamped = atMost(atLeast(v - Range<T>::low, 0), Range<T>::span);
    const Ints whole = __builtin_convertvector(clamped + 0.5f, Ints) + static_cast<int>(Range<T>::low);
    storeLow(p, reinterpret_cast<Vec>(whole));
  }
}

// The same for bytes of four vectors that are at least -0.5 and, but for what
// saturates, below 2^31.
inline void storeFour(Qor8u* p, const Floats (&v)[4]) {
  Vec whole[4];
  for (int i = 0; i < 4; ++i) whole[i] = reinterpret_cast<Vec>(__builtin_convertvector(v[i] + 0.5f, Ints));
  store(p, narrow(whole[0], whole[1], whole[2], whole[3]));
}

// Words of two vectors, to nearest, half up, saturated.
template <class T>
inline void storeTwo(T* p, Floats first, Floats second) {
  static_assert(sizeof(T) == 2);
  const auto signedWords = [](Floats v) {
    const Floats clamped = atMost(atLeast(v - Range<T>::low, 0), Range<T>::span);
    return reinterpret_cast<Vec>(__builtin_convertvector(clamped + 0.5f, Ints) - 32768);
  };
  const Vec words = inMemoryOrder(pack32(signedWords(first), signedWords(second)));
  store(p, Range<T>::low == 0 ? bitXor(words, all16(0x8000)) : words);
}

inline Floats magnitude(Floats v) {
  return reinterpret_cast<Floats>(reinterpret_cast<Ints>(v) & 0x7fffffff);
}

}  // namespace qor

#endif
