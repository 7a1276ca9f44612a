// matrices.h: which linear maps lead from one colour space to the next?
//
// All on values of 0..1, kept in double precision; `forRange` then folds in the
// range of an element type. Inverses are computed, not typed.
#ifndef QOR_CC_MATRICES_H
#define QOR_CC_MATRICES_H

#include "transforms.h"

namespace qor {

struct Linear {
  double m[3][3] = {};
  double offset[3] = {};  // added to the products
};

// Y = black + scale * luma, with luma = kr R + kg G + kb B, kr + kg + kb = 1;
// chroma = zero + factor * (B - luma), (R - luma).
struct LumaChroma {
  double kr, kb;
  double scale, black;
  double factorB, factorR;
  double zeroB, zeroR;
};

constexpr Linear linear(const LumaChroma& s) {
  const double luma[3] = {s.kr, 1 - s.kr - s.kb, s.kb};
  Linear r;
  for (int i = 0; i < 3; ++i) {
    r.m[0][i] = s.scale * luma[i];
    r.m[1][i] = s.factorB * ((i == 2) - luma[i]);
    r.m[2][i] = s.factorR * ((i == 0) - luma[i]);
  }
  r.offset[0] = s.black;
  r.offset[1] = s.zeroB;
  r.offset[2] = s.zeroR;
  return r;
}

// The digital form: chroma differences fill `chroma` of 0..1 about 128/255.
constexpr Linear digital(double kr, double kb, double luma, double black, double chroma) {
  const double zero = 128 / 255.0;
  return linear({kr, kb, luma, black, chroma / (2 * (1 - kb)), chroma / (2 * (1 - kr)), zero, zero});
}

// By cofactors.
constexpr Linear inverse(const Linear& a) {
  Linear r;
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) {
      const int i1 = (i + 1) % 3, i2 = (i + 2) % 3, j1 = (j + 1) % 3, j2 = (j + 2) % 3;
      r.m[j][i] = a.m[i1][j1] * a.m[i2][j2] - a.m[i1][j2] * a.m[i2][j1];
    }
  const double det = a.m[0][0] * r.m[0][0] + a.m[0][1] * r.m[1][0] + a.m[0][2] * r.m[2][0];
  for (auto& row : r.m)
    for (double& value : row) value /= det;
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) r.offset[i] -= r.m[i][j] * a.offset[j];
  return r;
}

constexpr double magnitude(double v) {
  return v < 0 ? -v : v;
}
constexpr int toNearest(double v) {
  return static_cast<int>(v < 0 ? v - 0.5 : v + 0.5);
}
constexpr int16_t word(int v) {
  if (v < -32768 || v > 32767) __builtin_unreachable();  // not a constant then: no such matrix compiles
  return static_cast<int16_t>(v);
}

// Factors below 1 get 15 bits, others 14. The offset holds the half that rounds and
// makes the middle of the range exact, whatever the factors have lost.
constexpr Fixed fixedPoint(const Linear& a) {
  Fixed r;
  double largest = 0;
  for (const auto& row : a.m)
    for (int j = 0; j < 3; ++j)
      if (magnitude(row[j]) > largest) {
        largest = magnitude(row[j]);
        r.twice = j;
      }
  r.shift = largest < 0.9999 ? 15 : 14;
  const double one = 1 << r.shift;
  for (int i = 0; i < 3; ++i) {
    double offset = a.offset[i] * 255 + 0.5;
    int ofMiddle = 0;
    for (int j = 0; j < 3; ++j) {
      const int factor = toNearest(a.m[i][j] * one);
      const int share = j == r.twice && (factor < -32768 || factor > 32767) ? factor / 2 : 0;
      r.m[i][j] = word(factor - share);
      if (j == r.twice) r.m[i][3] = word(share);
      offset += 128 * a.m[i][j];
      ofMiddle += 128 * factor;
    }
    r.offset[i] = toNearest(offset * one) - ofMiddle;
  }
  return r;
}

// Each product loses half a unit on the average.
constexpr Luma lumaOf(const Linear& a) {
  Luma r;
  double most = a.offset[0] * 255 + 0.5;
  for (int j = 0; j < 3; ++j) {
    if (a.m[0][j] < 0 || a.m[0][j] >= 0.9999) return {};
    r.of[j] = static_cast<uint16_t>(toNearest(a.m[0][j] * 65536));
    most += 255 * a.m[0][j];
  }
  r.offset = static_cast<uint16_t>(toNearest((a.offset[0] * 255 + 0.5) * 256 + 1));
  // No result may need clamping.
  r.isKnown = a.offset[0] >= 0 && most < 256;
  return r;
}

// Rows 1 and 2, in which the factors of a gray come to nothing, in 15 bits for sums of
// four samples.
constexpr ToHalf toHalf(const Linear& a) {
  ToHalf r;
  for (int i = 0; i < 2; ++i) {
    const auto& row = a.m[i + 1];
    double least = a.offset[i + 1] * 255 + 0.5, most = least;
    for (const double factor : row) {
      if (magnitude(factor) >= 0.9999) return {};
      (factor < 0 ? least : most) += 255 * factor;
    }
    // A sample beyond the range would have to be held before it goes into the mean.
    if (magnitude(row[0] + row[1] + row[2]) > 1e-9 || least < 0 || most > 256) return {};
    r.m[i][0] = word(toNearest(row[0] * 32768));
    r.m[i][1] = word(toNearest(row[2] * 32768));
    r.offset[i] = toNearest((a.offset[i + 1] * 255 + 0.5) * (1 << 17));
  }
  r.isKnown = true;
  return r;
}

// `times` sets how wide the sums are, 65536 / times for one count of the result. The
// product of blue has to be a word: beyond its width the terms are halved.
constexpr FromLuma fromLuma(const Linear& a, int times) {
  const double wide = 65536.0 / times;
  // Of bytes that go in 256 times as large, into products that lose 15 bits.
  const auto factor = [&](double f) { return toNearest(f * wide * 128); };
  const bool halved = factor(a.m[2][1]) > 32767;
  const double ends = halved ? 0.5 : 1;
  double middle = a.offset[1] * 255;
  for (int j = 1; j < 3; ++j) middle += 128 * a.m[1][j];
  FromLuma r;
  r.luma = static_cast<uint16_t>(toNearest(a.m[0][0] * wide * 256));
  // Half a unit is what the product of luma loses on the average.
  r.offset = word(toNearest((middle - 128 + 0.5) * wide + 0.5));
  r.red = word(factor(ends * a.m[0][2]));
  r.greenB = word(factor(a.m[1][1]));
  r.greenC = word(factor(a.m[1][2]));
  r.blue = word(factor(ends * a.m[2][1]));
  r.times = word(times);
  r.halved = halved;
  return r;
}

// For elements that hold 0..1 as low..low + span.
constexpr Matrix forRange(const Linear& a, double low, double span) {
  Matrix r = {};
  for (int i = 0; i < 3; ++i) {
    double offset = a.offset[i] * span + low;
    for (int j = 0; j < 3; ++j) {
      r.m[i][j] = static_cast<float>(a.m[i][j]);
      offset -= a.m[i][j] * low;
    }
    r.offset[i] = static_cast<float>(offset);
  }
  if (low == 0 && span == 255) {
    r.fixed = fixedPoint(a);
    r.luma = lumaOf(a);
    r.toHalf = toHalf(a);
  }
  return r;
}

// ITU-R BT.601-7, 2.5.1 and 2.5.3; BT.709-6, items 3.2 to 3.4.
constexpr Linear kYcbcr601 = digital(0.299, 0.114, 219 / 255.0, 16 / 255.0, 224 / 255.0);
constexpr Linear kYcbcr709Hdtv = digital(0.2126, 0.0722, 219 / 255.0, 16 / 255.0, 224 / 255.0);
constexpr Linear kYcbcr709Csc = digital(0.2126, 0.0722, 1, 0, 1);

// PAL's U and V, moved to the middle of the range.
constexpr Linear kYuv = linear({0.299, 0.114, 1, 0, 0.492, 0.877, 128 / 255.0, 128 / 255.0});

// Kodak PhotoYCC's 8-bit coding, BT.601 luma of BT.709-coded primaries.
constexpr Linear kYcc =
    linear({0.299, 0.114, 1 / 1.402, 0, 111.40 / 255, 135.64 / 255, 156 / 255.0, 137 / 255.0});

// CIE 1931 XYZ of BT.709's primaries and D65, its Y being 1.
constexpr Linear kXyz = {
    {{0.412453, 0.357580, 0.180423}, {0.212671, 0.715160, 0.072169}, {0.019334, 0.119193, 0.950227}}, {}};

constexpr Linear kGray = {{{0.299, 0.587, 0.114}, {}, {}}, {}};

}  // namespace qor

#endif
