#include "reference.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <stdexcept>

namespace {

template <class F>
Triple each(const Triple& c, F f) {
  return {f(c[0]), f(c[1]), f(c[2])};
}

Triple fractions(const Triple& t, const Layout& l) {
  return each(t, [&](double v) { return (v - l.low()) / (l.high() - l.low()); });
}
Triple elements(const Triple& t, const Layout& l) {
  return each(t, [&](double v) { return l.low() + v * (l.high() - l.low()); });
}

double transferCurve(double light) {
  return light < 0.018 ? 4.5 * light : 1.099 * std::pow(light, 0.45) - 0.099;
}
double transferCurveBack(double v) {
  return v < 0.081 ? v / 4.5 : std::pow((v + 0.099) / 1.099, 1 / 0.45);
}

// Luma and colour differences. YCbCr and YUV: 0..255 in and out.
struct LumaSpace {
  double red, blue;            // shares of luma
  double black, luma, chroma;  // 0, and the spans of Y and of the differences, which lie about 128
  double ofBlue, ofRed;        // spans of B - Y and R - Y

  double y(const Triple& c) const { return red * c[0] + (1 - red - blue) * c[1] + blue * c[2]; }
  Triple into(const Triple& c) const {
    const double light = y(c);
    return {black + luma * light / 255, 128 + chroma * (c[2] - light) / ofBlue,
            128 + chroma * (c[0] - light) / ofRed};
  }
  Triple from(const Triple& c) const {
    const double light = (c[0] - black) * 255 / luma;
    const double r = light + (c[2] - 128) * ofRed / chroma, b = light + (c[1] - 128) * ofBlue / chroma;
    return {r, (light - red * r - blue * b) / (1 - red - blue), b};
  }
};

const LumaSpace& lumaSpace(const Names& n) {
  static const LumaSpace bt601 = {0.299, 0.114, 16, 219, 224, 255 * 1.772, 255 * 1.402},
                         hdtv = {0.2126, 0.0722, 16, 219, 224, 255 * 1.8556, 255 * 1.5748},
                         csc = {0.2126, 0.0722, 0, 255, 1, 1.8556, 1.5748},
                         yuv = {0.299, 0.114, 0, 255, 1, 1 / 0.492, 1 / 0.877};
  if (n.variant == "709HDTV") return hdtv;
  if (n.variant == "709CSC") return csc;
  return n.source.space == "YUV" || n.target.space == "YUV" ? yuv : bt601;
}

// The rest: fractions of RGB in, fractions of the space out, but for LUV and Lab.
Triple toYcc(const Triple& c) {
  const double y = 0.299 * c[0] + 0.587 * c[1] + 0.114 * c[2];
  return {y / 1.402, (111.40 * (c[2] - y) + 156) / 255, (135.64 * (c[0] - y) + 137) / 255};
}
Triple fromYcc(const Triple& c) {
  const double y = 1.402 * c[0], blue = (255 * c[1] - 156) / 111.40, red = (255 * c[2] - 137) / 135.64;
  return {y + red, y - (0.114 * blue + 0.299 * red) / 0.587, y + blue};
}

constexpr double kXyz[3][3] = {
    {0.412453, 0.357580, 0.180423}, {0.212671, 0.715160, 0.072169}, {0.019334, 0.119193, 0.950227}};

Triple toXyz(const Triple& c) {
  Triple r = {};
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) r[i] += kXyz[i][j] * c[j];
  return r;
}

// Of three columns.
double determinant(const Triple& a, const Triple& b, const Triple& c) {
  return a[0] * (b[1] * c[2] - c[1] * b[2]) - b[0] * (a[1] * c[2] - c[1] * a[2]) +
         c[0] * (a[1] * b[2] - b[1] * a[2]);
}

// Cramer's rule: the published inverse has six digits, too few for 16 bits.
Triple fromXyz(const Triple& xyz) {
  const Triple red = toXyz({1, 0, 0}), green = toXyz({0, 1, 0}), blue = toXyz({0, 0, 1});
  const double all = determinant(red, green, blue);
  return {determinant(xyz, green, blue) / all, determinant(red, xyz, blue) / all,
          determinant(red, green, xyz) / all};
}

double hue(const Triple& c, double most, double spread) {
  if (spread == 0) return 0;
  const double turn = c[0] == most   ? (c[1] - c[2]) / spread
                      : c[1] == most ? 2 + (c[2] - c[0]) / spread
                                     : 4 + (c[0] - c[1]) / spread;
  return (turn < 0 ? turn + 6 : turn) / 6;
}
Triple toHls(const Triple& c) {
  const auto [least, most] = std::minmax({c[0], c[1], c[2]});
  const double l = (most + least) / 2, spread = most - least;
  if (spread == 0) return {0, l, 0};
  return {hue(c, most, spread), l, l <= 0.5 ? spread / (most + least) : spread / (2 - most - least)};
}
Triple toHsv(const Triple& c) {
  const auto [least, most] = std::minmax({c[0], c[1], c[2]});
  return {hue(c, most, most - least), most == 0 ? 0 : (most - least) / most, most};
}

// Foley and van Dam's helper, degrees.
double hlsValue(double m1, double m2, double degrees) {
  degrees = std::fmod(degrees + 360, 360);
  if (degrees < 60) return m1 + (m2 - m1) * degrees / 60;
  if (degrees < 180) return m2;
  return degrees < 240 ? m1 + (m2 - m1) * (240 - degrees) / 60 : m1;
}
Triple fromHls(const Triple& c) {
  const auto [h, l, s] = c;
  const double m2 = l <= 0.5 ? l * (1 + s) : l + s - l * s, m1 = 2 * l - m2;
  return {hlsValue(m1, m2, 360 * h + 120), hlsValue(m1, m2, 360 * h), hlsValue(m1, m2, 360 * h - 120)};
}
Triple fromHsv(const Triple& c) {
  const auto [h, s, v] = c;
  const double sixth = std::fmod(6 * h, 6), f = sixth - std::floor(sixth);
  const double p = v * (1 - s), q = v * (1 - s * f), t = v * (1 - s * (1 - f));
  const Triple sectors[] = {{v, t, p}, {q, v, p}, {p, v, t}, {p, q, v}, {t, p, v}, {v, p, q}};
  return sectors[static_cast<int>(sixth)];
}

constexpr double kLinearBelow = 216.0 / 24389;

// D65 by the matrix above.
constexpr double kWhite[3] = {0.950456, 1, 1.088754}, kWhiteSum = kWhite[0] + 15 + 3 * kWhite[2];
constexpr double kWhiteU = 4 * kWhite[0] / kWhiteSum, kWhiteV = 9 / kWhiteSum;

Triple toLuv(const Triple& rgb) {
  const auto [x, y, z] = toXyz(rgb);
  const double l = y > kLinearBelow ? 116 * std::cbrt(y) - 16 : 24389.0 / 27 * y, sum = x + 15 * y + 3 * z;
  if (sum == 0) return {0, 0, 0};
  return {l, 13 * l * (4 * x / sum - kWhiteU), 13 * l * (9 * y / sum - kWhiteV)};
}
Triple fromLuv(const Triple& c) {
  if (c[0] <= 0) return {0, 0, 0};
  const double y = c[0] > 8 ? std::pow((c[0] + 16) / 116, 3) : c[0] * 27 / 24389;
  // No real colour has a v' near 0: the library stops at a thousandth.
  const double u = c[1] / (13 * c[0]) + kWhiteU, v = std::max(c[2] / (13 * c[0]) + kWhiteV, 1e-3);
  return fromXyz({y * 9 * u / (4 * v), y, y * (12 - 3 * u - 20 * v) / (4 * v)});
}

double labCurve(double t) {
  return t > kLinearBelow ? std::cbrt(t) : 841.0 / 108 * t + 16.0 / 116;
}
double labCurveBack(double f) {
  return f > 24.0 / 116 ? f * f * f : (f - 16.0 / 116) * 108 / 841;
}
Triple toLab(const Triple& rgb) {
  const Triple xyz = toXyz(rgb);
  const double fx = labCurve(xyz[0] / kWhite[0]), fy = labCurve(xyz[1]), fz = labCurve(xyz[2] / kWhite[2]);
  return {116 * fy - 16, 500 * (fx - fy), 200 * (fy - fz)};
}
Triple fromLab(const Triple& c) {
  const double fy = (c[0] + 16) / 116;
  return fromXyz({kWhite[0] * labCurveBack(fy + c[1] / 500), labCurveBack(fy),
                  kWhite[2] * labCurveBack(fy - c[2] / 200)});
}

// YCoCg: plain numbers. Lossless: the low bits of a number.
int64_t wrapped(int64_t v, const Layout& l) {
  return l.elementSize() == 2 ? static_cast<int16_t>(v) : static_cast<int32_t>(v);
}
int64_t half(int64_t v) {
  return (v - (v & 1)) / 2;
}

Triple toYcocg(const Triple& c, bool lossless, const Layout& target) {
  const double zero = target.type == "8u" ? 128 : 0;
  const auto [r, g, b] = c;
  if (!lossless) return {(r + 2 * g + b) / 4, (r - b) / 2 + zero, (2 * g - r - b) / 4 + zero};
  const auto wrap = [&](int64_t v) { return wrapped(v, target); };
  const int64_t co = wrap(int64_t(r) - int64_t(b)), t = wrap(int64_t(b) + half(co));
  const int64_t cg = wrap(int64_t(g) - t);
  return {double(wrap(t + half(cg))), double(co), double(cg)};
}
Triple fromYcocg(const Triple& c, bool lossless, const Layout& source) {
  const double zero = source.type == "8u" ? 128 : 0;
  if (!lossless) {
    const double y = c[0], co = c[1] - zero, cg = c[2] - zero;
    return {y - cg + co, y + cg, y - cg - co};
  }
  const auto wrap = [&](int64_t v) { return wrapped(v, source); };
  const int64_t y = int64_t(c[0]), co = int64_t(c[1]), cg = int64_t(c[2]);
  const int64_t t = wrap(y - half(cg)), b = wrap(t - half(co));
  return {double(wrap(b + co)), double(wrap(cg + t)), double(b)};
}

using Map = std::function<Triple(const Triple&)>;

// A space of three fractions of an element's range, or of numbers from low to low + span.
struct Space {
  Map fromRgb, toRgb;
  Triple low = {0, 0, 0}, span = {1, 1, 1};
};

const Space& spaceOf(const std::string& name) {
  static const std::map<std::string, Space> all = {
      {"YCC", {toYcc, fromYcc}},
      {"XYZ", {toXyz, fromXyz}},
      {"HLS", {toHls, fromHls}},
      {"HSV", {toHsv, fromHsv}},
      {"LUV", {toLuv, fromLuv, {0, -134, -140}, {100, 354, 262}}},
      {"Lab", {toLab, fromLab, {0, -128, -128}, {100, 255, 255}}},
  };
  return all.at(name);
}

// Floats of LUV are the numbers themselves.
bool isPlain(const Layout& l) {
  return l.space == "LUV" && l.type == "32f";
}

Triple fromRgb(const Names& n, const Triple& rgb) {
  const Space& space = spaceOf(n.target.space);
  Triple t = space.fromRgb(fractions(rgb, n.source));
  if (isPlain(n.target)) return t;
  for (int i = 0; i < 3; ++i) t[i] = (t[i] - space.low[i]) / space.span[i];
  return elements(t, n.target);
}

Triple toRgb(const Names& n, const Triple& source) {
  const Space& space = spaceOf(n.source.space);
  Triple t = fractions(source, n.source);
  for (int i = 0; i < 3 && !isPlain(n.source); ++i) t[i] = t[i] * space.span[i] + space.low[i];
  return elements(space.toRgb(t), n.target);
}

double weighted(const Triple& c, const double (&w)[3]) {
  return c[0] * w[0] + c[1] * w[1] + c[2] * w[2];
}

// Values that fill low..high.
double gammaOf(const Names& n, double v, const Surroundings& around) {
  const bool isFloat = n.source.type == "32f";
  const double low = isFloat ? around.low : n.source.low(), high = isFloat ? around.high : n.source.high();
  const double fraction = std::clamp((v - low) / (high - low), 0.0, 1.0);
  return low + (high - low) * (n.base == "GammaFwd" ? transferCurve : transferCurveBack)(fraction);
}

double reduced(const Names& n, double v, int levels) {
  const double exact = (v - n.source.low()) / (n.source.high() - n.source.low()) * (levels - 1);
  const double place = std::floor(exact * 65536 + 0.5) / 65536;
  return n.target.low() + std::floor(place + 0.5) / (levels - 1) * (n.target.high() - n.target.low());
}

// The largest of what is added for each result of an affine map: the offset and the products.
Triple affineTerms(const Map& map, const Triple& source) {
  const Triple offset = map({});
  Triple most = each(offset, [](double v) { return std::abs(v); });
  for (int j = 0; j < 3; ++j) {
    Triple one = {};
    one[j] = source[j];
    const Triple product = map(one);
    for (int i = 0; i < 3; ++i) most[i] = std::max(most[i], std::abs(product[i] - offset[i]));
  }
  return most;
}

double hueTerm(const Triple& c, double hue) {
  const double most = std::max({c[0], c[1], c[2]});
  if (c[0] == most) return c[1] < c[2] ? 1 : hue;
  return std::max(hue, (c[1] == most ? 2 : 4) / 6.0);
}

Triple luvTerms(const Triple& rgb) {
  const auto [x, y, z] = toXyz(rgb);
  const double l = toLuv(rgb)[0], sum = x + 15 * y + 3 * z;
  if (sum == 0) return {0, 0, 0};
  return {std::max(l, l + 16), 13 * l * std::max(4 * x / sum, kWhiteU),
          13 * l * std::max(9 * y / sum, kWhiteV)};
}

// X and Z are u' and 12 times Y / (4 v'), roughly; then the matrix.
Triple rgbOfLuvTerms(const Triple& luv) {
  const Triple rgb = fromLuv(luv), xyz = toXyz(rgb);
  const double v = luv[0] > 0 ? luv[2] / (13 * luv[0]) + kWhiteV : 1;
  const Triple terms = {std::abs(xyz[0]), xyz[1], 12 * xyz[1] / (4 * v)};
  return affineTerms(fromXyz, terms);
}

}  // namespace

Surroundings::Surroundings(const Call& c, const Image& source)
    : coeffs{c.coeffs[0], c.coeffs[1], c.coeffs[2]},
      twist(c.twist),
      low(c.vMin),
      high(c.vMax),
      levels(c.levels) {
  if (!source.layout.space.starts_with("ToneMap")) return;
  const std::vector<Location> pixels = source.locations();
  least = most = source.value(pixels[0]);
  for (const Location& at : pixels) {
    const double v = source.value(at);
    least = std::min(least, v);
    most = std::max(most, v);
    mean += v / double(pixels.size());
  }
}

double twisted(const float (&row)[4], const Triple& source, double fourth) {
  return row[0] * source[0] + row[1] * source[1] + row[2] * source[2] + row[3] * fourth;
}

Triple expected(const Names& n, const Triple& source, const Surroundings& around) {
  const std::string &from = n.source.space, &into = n.target.space;
  const bool lossless = n.variant == "Rev";
  if (n.base == "ToneMapLinear")
    return {around.most == around.least ? 0
                                        : 255 * (source[0] - around.least) / (around.most - around.least)};
  if (n.base == "ToneMapMean") return {around.mean == 0 ? 0 : 127.5 * source[0] / around.mean};
  if (n.base.starts_with("ColorTwist")) {
    Triple r;
    for (int i = 0; i < 3; ++i) r[i] = twisted(around.twist[i], source, around.fourth);
    return r;
  }
  if (n.base.starts_with("Gamma")) return each(source, [&](double v) { return gammaOf(n, v, around); });
  if (n.base == "ReduceBits") return each(source, [&](double v) { return reduced(n, v, around.levels); });
  if (from == into) return source;
  if (from == "Color") return {weighted(source, around.coeffs)};
  if (into == "Gray") return {weighted(source, {0.299, 0.587, 0.114})};
  if (into == "YCbCr" || into == "YUV")
    return lumaSpace(n).into(n.base.ends_with("Gamma")
                                 ? each(source, [](double v) { return 255 * transferCurve(v / 255); })
                                 : source);
  if (from == "YCbCr" || from == "YUV") return lumaSpace(n).from(source);
  if (into == "YCoCg") return toYcocg(source, lossless, n.target);
  if (from == "YCoCg") return fromYcocg(source, lossless, n.source);
  return from == "RGB" ? fromRgb(n, source) : toRgb(n, source);
}

Triple largestTerms(const Names& n, const Triple& source, const Surroundings& around) {
  const Triple plain = expected(n, source, around);
  const Triple result = each(plain, [](double v) { return std::abs(v); });
  if (n.base.starts_with("Gamma"))
    return each(plain, [&](double v) { return std::max(std::abs(around.low), std::abs(v - around.low)); });
  if (n.target.space == "HLS") return {hueTerm(source, result[0]), result[1], result[2]};
  if (n.source.space == "HLS") {
    const auto [least, most] = std::minmax({plain[0], plain[1], plain[2]});
    const double term = std::max(2 * source[1], (most - least) * 6 * source[0]);
    return {term, term, term};
  }
  if (n.target.space == "LUV") return luvTerms(source);
  if (n.source.space == "LUV") return rgbOfLuvTerms(source);
  return affineTerms([&](const Triple& one) { return expected(n, one, around); }, source);
}

double countError(const Layout& l, int component, double got, double wanted) {
  // A hair more than a half: 2.5 may be 2.4999999 in double.
  const double nearest = std::floor(std::clamp(wanted, l.low(), l.high()) + 0.5 + 1e-9);
  const double d = std::abs(got - nearest);
  const bool isHue = component == 0 && (l.space == "HLS" || l.space == "HSV");
  return isHue ? std::min(d, l.high() - l.low() - d) : d;
}
