// transforms_cie.cpp: CIE 1976 L*u*v* and L*a*b* of linear RGB (CIE 15:2004, 8.2).
#include "matrices.h"
#include "ranges.h"
#include "transforms.h"

namespace qor {
namespace {

// XYZ of RGB white, which is D65, and its u', v'.
constexpr double rowSum(int row) {
  return kXyz.m[row][0] + kXyz.m[row][1] + kXyz.m[row][2];
}
constexpr double kWhiteSum = rowSum(0) + 15 * rowSum(1) + 3 * rowSum(2);
constexpr double kWhiteX = rowSum(0), kWhiteZ = rowSum(2);
constexpr double kWhiteU = 4 * rowSum(0) / kWhiteSum, kWhiteV = 9 * rowSum(1) / kWhiteSum;

// Below (24/116)^3 of white, L* is linear: L* = (116/12)^3 Y, f(t) = 841/108 t + 16/116. The line touches the
// cube root's curve there and lies above it elsewhere, so the curve is the smaller of the line and of the
// root, kept from falling below that point. Choosing by t instead would let the compiler take roots of 0 for
// lanes whose result is dropped, and the units would tell an invalid operation that no caller asked for.
constexpr double kLinearBelow = 216.0 / 24389, kSlopeL = 24389.0 / 27, kSlopeF = 841.0 / 108,
                 kShiftF = 16.0 / 116;

// No colour's v' comes near 0; what does is kept from a division by 0.
constexpr double kLeastV = 1e-3;

// R is float for bytes and double for wider elements: u' and v' are differences of
// near numbers, of which 16 bits show what floats lose.
template <class R>
struct Triple {
  R x, y, z;
};
template <class R>
struct Weights {
  R m[3][3];

  explicit constexpr Weights(const Linear& a) : m() {
    for (int i = 0; i < 3; ++i)
      for (int j = 0; j < 3; ++j) m[i][j] = static_cast<R>(a.m[i][j]);
  }
};
template <class R>
constexpr Weights<R> kToXyz(kXyz);
template <class R>
constexpr Weights<R> kToRgb(inverse(kXyz));

template <class R>
inline R halley(R v, R y) {
  const R cube = y * y * y;
  return y * (cube + 2 * v) / (2 * cube + v);
}
// A first guess from a third of the exponent, then two Halley steps: relative
// error below 1e-6 for normal numbers above 0. Plain arithmetic, so that loops
// become vectors and every build gives the same bits.
inline float cubeRoot(float v) {
  const float guess =
      __builtin_bit_cast(float, static_cast<int>(__builtin_bit_cast(int, v) / 3 + 0x2a5137a0));
  return halley(v, halley(v, guess));
}
inline double cubeRoot(double v) {
  return halley(v, static_cast<double>(cubeRoot(static_cast<float>(v))));
}

template <class R>
inline Triple<R> multiply(const Weights<R>& w, Triple<R> t) {
  return {w.m[0][0] * t.x + w.m[0][1] * t.y + w.m[0][2] * t.z,
          w.m[1][0] * t.x + w.m[1][1] * t.y + w.m[1][2] * t.z,
          w.m[2][0] * t.x + w.m[2][1] * t.y + w.m[2][2] * t.z};
}

template <class R>
inline Triple<R> luvOf(Triple<R> rgb) {
  const Triple<R> xyz = multiply(kToXyz<R>, rgb);
  const R root = cubeRoot(atLeast(xyz.y, R(kLinearBelow)));
  const R l = atMost(116 * root - 16, R(kSlopeL) * xyz.y);
  const R sum = xyz.x + 15 * xyz.y + 3 * xyz.z;
  const R scale = 1 / (sum > 0 ? sum : 1);
  return {l, 13 * l * (4 * xyz.x * scale - R(kWhiteU)), 13 * l * (9 * xyz.y * scale - R(kWhiteV))};
}

template <class R>
inline R luminance(R l) {
  const R t = (l + 16) * R(1 / 116.0);
  const R cube = t * t * t, line = l * R(1 / kSlopeL);
  return l > R(kLinearBelow * kSlopeL) ? cube : line;
}

template <class R>
inline Triple<R> rgbOfLuv(Triple<R> luv) {
  const bool black = !(luv.x > 0);
  const R scale = 1 / (13 * (black ? 1 : luv.x));
  const R u = luv.y * scale + R(kWhiteU), v = atLeast(luv.z * scale + R(kWhiteV), R(kLeastV));
  const R light = luminance(luv.x), y = black ? 0 : light, quarter = y / (4 * v);
  return multiply(kToRgb<R>, {9 * u * quarter, y, (12 - 3 * u - 20 * v) * quarter});
}

template <class R>
inline R curve(R t) {
  const R root = cubeRoot(atLeast(t, R(kLinearBelow))), line = R(kSlopeF) * t + R(kShiftF);
  return atMost(root, line);
}
template <class R>
inline R curveBack(R f) {
  const R cube = f * f * f, line = (f - R(kShiftF)) * R(1 / kSlopeF);
  return line > R(kLinearBelow) ? cube : line;
}

template <class R>
inline Triple<R> labOf(Triple<R> rgb) {
  const Triple<R> xyz = multiply(kToXyz<R>, rgb);
  const R fx = curve(xyz.x * R(1 / kWhiteX)), fy = curve(xyz.y), fz = curve(xyz.z * R(1 / kWhiteZ));
  return {116 * fy - 16, 500 * (fx - fy), 200 * (fy - fz)};
}

template <class R>
inline Triple<R> rgbOfLab(Triple<R> lab) {
  const R fy = (lab.x + 16) * R(1 / 116.0);
  const R fx = fy + lab.y * R(1 / 500.0), fz = fy - lab.z * R(1 / 200.0);
  return multiply(kToRgb<R>, {R(kWhiteX) * curveBack(fx), curveBack(fy), R(kWhiteZ) * curveBack(fz)});
}

// How the plain values lie in 0..1 of an integer.
struct Scale {
  Triple<double> factor, offset;
};
constexpr Scale kLuvScale = {{100, 354, 262}, {0, -134, -140}};
constexpr Scale kLabScale = {{100, 255, 255}, {0, -128, -128}};

template <class T>
constexpr bool kIsFloat = false;
template <>
constexpr bool kIsFloat<Qor32f> = true;

template <class S, class R>
Triple<R> plain(Triple<R> t, const Scale& s) {
  if (kIsFloat<S>) return t;
  return {t.x * R(s.factor.x) + R(s.offset.x), t.y * R(s.factor.y) + R(s.offset.y),
          t.z * R(s.factor.z) + R(s.offset.z)};
}

template <class D, class R>
Triple<R> coded(Triple<R> t, const Scale& s) {
  if (kIsFloat<D>) return t;
  return {(t.x - R(s.offset.x)) * R(1 / s.factor.x), (t.y - R(s.offset.y)) * R(1 / s.factor.y),
          (t.z - R(s.offset.z)) * R(1 / s.factor.z)};
}

template <class T>
struct Reckoning {
  using Type = double;
};
template <>
struct Reckoning<Qor8u> {
  using Type = float;
};

template <class R, class T>
inline R fractionOf(T v) {
  if (kIsFloat<T>) return v;
  return (static_cast<R>(v) - R(Range<T>::low)) * R(1 / double{Range<T>::span});
}

template <class S, class D, class Pixel>
void eachPixel(const TileRows& in, const TileRows& out, int n, Pixel pixel) {
  using R = typename Reckoning<S>::Type;
  const Planes<const S> from(in);
  const Planes<D> to(out);
  D* __restrict a = to.a, * __restrict b = to.b, * __restrict c = to.c;
  for (int i = 0; i < n; ++i) {
    const Triple<R> t =
        pixel(Triple<R>{fractionOf<R>(from.a[i]), fractionOf<R>(from.b[i]), fractionOf<R>(from.c[i])});
    a[i] = fromFraction<D>(static_cast<float>(t.x));
    b[i] = fromFraction<D>(static_cast<float>(t.y));
    c[i] = fromFraction<D>(static_cast<float>(t.z));
  }
}

}  // namespace

template <class T>
void rgbToLuv(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  eachPixel<T, T>(in, out, n, [](auto rgb) { return coded<T>(luvOf(rgb), kLuvScale); });
}

template <class T>
void luvToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  eachPixel<T, T>(in, out, n, [](auto luv) { return rgbOfLuv(plain<T>(luv, kLuvScale)); });
}

template <class S, class D>
void rgbToLab(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  eachPixel<S, D>(in, out, n, [](auto rgb) { return coded<D>(labOf(rgb), kLabScale); });
}

template <class S, class D>
void labToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  eachPixel<S, D>(in, out, n, [](auto lab) { return rgbOfLab(plain<S>(lab, kLabScale)); });
}

}  // namespace qor
