// transforms_ycocg.cpp: YCoCg rounded, and YCoCg-R, which loses nothing.
//
// H. Malvar, G. Sullivan, "YCoCg-R: A Color Space with RGB Reversibility and Low
// Dynamic Range", JVT-I014, 2003.
#include "transforms.h"

namespace qor {
namespace {

template <class T>
struct Bounds;
template <>
struct Bounds<Qor8u> {
  static constexpr int low = 0, high = 255;
};
template <>
struct Bounds<Qor16s> {
  static constexpr int low = -32768, high = 32767;
};

template <class T, class Wide>
T saturate(Wide v) {
  return static_cast<T>(v < Bounds<T>::low ? Bounds<T>::low : v > Bounds<T>::high ? Bounds<T>::high : v);
}
template <>
Qor32s saturate<Qor32s, int>(int v) {
  return v;
}

// What stands for a colour difference of 0.
template <class T>
constexpr int kZero = sizeof(T) == 1 ? 128 : 0;

// 32-bit sources may hold anything: their sums need more.
template <class S>
struct Wider {
  using type = int;
};
template <>
struct Wider<Qor32s> {
  using type = long long;
};

// Elements in which the lifting steps wrap: those that hold the coefficients.
template <class T>
T wrap(int v) {
  return static_cast<T>(v);
}
int sum(int a, int b) {
  return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}
int difference(int a, int b) {
  return static_cast<int>(static_cast<unsigned>(a) - static_cast<unsigned>(b));
}

}  // namespace

template <class S, class D>
void rgbToYcocg(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  const Planes<const S> rgb(in);
  const Planes<D> ycocg(out);
  D* __restrict yOut = ycocg.a, * __restrict coOut = ycocg.b, * __restrict cgOut = ycocg.c;
  for (int i = 0; i < n; ++i) {
    const int r = rgb.a[i], g = rgb.b[i], b = rgb.c[i];
    yOut[i] = saturate<D>((r + 2 * g + b + 2) >> 2);
    coOut[i] = saturate<D>(((r - b + 1) >> 1) + kZero<D>);
    cgOut[i] = saturate<D>(((2 * g - r - b + 2) >> 2) + kZero<D>);
  }
}

template <class S, class D>
void ycocgToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  using Wide = typename Wider<S>::type;
  const Planes<const S> ycocg(in);
  const Planes<D> rgb(out);
  D* __restrict rOut = rgb.a, * __restrict gOut = rgb.b, * __restrict bOut = rgb.c;
  for (int i = 0; i < n; ++i) {
    const Wide y = ycocg.a[i], co = Wide{ycocg.b[i]} - kZero<S>, cg = Wide{ycocg.c[i]} - kZero<S>;
    rOut[i] = saturate<D>(y - cg + co);
    gOut[i] = saturate<D>(y + cg);
    bOut[i] = saturate<D>(y - cg - co);
  }
}

template <class S, class D>
void rgbToYcocgRev(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  const Planes<const S> rgb(in);
  const Planes<D> ycocg(out);
  D* __restrict yOut = ycocg.a, * __restrict coOut = ycocg.b, * __restrict cgOut = ycocg.c;
  for (int i = 0; i < n; ++i) {
    const D co = wrap<D>(rgb.a[i] - rgb.c[i]);
    const D t = wrap<D>(rgb.c[i] + (co >> 1));
    const D cg = wrap<D>(rgb.b[i] - t);
    yOut[i] = wrap<D>(t + (cg >> 1));
    coOut[i] = co;
    cgOut[i] = cg;
  }
}

template <class S, class D>
void ycocgRevToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  const Planes<const S> ycocg(in);
  const Planes<D> rgb(out);
  D* __restrict rOut = rgb.a, * __restrict gOut = rgb.b, * __restrict bOut = rgb.c;
  for (int i = 0; i < n; ++i) {
    const S t = wrap<S>(difference(ycocg.a[i], ycocg.c[i] >> 1));
    const S g = wrap<S>(sum(ycocg.c[i], t));
    const S b = wrap<S>(difference(t, ycocg.b[i] >> 1));
    rOut[i] = saturate<D>(int{wrap<S>(sum(b, ycocg.b[i]))});
    gOut[i] = saturate<D>(int{g});
    bOut[i] = saturate<D>(int{b});
  }
}

}  // namespace qor
