#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>

#include "capture.h"
#include "nines.h"

namespace {

TEST(Constant, IsTruncatedTowardsZeroAndKeptInsideAnIntegerType) {
  Nines s(mok8s, 1), u(mok8u, 1);
  const struct {
    double value;
    int s, u;
  } rows[] = {{-2.9, -2, 0}, {127.9, 127, 127}, {255.9, 127, 255}, {1e300, 127, 255}, {-1e300, -128, 0}};
  for (const auto& row : rows) {
    s.setConst(row.value, 0);
    u.setConst(row.value, 0);
    EXPECT_EQ(s.p8s[0], row.s) << row.value;
    EXPECT_EQ(u.p8u[0], row.u) << row.value;
  }
}

TEST(Limits, AreThoseOfTheComponent) {
  EXPECT_EQ(mokVector::getMinValue(mok16sc), -32768.0);
  EXPECT_EQ(mokVector::getMaxValue(mok32u), 4294967295.0);
  EXPECT_EQ(mokVector::getMaxValue(mok64u), std::ldexp(1.0, 63));
  EXPECT_EQ(mokVector::getMaxValue(mok32fc), std::sqrt(static_cast<double>(FLT_MAX)) * 0.5);
  EXPECT_EQ(mokVector::getMinValue(mok64f), -std::sqrt(DBL_MAX) * 0.5);
  EXPECT_EQ(mokVector::getMinAbsValue(mok64fc), DBL_MIN);
  Nines s(mok64s, 1), u(mok64u, 1);
  s.setMaxValue();
  u.setMaxValue();
  EXPECT_EQ(s.p64s[0], LLONG_MAX) << "2 to the 63rd is one too many";
  EXPECT_EQ(u.p64u[0], 1ULL << 63);
}

TEST(Mode, FillsTheWholeVectorOrOneElement) {
  const struct {
    SetMode mode;
    const char* whole;
    const char* one;
  } rows[] = {
      {modeConst, " (      2,      2) (      2,      2)", " (      9,      9) (      2,      2)"},
      {modeOne, " (      1,      0) (      1,      0)", " (      9,      9) (      1,      0)"},
      {modeMax, " (  32767,  32767) (  32767,  32767)", " (      9,      9) (  32767,      0)"},
      {modeMin, " ( -32768, -32768) ( -32768, -32768)", " (      9,      9) ( -32768,      0)"},
      {modeValue, " (      5,      7) (      5,      7)", " (      9,      9) (      5,      7)"},
      {modeSequence, " (      5,      5) (      6,      6)", " (      9,      9) (      5,      0)"},
  };
  for (const auto& row : rows) {
    Nines whole(mok16sc, 2), one(mok16sc, 2);
    whole.setVector(row.mode, 5, 7);
    one.setIndex(1, row.mode, 5, 7);
    EXPECT_EQ(whole.getString(), row.whole);
    EXPECT_EQ(one.getString(), row.one);
  }
  Nines v(mok32fc, 1);
  v.setVector(modeRandom, 3, 3);
  EXPECT_LE(std::abs(v.p32fc[0].im), 1.0f) << "the default range of floats";
  v.setConst();
  EXPECT_EQ(v.p32fc[0].im, 1.00001f) << "the constant of floats";
}

}  // namespace
