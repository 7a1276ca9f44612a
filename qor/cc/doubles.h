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
template <int bit>
inline Doubles whereBit(Longs bits, double set, double clear) {
  return (bits << (63 - bit)) < 0 ? allDoubles(set) : allDoubles(clear);
}

#if defined(__AVX512VBMI__)
inline Doubles lowerHalf(Floats v) {
  return _mm512_cvtps_pd(_mm512_castps512_ps256(v));
}
inline Doubles upperHalf(Floats v) {
  return _mm512_cvtps_pd(_mm512_extractf32x8_ps(v, 1));
}
inline Floats together(Doubles lower, Doubles upper) {
  return _mm512_insertf32x8(_mm512_castps256_ps512(_mm512_cvtpd_ps(lower)), _mm512_cvtpd_ps(upper), 1);
}
#elif defined(__AVX2__)
inline Doubles lowerHalf(Floats v) {
  return _mm256_cvtps_pd(_mm256_castps256_ps128(v));
}
inline Doubles upperHalf(Floats v) {
  return _mm256_cvtps_pd(_mm256_extractf128_ps(v, 1));
}
inline Floats together(Doubles lower, Doubles upper) {
  return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm256_cvtpd_ps(lower)), _mm256_cvtpd_ps(upper), 1);
}
#else
inline Doubles lowerHalf(Floats v) {
  return _mm_cvtps_pd(v);
}
inline Doubles upperHalf(Floats v) {
  return _mm_cvtps_pd(_mm_movehl_ps(v, v));
}
inline Floats together(Doubles lower, Doubles upper) {
  return _mm_movelh_ps(_mm_cvtpd_ps(lower), _mm_cvtpd_ps(upper));
}
#endif

}  // namespace qor

#endif
