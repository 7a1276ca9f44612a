// ranges.h: how do element types hold fractions, and how are floats made elements?
#ifndef QOR_CC_RANGES_H
#define QOR_CC_RANGES_H

#include "qordefs.h"

namespace qor {

// 0..1 lies at low..low + span.
template <class T>
struct Range;
template <>
struct Range<Qor8u> {
  static constexpr float low = 0, span = 255;
};
template <>
struct Range<Qor8s> {
  static constexpr float low = -128, span = 255;
};
template <>
struct Range<Qor16u> {
  static constexpr float low = 0, span = 65535;
};
template <>
struct Range<Qor16s> {
  static constexpr float low = -32768, span = 65535;
};
template <>
struct Range<Qor32f> {
  static constexpr float low = 0, span = 1;
};

// The comparisons are written so that each is one minps or maxps and a NaN
// becomes the bound.
inline float atLeast(float v, float low) {
  return v > low ? v : low;
}
inline float atMost(float v, float high) {
  return v < high ? v : high;
}

inline double atLeast(double v, double low) {
  return v > low ? v : low;
}
inline double atMost(double v, double high) {
  return v < high ? v : high;
}

// To nearest, half up, saturated; float unchanged. Truncation of a value that
// isn't negative needs no rounding mode.
template <class T>
inline T element(float v) {
  const float clamped = atMost(atLeast(v - Range<T>::low, 0), Range<T>::span);
  return static_cast<T>(static_cast<int>(clamped + 0.5f) + static_cast<int>(Range<T>::low));
}
template <>
inline Qor32f element<Qor32f>(float v) {
  return v;
}

template <class T>
inline float fraction(T v) {
  return (static_cast<float>(v) - Range<T>::low) * (1 / Range<T>::span);
}
template <>
inline float fraction<Qor32f>(Qor32f v) {
  return v;
}

template <class T>
inline T fromFraction(float v) {
  return element<T>(v * Range<T>::span + Range<T>::low);
}

}  // namespace qor

#endif
