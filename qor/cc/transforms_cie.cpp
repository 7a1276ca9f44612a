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
constexpr float kWhiteX = static_cast<float>(rowSum(0)), kWhiteZ = static_cast<float>(rowSum(2));
constexpr float kWhiteU = static_cast<float>(4 * rowSum(0) / kWhiteSum);
constexpr float kWhiteV = static_cast<float>(9 * rowSum(1) / kWhiteSum);
constexpr Matrix kToXyz = forRange(kXyz, 0, 1);

// Below (24/116)^3 of white, L* is linear: L* = (116/12)^3 Y, f(t) = 841/108 t + 16/116. The line touches the
// cube root's curve there and lies above it elsewhere, so the curve is the smaller of the line and of the
// root, kept from falling below that point. Choosing by t instead would let the compiler take roots of 0 for
// lanes whose result is dropped, and the units would tell an invalid operation that no caller asked for.
constexpr float kLinearBelow = 216.0f / 24389, kSlopeL = 24389.0f / 27, kSlopeF = 841.0f / 108,
                kShiftF = 16.0f / 116;

// No colour's v' comes near 0; what does is kept from a division by 0.
constexpr float kLeastV = 1e-3f;

struct Triple {
  float x, y, z;
};

// A first guess from a third of the exponent, then two Halley steps: relative
// error below 1e-6 for normal numbers above 0. Plain arithmetic, so that loops
// become vectors and every build gives the same bits.
inline float cubeRoot(float v) {
  const float guess =
      __builtin_bit_cast(float, static_cast<int>(__builtin_bit_cast(int, v) / 3 + 0x2a5137a0));
  const auto step = [v](float y) {
    const float cube = y * y * y;
    return y * (cube + 2 * v) / (2 * cube + v);
  };
  return step(step(guess));
}

inline Triple multiply(const Matrix& m, Triple t) {
  return {m.m[0][0] * t.x + m.m[0][1] * t.y + m.m[0][2] * t.z,
          m.m[1][0] * t.x + m.m[1][1] * t.y + m.m[1][2] * t.z,
          m.m[2][0] * t.x + m.m[2][1] * t.y + m.m[2][2] * t.z};
}

inline Triple luvOf(Triple rgb) {
  const Triple xyz = multiply(kToXyz, rgb);
  const float root = cubeRoot(atLeast(xyz.y, kLinearBelow));
  const float l = atMost(116 * root - 16, kSlopeL * xyz.y);
  const float sum = xyz.x + 15 * xyz.y + 3 * xyz.z;
  const float scale = 1 / (sum > 0 ? sum : 1);
  return {l, 13 * l * (4 * xyz.x * scale - kWhiteU), 13 * l * (9 * xyz.y * scale - kWhiteV)};
}

inline float luminance(float l) {
  const float t = (l + 16) * (1 / 116.0f);
  const float cube = t * t * t, line = l * (1 / kSlopeL);
  return l > kLinearBelow * kSlopeL ? cube : line;
}

inline Triple rgbOfLuv(Triple luv, const Matrix& toRgb) {
  const bool black = !(luv.x > 0);
  const float scale = 1 / (13 * (black ? 1 : luv.x));
  const float u = luv.y * scale + kWhiteU, v = atLeast(luv.z * scale + kWhiteV, kLeastV);
  const float light = luminance(luv.x), y = black ? 0 : light, quarter = y / (4 * v);
  return multiply(toRgb, {9 * u * quarter, y, (12 - 3 * u - 20 * v) * quarter});
}

inline float curve(float t) {
  const float root = cubeRoot(atLeast(t, kLinearBelow)), line = kSlopeF * t + kShiftF;
  return atMost(root, line);
}
inline float curveBack(float f) {
  const float cube = f * f * f, line = (f - kShiftF) * (1 / kSlopeF);
  return line > kLinearBelow ? cube : line;
}

inline Triple labOf(Triple rgb) {
  const Triple xyz = multiply(kToXyz, rgb);
  const float fx = curve(xyz.x * (1 / kWhiteX)), fy = curve(xyz.y), fz = curve(xyz.z * (1 / kWhiteZ));
  return {116 * fy - 16, 500 * (fx - fy), 200 * (fy - fz)};
}

inline Triple rgbOfLab(Triple lab, const Matrix& toRgb) {
  const float fy = (lab.x + 16) * (1 / 116.0f);
  const float fx = fy + lab.y * (1 / 500.0f), fz = fy - lab.z * (1 / 200.0f);
  return multiply(toRgb, {kWhiteX * curveBack(fx), curveBack(fy), kWhiteZ * curveBack(fz)});
}

// How the plain values lie in 0..1 of an integer.
struct Scale {
  Triple factor, offset;
};
constexpr Scale kLuvScale = {{100, 354, 262}, {0, -134, -140}};
constexpr Scale kLabScale = {{100, 255, 255}, {0, -128, -128}};

template <class T>
constexpr bool kIsFloat = false;
template <>
constexpr bool kIsFloat<Qor32f> = true;

template <class S>
Triple plain(Triple t, const Scale& s) {
  if (kIsFloat<S>) return t;
  return {t.x * s.factor.x + s.offset.x, t.y * s.factor.y + s.offset.y, t.z * s.factor.z + s.offset.z};
}

template <class D>
Triple coded(Triple t, const Scale& s) {
  if (kIsFloat<D>) return t;
  return {(t.x - s.offset.x) * (1 / s.factor.x), (t.y - s.offset.y) * (1 / s.factor.y),
          (t.z - s.offset.z) * (1 / s.factor.z)};
}

template <class S, class D, class Pixel>
void eachPixel(const TileRows& in, const TileRows& out, int n, Pixel pixel) {
  const Planes<const S> from(in);
  const Planes<D> to(out);
  D* __restrict a = to.a, * __restrict b = to.b, * __restrict c = to.c;
  for (int i = 0; i < n; ++i) {
    const Triple t = pixel({fraction(from.a[i]), fraction(from.b[i]), fraction(from.c[i])});
    a[i] = fromFraction<D>(t.x);
    b[i] = fromFraction<D>(t.y);
    c[i] = fromFraction<D>(t.z);
  }
}

}  // namespace

template <class T>
void rgbToLuv(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  eachPixel<T, T>(in, out, n, [](Triple rgb) { return coded<T>(luvOf(rgb), kLuvScale); });
}

template <class T>
void luvToRgb(const TileRows& in, const TileRows& out, int n, const Matrix& toRgb) {
  eachPixel<T, T>(in, out, n, [&](Triple luv) { return rgbOfLuv(plain<T>(luv, kLuvScale), toRgb); });
}

template <class S, class D>
void rgbToLab(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  eachPixel<S, D>(in, out, n, [](Triple rgb) { return coded<D>(labOf(rgb), kLabScale); });
}

template <class S, class D>
void labToRgb(const TileRows& in, const TileRows& out, int n, const Matrix& toRgb) {
  eachPixel<S, D>(in, out, n, [&](Triple lab) { return rgbOfLab(plain<S>(lab, kLabScale), toRgb); });
}

}  // namespace qor
