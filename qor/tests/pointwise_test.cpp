// Colour twist and gamma: what can be worked out by hand, and every value of the curves.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "reference.h"

namespace {

TEST(ColorTwist, PermutesSaturatesAndRoundsHalfUp) {
  const Qor8u source[6] = {10, 200, 31, 0, 255, 1};
  Qor8u target[6];
  const float permute[3][4] = {{0, 0, 1, 0}, {1, 0, 0, 0}, {0, 1, 0, 0}};
  ASSERT_EQ(qoriColorTwist32f_8u_C3R(source, 6, target, 6, {2, 1}, permute), qorStsNoErr);
  EXPECT_EQ(std::vector<int>(target, target + 6), (std::vector<int>{31, 10, 200, 1, 0, 255}));
  const float wild[3][4] = {{0, 2, 0, 0}, {-1, 0, 0, 3}, {0, 0, 0.5f, 0}};
  ASSERT_EQ(qoriColorTwist32f_8u_C3R(source, 6, target, 6, {2, 1}, wild), qorStsNoErr);
  EXPECT_EQ(std::vector<int>(target, target + 6), (std::vector<int>{255, 0, 16, 255, 3, 1}));

  Qor8s small[3] = {-128, 127, -3};
  const float negate[3][4] = {{-1, 0, 0, 0}, {-2, -1, 0, -500}, {0, 0, 0.5f, 0}};
  ASSERT_EQ(qoriColorTwist32f_8s_C3IR(small, 3, {1, 1}, negate), qorStsNoErr);
  EXPECT_EQ(std::vector<int>(small, small + 3), (std::vector<int>{127, -128, -1}));
}

TEST(ColorTwist, FourChannelsAllTakePart) {
  const Qor32f source[4] = {1, 2, 3, 10};
  Qor32f target[4];
  const float twist[4][4] = {{1, 0, 0, 1}, {0, 1, 0, 0}, {0, 0, 1, -1}, {1, 1, 1, 0.5f}};
  ASSERT_EQ(qoriColorTwist_32f_C4R(source, 16, target, 16, {1, 1}, twist), qorStsNoErr);
  EXPECT_EQ(std::vector<float>(target, target + 4), (std::vector<float>{11, 2, -7, 11}));
}

template <class T, class Convert>
void isTheRoundedCurve(const char* name, Convert convert, int values) {
  std::vector<T> all(size_t(values) + 2), out(all.size());  // thirds
  for (int i = 0; i < values; ++i) all[i] = T(i);
  const int pixels = (values + 2) / 3, step = pixels * 3 * int(sizeof(T));
  ASSERT_EQ(convert(all.data(), step, out.data(), step, {pixels, 1}), qorStsNoErr);
  const Names names = parse(name);
  for (int i = 0; i < values; ++i)  // halves may be a hair short
    ASSERT_EQ(out[i], std::floor(expected(names, {double(i)}, {})[0] + 0.5 + 1e-9)) << name << " " << i;
}

TEST(Gamma, IntegersAreTheRoundedFormulaForEveryValue) {
  isTheRoundedCurve<Qor8u>("qoriGammaFwd_8u_C3R", qoriGammaFwd_8u_C3R, 256);
  isTheRoundedCurve<Qor8u>("qoriGammaInv_8u_C3R", qoriGammaInv_8u_C3R, 256);
  isTheRoundedCurve<Qor16u>("qoriGammaFwd_16u_C3R", qoriGammaFwd_16u_C3R, 65536);
  isTheRoundedCurve<Qor16u>("qoriGammaInv_16u_C3R", qoriGammaInv_16u_C3R, 65536);
}

TEST(Gamma, FloatsAreExactToTheLastPlaceOrTwo) {
  constexpr int kSteps = 300000;
  std::vector<float> in(kSteps), coded(kSteps), back(kSteps);
  for (int i = 0; i < kSteps; ++i) in[i] = static_cast<float>(i) / (kSteps - 1);
  qoriGammaFwd_32f_C3R(in.data(), kSteps * 4, coded.data(), kSteps * 4, {kSteps / 3, 1}, 0, 1);
  qoriGammaInv_32f_C3R(in.data(), kSteps * 4, back.data(), kSteps * 4, {kSteps / 3, 1}, 0, 1);
  const Names forward = parse("qoriGammaFwd_32f_C3R"), inverse = parse("qoriGammaInv_32f_C3R");
  for (int i = 0; i < kSteps; ++i) {
    // The standard's two pieces don't meet: single precision decides the side.
    if (std::fabs(in[i] - 0.018) < 1e-7 || std::fabs(in[i] - 0.081) < 1e-7) continue;
    const double there = expected(forward, {in[i]}, {})[0], home = expected(inverse, {in[i]}, {})[0];
    ASSERT_NEAR(coded[i], there, there * 1.2e-7);
    ASSERT_NEAR(back[i], home, home * 1.2e-7);
  }
}

TEST(Gamma, FloatsOutsideTheSpanCountAsItsEnds) {
  const float infinity = std::numeric_limits<float>::infinity();
  float v[6] = {-5, 7, infinity, -infinity, std::nanf(""), 3};
  ASSERT_EQ(qoriGammaFwd_32f_C3IR(v, 24, {2, 1}, -1, 3), qorStsNoErr);
  EXPECT_EQ(std::vector<float>(v, v + 6), (std::vector<float>{-1, 3, 3, -1, -1, 3}));
}

}  // namespace
