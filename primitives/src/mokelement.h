// mokelement.h: which C++ type has an element, and which values can it hold?
//
// Element values travel as doubles, complex ones as a pair of re, im. Code that
// fills or reads elements is a template of the component type; the type of the
// data is looked up once per row by mokWithComponent, not per element.
#ifndef MOKELEMENT_H
#define MOKELEMENT_H

#include <cstring>
#include <limits>
#include <type_traits>

#include "moktype.h"
#include "qordefs.h"

template <class T>
struct mokComplex {
  T re;
  T im;
};

// All element types, in the order of the typed views of a vector.
#define MOK_ELEMENTS(X)          \
  X(8u, Qor8u)                   \
  X(16u, Qor16u)                 \
  X(32u, Qor32u)                 \
  X(64u, unsigned long long)     \
  X(8s, Qor8s)                   \
  X(16s, Qor16s)                 \
  X(32s, Qor32s)                 \
  X(64s, long long)              \
  X(8sc, mokComplex<Qor8s>)      \
  X(16sc, mokComplex<Qor16s>)    \
  X(16uc, mokComplex<Qor16u>)    \
  X(32sc, mokComplex<Qor32s>)    \
  X(64sc, mokComplex<long long>) \
  X(32f, Qor32f)                 \
  X(64f, double)                 \
  X(32fc, mokComplex<Qor32f>)    \
  X(64fc, mokComplex<double>)

template <class T>
struct mokComponentOf {
  using type = T;
};
template <class T>
struct mokComponentOf<mokComplex<T>> {
  using type = T;
};

// Calls f with a zero of the component's type; doesn't call it for an undefined type.
template <class F>
void mokWithComponent(mokType t, F f) {
  switch (t) {
#define MOK_CASE(name, T) \
  case mok##name:         \
    return f(typename mokComponentOf<T>::type());
    MOK_ELEMENTS(MOK_CASE)
#undef MOK_CASE
    default:
      return;
  }
}

// Elements may stand at any byte, since vectors can be misaligned by bytes.
template <class T>
void mokStore(T* p, T value) {
  memcpy(p, &value, sizeof value);
}
template <class T>
T mokLoad(const T* p) {
  T value;
  memcpy(&value, p, sizeof value);
  return value;
}

// Half the square root of the largest number: two products of such values can be added.
constexpr double MAXABS_32F = 9.223371761976865e+18;
constexpr double MAXABS_64F = 6.703903964971298e+153;

// 2 to the 63rd for both 64-bit integers: half the range of the unsigned one.
template <class T>
constexpr double getMax() {
  if constexpr (std::is_same_v<T, float>) return MAXABS_32F;
  if constexpr (std::is_same_v<T, double>) return MAXABS_64F;
  if constexpr (sizeof(T) == 8) return 9223372036854775808.0;
  return static_cast<double>(std::numeric_limits<T>::max());
}

template <class T>
constexpr double getMin() {
  if constexpr (std::is_floating_point_v<T>) return -getMax<T>();
  return static_cast<double>(std::numeric_limits<T>::min());
}

// The smallest magnitude that isn't 0; of a floating-point type the smallest normal one.
template <class T>
constexpr double getMinAbs() {
  if constexpr (std::is_floating_point_v<T>) return std::numeric_limits<T>::min();
  return 1.0;
}

// Truncates towards zero. What lies outside an integer type becomes the nearest value of the type (so 2 to
// the 63rd becomes the largest 64s); what is no number becomes the smallest.
template <class T>
constexpr T toElement(double x) {
  using Limits = std::numeric_limits<T>;
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(x);
  } else {
    // For 64 bits the upper limit rounds to one above the largest value.
    if (!(x > static_cast<double>(Limits::min()))) return Limits::min();
    if (x >= static_cast<double>(Limits::max())) return Limits::max();
    return static_cast<T>(x);
  }
}

#endif
