#include <algorithm>
#include <map>
#include <stdexcept>
#include <tuple>

#include "accuracy.h"

namespace {

constexpr Family kFamilies[] = {
    {"RGB", "YCbCr", "", "RGB to YCbCr",
     "Y = 16 + 219y, Cb = 128 + 224(B - y)/1.772, Cr = 128 + 224(R - y)/1.402; y = 0.299R + 0.587G + 0.114B",
     "ITU-R BT.601-7", true},
    {"YCbCr", "RGB", "", "YCbCr to RGB", "its inverse", "ITU-R BT.601-7", true},
    {"RGB", "YCbCr", "709HDTV", "RGB to YCbCr, 709HDTV",
     "Y = 16 + 219y, Cb = 128 + 224(B - y)/1.8556, Cr = 128 + 224(R - y)/1.5748; y = 0.2126R + 0.7152G + "
     "0.0722B",
     "ITU-R BT.709-6", true},
    {"YCbCr", "RGB", "709HDTV", "YCbCr to RGB, 709HDTV", "its inverse", "ITU-R BT.709-6", true},
    {"RGB", "YCbCr", "709CSC", "RGB to YCbCr, 709CSC",
     "the same y: Y = 255y, Cb = 128 + 255(B - y)/1.8556, Cr = 128 + 255(R - y)/1.5748",
     "ITU-R BT.709-6, full range", true},
    {"YCbCr", "RGB", "709CSC", "YCbCr to RGB, 709CSC", "its inverse", "ITU-R BT.709-6, full range", true},
    {"RGB", "YCbCr", "Gamma", "RGB to YCbCr, Gamma", "the curve of GammaFwd, then RGB to YCbCr",
     "ITU-R BT.709-6 and BT.601-7", false},
    {"RGB", "YUV", "", "RGB to YUV",
     "Y = 0.299R + 0.587G + 0.114B, U = 0.492(B - Y) + 128, V = 0.877(R - Y) + 128", "ITU-R BT.470-6 (PAL)",
     true},
    {"YUV", "RGB", "", "YUV to RGB", "its inverse", "ITU-R BT.470-6 (PAL)", true},
    {"RGB", "YCC", "", "RGB to YCC",
     "Y = y/1.402, C1 = (111.40(B - y) + 156)/255, C2 = (135.64(R - y) + 137)/255; y as in BT.601",
     "Kodak PhotoYCC", true},
    {"YCC", "RGB", "", "YCC to RGB", "its inverse", "Kodak PhotoYCC", true},
    {"RGB", "XYZ", "", "RGB to XYZ",
     "X = 0.412453R + 0.357580G + 0.180423B, Y = 0.212671R + 0.715160G + 0.072169B, Z = 0.019334R + "
     "0.119193G + 0.950227B",
     "CIE 15, ITU-R BT.709 primaries, D65", true},
    {"XYZ", "RGB", "", "XYZ to RGB", "its inverse", "CIE 15, ITU-R BT.709 primaries, D65", true},
    {"RGB", "Gray", "", "RGB to gray", "0.299R + 0.587G + 0.114B", "ITU-R BT.601-7", true},
    {"Color", "Gray", "", "Colour to gray", "c0 a + c1 b + c2 c, here of 0.2126, 0.7152, 0.0722",
     "the caller's coefficients", true},
    {"RGB", "HLS", "", "RGB to HLS",
     "L = (max + min)/2, S = (max - min)/(max + min or 2 - max - min), H by sixths of a turn",
     "Foley, van Dam et al., 13.3", false},
    {"HLS", "RGB", "", "HLS to RGB", "its inverse", "Foley, van Dam et al., 13.3", false},
    {"RGB", "HSV", "", "RGB to HSV", "V = max, S = (max - min)/max, H by sixths of a turn",
     "A. R. Smith, 1978", false},
    {"HSV", "RGB", "", "HSV to RGB", "its inverse", "A. R. Smith, 1978", false},
    {"RGB", "LUV", "", "RGB to LUV",
     "L = 116 cbrt(Y) - 16 or 24389/27 Y, u = 13L(u' - u'n), v = 13L(v' - v'n)", "CIE 15, 8.2.2", false},
    {"LUV", "RGB", "", "LUV to RGB", "its inverse, v' being 0.001 or more", "CIE 15, 8.2.2", false},
    {"RGB", "Lab", "", "RGB to Lab", "L = 116f(Y) - 16, a = 500(f(X/Xn) - f(Y)), b = 200(f(Y) - f(Z/Zn))",
     "CIE 15, 8.2.1", false},
    {"Lab", "RGB", "", "Lab to RGB", "its inverse", "CIE 15, 8.2.1", false},
    {"RGB", "YCoCg", "", "RGB to YCoCg", "Y = (R + 2G + B)/4, Co = (R - B)/2, Cg = (2G - R - B)/4",
     "JVT-I014", true},
    {"YCoCg", "RGB", "", "YCoCg to RGB", "R = Y - Cg + Co, G = Y + Cg, B = Y - Cg - Co", "JVT-I014", true},
    {"RGB", "YCoCg", "Rev", "RGB to YCoCg-R", "Co = R - B, t = B + (Co >> 1), Cg = G - t, Y = t + (Cg >> 1)",
     "JVT-I014", true},
    {"YCoCg", "RGB", "Rev", "YCoCg-R to RGB", "its inverse", "JVT-I014", true},
    {"ToneMapLinear", "ToneMapLinear", "", "Tone map, linear", "255(v - min)/(max - min)", "-", false},
    {"ToneMapMean", "ToneMapMean", "", "Tone map, mean", "127.5v/mean", "mean value mapping", false},
    {"ColorTwist32f", "ColorTwist32f", "", "Colour twist",
     "a 3x4 matrix, here of numbers of both signs up to 1.5", "the caller's coefficients", false},
    {"ColorTwist", "ColorTwist", "", "Colour twist", "the same", "the caller's coefficients", false},
    {"GammaFwd", "GammaFwd", "", "Gamma, forward",
     "4.5v below 0.018, else 1.099v^0.45 - 0.099; here floats of -0.25..1", "ITU-R BT.709-6, 1.2", false},
    {"GammaInv", "GammaInv", "", "Gamma, inverse", "v/4.5 below 0.081, else ((v + 0.099)/1.099)^(1/0.45)",
     "ITU-R BT.709-6, 1.2", false},
    {"ReduceBits", "ReduceBits", "", "Fewer bits, no dither",
     "the nearest of evenly spaced levels, here 3; places between them in 65536ths", "-", false},
};

const Family* familyOf(const Names& n) {
  const std::string variant = n.base.ends_with("Gamma") ? "Gamma" : n.variant;
  const bool isFormula = variant == "Gamma" || variant == "Rev" || variant.starts_with("709");
  for (const Family& f : kFamilies)
    if (n.source.space == f.from && n.target.space == f.into && (isFormula ? variant : "") == f.variant)
      return &f;
  // What only moves, and mosaics, stand in tests of their own.
  if (n.source.space != n.target.space && n.target.space + n.source.space != "RGBCFA" &&
      n.base != "DemosaicAHD")
    throw std::runtime_error("no family for " + n.base + " " + variant);
  return nullptr;
}

// The fewer, the less its layout does to a colour.
int complications(const Entry& e, const Layout& l) {
  return 8 * (l.blockWidth * l.blockHeight - 1) + 4 * (l.bits16[0] != 0) + 2 * (l.channels > 3) + l.planar +
         (e.inPlace() || e.sourcePart.ends_with("Tight") ? 1 : 0);
}

// In the table's order; 16-bit pixels hold bytes.
int typeOf(const Layout& l) {
  const std::string types[] = {"8u", "8s", "16u", "16s", "32s", "32f"};
  return l.bits16[0] ? 0 : int(std::find(std::begin(types), std::end(types), l.type) - types);
}

}  // namespace

const std::vector<Subject>& functions() {
  static const std::vector<Subject> all = [] {
    std::vector<Subject> list;
    for (const Entry& e : entries()) {
      const Names n = parse(e.name);
      if (const Family* family = familyOf(n)) list.push_back({family, &e, n});
    }
    return list;
  }();
  return all;
}

const std::vector<Subject>& subjects() {
  static const std::vector<Subject> all = [] {
    std::map<std::tuple<const Family*, int, int, bool>, std::pair<int, const Subject*>> best;
    for (const Subject& s : functions()) {
      const int cost = complications(*s.entry, s.names.source) + complications(*s.entry, s.names.target);
      auto [at, isNew] = best.try_emplace(
          {s.family, typeOf(s.names.source), typeOf(s.names.target), s.sharesChroma()}, cost, &s);
      if (cost < at->second.first) at->second = {cost, &s};
    }
    std::vector<Subject> list;
    for (const auto& [key, value] : best) list.push_back(*value.second);
    return list;
  }();
  return all;
}
