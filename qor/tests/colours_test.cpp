// Colours whose values can be looked up or worked out by hand.
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

#include "qorcc.h"

namespace {

using Pixel = std::array<int, 3>;
using Convert = QorStatus (*)(const Qor8u*, int, Qor8u*, int, QoriSize);

constexpr Pixel kBlack = {0, 0, 0}, kWhite = {255, 255, 255};
constexpr Pixel kRed = {255, 0, 0}, kGreen = {0, 255, 0}, kBlue = {0, 0, 255};

Pixel through(Convert convert, const Pixel& p) {
  const Qor8u in[3] = {Qor8u(p[0]), Qor8u(p[1]), Qor8u(p[2])};
  Qor8u out[3] = {};
  EXPECT_EQ(convert(in, 3, out, 3, {1, 1}), qorStsNoErr);
  return {out[0], out[1], out[2]};
}

TEST(KnownColours, OfBt601) {
  EXPECT_EQ(through(qoriRGBToYCbCr_8u_C3R, kBlack), (Pixel{16, 128, 128}));
  EXPECT_EQ(through(qoriRGBToYCbCr_8u_C3R, kWhite), (Pixel{235, 128, 128}));
  EXPECT_EQ(through(qoriRGBToYCbCr_8u_C3R, kRed), (Pixel{81, 90, 240}));
  EXPECT_EQ(through(qoriRGBToYCbCr_8u_C3R, kGreen), (Pixel{145, 54, 34}));
  EXPECT_EQ(through(qoriRGBToYCbCr_8u_C3R, kBlue), (Pixel{41, 240, 110}));
  EXPECT_EQ(through(qoriYCbCrToRGB_8u_C3R, {235, 128, 128}), kWhite);
  EXPECT_EQ(through(qoriYCbCrToRGB_8u_C3R, {0, 128, 128}), kBlack);
}

TEST(KnownColours, OfBt709InPacked422) {
  const Qor8u redTwice[6] = {0, 0, 255, 0, 0, 255};  // BGR
  Qor8u uyvy[4] = {};
  EXPECT_EQ(qoriBGRToCbYCr422_709HDTV_8u_C3C2R(redTwice, 6, uyvy, 4, {2, 1}), qorStsNoErr);
  EXPECT_EQ(std::vector<Qor8u>(uyvy, uyvy + 4), (std::vector<Qor8u>{102, 63, 240, 63}));
}

TEST(KnownColours, OfHueSpaces) {
  EXPECT_EQ(through(qoriRGBToHLS_8u_C3R, kRed), (Pixel{0, 128, 255}));
  EXPECT_EQ(through(qoriRGBToHLS_8u_C3R, kGreen), (Pixel{85, 128, 255}));
  EXPECT_EQ(through(qoriRGBToHLS_8u_C3R, kBlue), (Pixel{170, 128, 255}));
  EXPECT_EQ(through(qoriRGBToHLS_8u_C3R, kWhite), (Pixel{0, 255, 0}));
  EXPECT_EQ(through(qoriRGBToHSV_8u_C3R, kBlue), (Pixel{170, 255, 255}));
  EXPECT_EQ(through(qoriRGBToHSV_8u_C3R, {128, 128, 128}), (Pixel{0, 0, 128}));
  EXPECT_EQ(through(qoriHSVToRGB_8u_C3R, {85, 255, 255}), kGreen);
  EXPECT_EQ(through(qoriHLSToRGB_8u_C3R, {200, 255, 0}), kWhite);
}

TEST(KnownColours, OfCieSpaces) {
  // White: L* 100, u* v* a* b* 0; X 0.9505, Y 1, Z 1.0888, saturated.
  EXPECT_EQ(through(qoriRGBToXYZ_8u_C3R, kWhite), (Pixel{242, 255, 255}));
  EXPECT_EQ(through(qoriRGBToLUV_8u_C3R, kWhite), (Pixel{255, 97, 136}));
  EXPECT_EQ(through(qoriBGRToLab_8u_C3R, kWhite), (Pixel{255, 128, 128}));
  EXPECT_EQ(through(qoriBGRToLab_8u_C3R, kBlack), (Pixel{0, 128, 128}));
  // BT.709's red: L* 53.24, a* 80.09, b* 67.20, u* 175.01, v* 37.75.
  EXPECT_EQ(through(qoriBGRToLab_8u_C3R, kBlue), (Pixel{136, 208, 195}));  // BGR: the last is red
  EXPECT_EQ(through(qoriRGBToLUV_8u_C3R, kRed), (Pixel{136, 223, 173}));
}

TEST(KnownColours, OfPhotoYccAndYuv) {
  EXPECT_EQ(through(qoriRGBToYCC_8u_C3R, kWhite), (Pixel{182, 156, 137}));
  EXPECT_EQ(through(qoriRGBToYCC_8u_C3R, kBlue), (Pixel{21, 255, 122}));
  EXPECT_EQ(through(qoriRGBToYUV_8u_C3R, kWhite), (Pixel{255, 128, 128}));
  EXPECT_EQ(through(qoriRGBToYUV_8u_C3R, kBlue), (Pixel{29, 239, 103}));
}

TEST(Packing, PutsTheFirstNamedColourIntoTheLowestBits) {
  const Qor8u red[3] = {255, 0, 0};
  Qor16u word = 0;
  EXPECT_EQ(qoriRGBToRGB565_8u16u_C3R(red, 3, &word, 2, {1, 1}), qorStsNoErr);
  EXPECT_EQ(word, 0x001F);
  EXPECT_EQ(qoriBGRToBGR565_8u16u_C3R(red, 3, &word, 2, {1, 1}), qorStsNoErr);  // here it is blue
  EXPECT_EQ(word, 0x001F);
  const Qor8u grey[3] = {235, 128, 128};
  EXPECT_EQ(qoriYCbCrToRGB555_8u16u_C3R(grey, 3, &word, 2, {1, 1}), qorStsNoErr);
  EXPECT_EQ(word, 0x7FFF);
  EXPECT_EQ(qoriYCbCrToBGR444_8u16u_C3R(grey, 3, &word, 2, {1, 1}), qorStsNoErr);
  EXPECT_EQ(word, 0x0FFF);
}

TEST(Packing, DitheringKeepsTheMeanOfAFlatArea) {
  // RGB 136 lies half a step above 128 in 4 bits: half of the 16 thresholds
  // carry it up.
  std::vector<Qor8u> flat(16 * 3, 128);
  for (int i = 0; i < 16; ++i) flat[3 * i] = 133;  // Y 133 is RGB 136
  Qor16u words[16] = {};
  EXPECT_EQ(qoriYCbCrToRGB444Dither_8u16u_C3R(flat.data(), 12, words, 8, {4, 4}), qorStsNoErr);
  int sum = 0;
  for (Qor16u w : words) sum += w & 15;
  EXPECT_EQ(sum, 16 * 8 + 8);
}

TEST(YCoCgR, LosesNothing) {
  std::mt19937 random(3);
  std::vector<Qor16s> pixels(300), back(300), planes(300);
  for (Qor16s& v : pixels) v = static_cast<Qor16s>(random());
  pixels[0] = pixels[4] = -32768, pixels[1] = pixels[5] = 32767;
  Qor16s* target[3] = {&planes[0], &planes[100], &planes[200]};
  const Qor16s* source[3] = {target[0], target[1], target[2]};
  EXPECT_EQ(qoriSBGRToYCoCg_Rev_16s_C3P3R(pixels.data(), 600, target, 200, {100, 1}), qorStsNoErr);
  EXPECT_EQ(qoriYCoCgToSBGR_Rev_16s_P3C3R(source, 200, back.data(), 600, {100, 1}), qorStsNoErr);
  EXPECT_EQ(pixels, back);
}

TEST(ToneMapping, OfAFlatOrBlackImageIsBlack) {
  const float flat[4] = {3, 3, 3, 3}, black[4] = {}, ramp[4] = {0, 1, 2, 3};
  Qor8u out[4];
  const std::vector<Qor8u> zeros(4, 0);
  EXPECT_EQ(qoriToneMapLinear_32f8u_C1R(flat, 16, out, 4, {4, 1}), qorStsNoErr);
  EXPECT_EQ(std::vector<Qor8u>(out, out + 4), zeros);
  EXPECT_EQ(qoriToneMapMean_32f8u_C1R(black, 16, out, 4, {4, 1}), qorStsNoErr);
  EXPECT_EQ(std::vector<Qor8u>(out, out + 4), zeros);
  EXPECT_EQ(qoriToneMapLinear_32f8u_C1R(ramp, 16, out, 4, {4, 1}), qorStsNoErr);
  EXPECT_EQ(std::vector<Qor8u>(out, out + 4), (std::vector<Qor8u>{0, 85, 170, 255}));
  EXPECT_EQ(qoriToneMapMean_32f8u_C1R(ramp, 16, out, 4, {4, 1}), qorStsNoErr);
  EXPECT_EQ(std::vector<Qor8u>(out, out + 4), (std::vector<Qor8u>{0, 85, 170, 255}));
}

TEST(FilteredSlices, OfOneImageMeetWithoutASeam) {
  constexpr int width = 6, height = 12;
  std::vector<Qor8u> y(width * height), cbCr(width * height / 2), whole(2 * width * height),
      slices(whole.size());
  std::mt19937 random(5);
  for (Qor8u& v : cbCr) v = static_cast<Qor8u>(random());
  const auto run = [&](std::vector<Qor8u>& out, int first, int rows, int layout) {
    return qoriYCbCr420ToYCbCr422_Filter_8u_P2C2R(&y[first * width], width, &cbCr[first / 2 * width], width,
                                                  &out[first * 2 * width], 2 * width, {width, rows}, layout);
  };
  EXPECT_EQ(run(whole, 0, height, qoriSliceWhole), qorStsNoErr);
  EXPECT_EQ(run(slices, 0, 4, qoriSliceUpper), qorStsNoErr);
  EXPECT_EQ(run(slices, 4, 4, qoriSliceMiddle), qorStsNoErr);
  EXPECT_EQ(run(slices, 8, 4, qoriSliceLower), qorStsNoErr);
  EXPECT_EQ(whole, slices);
}

}  // namespace
