// Pixels whose values can be looked up or worked out by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "reference.h"

namespace {

constexpr Triple kGrey = {128, 128, 128}, kWhite = {255, 255, 255};
constexpr Triple kRed = {255, 0, 0}, kGreen = {0, 255, 0}, kBlue = {0, 0, 255};

struct Known {
  const char* function;
  Triple in, out;
};

constexpr Known kKnown[] = {
    {"qoriRGBToYCbCr_8u_C3R", kRed, {81, 90, 240}},
    {"qoriRGBToYCbCr_8u_C3R", kBlue, {41, 240, 110}},
    {"qoriYCbCrToRGB_8u_C3R", {235, 128, 128}, kWhite},
    {"qoriBGRToCbYCr422_709HDTV_8u_C3C2R", kBlue, {102, 63}},  // BGR: the last is red
    {"qoriBGRToYCbCr420_709CSC_8u_C3P3R", kBlue, {54, 99, 255}},
    {"qoriRGBToYUV_8u_C3R", kBlue, {29, 239, 103}},
    {"qoriRGBToYCC_8u_C3R", kBlue, {21, 255, 122}},
    {"qoriRGBToHLS_8u_C3R", kBlue, {170, 128, 255}},
    {"qoriRGBToHSV_8u_C3R", kBlue, {170, 255, 255}},
    {"qoriRGBToHSV_8u_C3R", kGrey, {0, 0, 128}},
    {"qoriHSVToRGB_8u_C3R", {85, 255, 255}, kGreen},
    // X 0.9505, Y 1, Z 1.0888, saturated.
    {"qoriRGBToXYZ_8u_C3R", kWhite, {242, 255, 255}},
    // BT.709's red: L* 53.24, a* 80.09, b* 67.20, u* 175.01, v* 37.75.
    {"qoriRGBToLUV_8u_C3R", kRed, {136, 223, 173}},
    {"qoriBGRToLab_8u_C3R", kBlue, {136, 208, 195}},
    // A flat picture and a black one.
    {"qoriToneMapLinear_32f8u_C1R", {3}, {0}},
    {"qoriToneMapMean_32f8u_C1R", {0}, {0}},
    // The ends of the range, as NaN and what is beyond it count.
    {"qoriGammaFwd_32f_C3R", {-5, 7, HUGE_VAL}, {-0.25, 1, 1}},
    {"qoriGammaInv_32f_C3R", {-HUGE_VAL, NAN, 3}, {-0.25, -0.25, 1}},
    {"qoriReduceBits_32f16s_C3R", {-1e30, 1e30, HUGE_VAL}, {-32768, 32767, 32767}},
    {"qoriReduceBits_32f16s_C3R", {-HUGE_VAL, NAN, 0.5}, {-32768, -32768, 0}},
};

TEST(Colours, AreConvertedAsStandardsTell) {
  for (const auto& [function, in, out] : kKnown) {
    Example x(entryOf(function), {1, 1});
    const std::vector<Location> from = x.source.locations(), to = x.target.locations();
    for (size_t i = 0; i < from.size(); ++i) x.source.setValue(from[i], in[i]);
    ASSERT_EQ(x.entry.run(x.call()), qorStsNoErr);
    for (size_t i = 0; i < to.size(); ++i)
      EXPECT_EQ(x.target.value(to[i]), out[i])
          << function << " of " << in[0] << " " << in[1] << " " << in[2] << ", element " << i;
  }
}

TEST(FilteredSlices, OfOneImageMeetWithoutASeam) {
  Example x(entryOf("qoriYCbCr420ToYCbCr422_Filter_8u_P2C2R"), {6, 12});
  std::mt19937 random(5);
  x.source.fillRandom(random);
  const Call whole = x.call();
  ASSERT_EQ(x.entry.run(whole), qorStsNoErr);
  const Bytes wanted = x.target.copy();
  x.target.fillBytes(0);
  const std::pair<int, int> slices[] = {{0, qoriSliceUpper}, {4, qoriSliceMiddle}, {8, qoriSliceLower}};
  for (const auto& [first, layout] : slices) {
    Call slice = whole;
    slice.source[0] = x.source.row(0, first), slice.source[1] = x.source.row(1, first / 2);
    slice.target[0] = x.target.row(0, first);
    slice.size.height = 4, slice.layout = layout;
    ASSERT_EQ(x.entry.run(slice), qorStsNoErr);
  }
  EXPECT_EQ(x.target.copy(), wanted);
}

}  // namespace
