// doubles.h: doubles, a vector of them at a time, for what floats are too coarse for.
#ifndef QOR_CC_DOUBLES_H
#define QOR_CC_DOUBLES_H

#include "floats.h"

namespace qor {

using Doubles [[gnu::vector_size(kVec)]] = double;
using Longs [[gnu::vector_size(kVec)]] = int64_t;

inline Doubles allDoubles(double v) {
  return Doubles{} + v;
}
struct TwoDoubles {
  Doubles lower, upper;
};

// Eight doubles, by the three lowest bits of an exponent field.
struct Eight {
  alignas(32) uint32_t low[8], high[8];  // their halves
  alignas(64) double whole[8];

  constexpr explicit Eight(const double (&v)[8]) : low(), high(), whole() {
    for (int i = 0; i < 8; ++i) {
      const uint64_t bits = __builtin_bit_cast(uint64_t, v[i]);
      low[i] = static_cast<uint32_t>(bits);
      high[i] = static_cast<uint32_t>(bits >> 32);
      whole[i] = v[i];
    }
  }
};

inline TwoDoubles ofExponents(const Eight& table, const TwoDoubles& x) {
#if defined(__AVX512VBMI__)
  const __m512d whole = _mm512_load_pd(table.whole);
  const auto of = [&](Doubles v) {
    return _mm512_permutexvar_pd(_mm512_srli_epi64(_mm512_castpd_si512(v), 52), whole);
  };
  return {of(x.lower), of(x.upper)};
#elif defined(__AVX2__)
  const __m256 fields = _mm256_shuffle_ps(_mm256_castpd_ps(x.lower), _mm256_castpd_ps(x.upper), 0xDD);
  const __m256i index = _mm256_srli_epi32(_mm256_castps_si256(fields), 20);
  const __m256i low = _mm256_permutevar8x32_epi32(load(table.low), index),
                high = _mm256_permutevar8x32_epi32(load(table.high), index);
  return {_mm256_castsi256_pd(_mm256_unpacklo_epi32(low, high)),
          _mm256_castsi256_pd(_mm256_unpackhi_epi32(low, high))};
#else
  const auto of = [&](Doubles v) {
    const Longs bits = reinterpret_cast<Longs>(v);
    return Doubles{table.whole[bits[0] >> 52 & 7], table.whole[bits[1] >> 52 & 7]};
  };
  return {of(x.lower), of(x.upper)};
#endif
}

#if defined(__AVX512VBMI__)
inline TwoDoubles toDoubles(Floats v) {
  return {_mm512_cvtps_pd(_mm512_castps512_ps256(v)), _mm512_cvtps_pd(_mm512_extractf32x8_ps(v, 1))};
}
inline Floats toFloats(const TwoDoubles& v) {
  return _mm512_insertf32x8(_mm512_castps256_ps512(_mm512_cvtpd_ps(v.lower)), _mm512_cvtpd_ps(v.upper), 1);
}
#elif defined(__AVX2__)
inline TwoDoubles toDoubles(Floats v) {
  return {_mm256_cvtps_pd(_mm256_castps256_ps128(v)), _mm256_cvtps_pd(_mm256_extractf128_ps(v, 1))};
}
inline Floats toFloats(const TwoDoubles& v) {
  return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm256_cvtpd_ps(v.lower)), _mm256_cvtpd_ps(v.upper), 1);
}
#else
inline TwoDoubles toDoubles(Floats v) {
  return {_mm_cvtps_pd(v), _mm_cvtps_pd(_mm_movehl_ps(v, v))};
}
inline Floats toFloats(const TwoDoubles& v) {
  return _mm_movelh_ps(_mm_cvtpd_ps(v.lower), _mm_cvtpd_ps(v.upper));
}
#endif

}  // namespace qor

#endif
