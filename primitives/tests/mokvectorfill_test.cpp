#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstring>

#include "capture.h"
#include "mokvector.h"

namespace {

// A vector of n elements, all 9.
struct Nines : mokVector {
  Nines(mokType t, int n) : mokVector(t) { EXPECT_TRUE(createVector(n, modeValue, 9, 9)); }
};

// The elements as text, real parts only.
zebString elements(const mokVector& v) {
  zebString text;
  for (int i = 0; i < v.m_length; ++i) text << (i ? " " : "") << v.getIndex(i);
  return text;
}

TEST(Random, GivesTheSameNumbersFromSeed7AsEver) {
  Nines v(mok8u, 8), next(mok8u, 4), cut(mok8u, 8);
  v.setRandom(0, 255, 7);
  EXPECT_EQ(elements(v), "57 33 111 45 147 74 70 143");
  next.setRandom(0, 255);
  EXPECT_EQ(elements(next), "227 204 79 47");
  cut.setRandom(-1000, 1000, 7);
  EXPECT_EQ(elements(cut), elements(v)) << "the range is cut to the type";
  Nines complex(mok16sc, 4), real(mok16s, 8);
  complex.setRandom(-100, 100, 7);
  real.setRandom(-100, 100, 7);
  EXPECT_EQ(memcmp(complex.m_data, real.m_data, real.size()), 0);
}

TEST(Sequence, RisesFromFirstToLastAndWrapsOrStaysThere) {
  const struct {
    double first, last, step;
    bool wrap;
    const char* wanted;
  } rows[] = {{0, 3, 1, true, "0 1 2 3 0 1"},
              {0, 3, 1, false, "0 1 2 3 3 3"},
              {254, 999, 1, true, "254 255 254 255 254 255"},
              {5, 3, -1, true, "5 4 3 2 1 0"}};
  Nines v(mok8u, 6);
  for (const auto& row : rows) {
    v.setSequence(row.first, row.last, row.step, row.wrap);
    EXPECT_EQ(elements(v), row.wanted);
  }
}

TEST(Jaehne, SpansTheTypeUnlessTheMagnitudeIsLess) {
  Nines u(mok8u, 400), limited(mok8u, 400), f(mok64fc, 400);
  u.setJaehne();
  f.setJaehne();
  EXPECT_EQ(u.p8u[0], 127) << "the sine of 0, in the middle";
  // At i = 20 the argument is pi / 2, the first crest.
  EXPECT_EQ(u.p8u[20], 255);
  EXPECT_NEAR(f.p64fc[10].im, std::sin(std::acos(-1.0) / 8), 1e-12);
  limited.setJaehne(1e9);
  limited.setJaehne(-1);  // writes nothing
  EXPECT_EQ(elements(limited), elements(u));
}

TEST(Constant, IsTruncatedTowardsZeroAndKeptInsideAnIntegerType) {
  const double rows[][2] = {{-2.9, -2}, {127.9, 127}, {255.9, 127}, {1e300, 127}, {-1e300, -128}};
  Nines v(mok8s, 1);
  for (const auto& [value, kept] : rows) {
    v.setConst(value, 0);
    EXPECT_EQ(v.getIndex(0), kept) << value;
  }
}

TEST(Limits, LeaveRoomForTwoProductsOfFloatsAndStopAt2ToThe63rd) {
  EXPECT_EQ(mokVector::getMaxValue(mok32fc), std::sqrt(static_cast<double>(FLT_MAX)) * 0.5);
  EXPECT_EQ(mokVector::getMinValue(mok64f), -std::sqrt(DBL_MAX) * 0.5);
  Nines s(mok64s, 1), u(mok64u, 1);
  s.setMaxValue();
  u.setMaxValue();
  EXPECT_EQ(s.p64s[0], LLONG_MAX) << "2 to the 63rd is one too many";
  EXPECT_EQ(u.p64u[0], 1ULL << 63);
}

TEST(Mode, FillsTheWholeVectorOrOneElement) {
  const struct {
    mokType type;
    SetMode mode;
    const char *whole, *one;
  } rows[] = {
      {mok8sc, modeConst, " (    2,    2) (    2,    2)", " (    9,    9) (    2,    2)"},
      {mok8sc, modeOne, " (    1,    0) (    1,    0)", " (    9,    9) (    1,    0)"},
      {mok8sc, modeMax, " (  127,  127) (  127,  127)", " (    9,    9) (  127,    0)"},
      {mok8sc, modeMin, " ( -128, -128) ( -128, -128)", " (    9,    9) ( -128,    0)"},
      {mok8sc, modeValue, " (    5,    6) (    5,    6)", " (    9,    9) (    5,    6)"},
      {mok8sc, modeSequence, " (    5,    5) (    6,    6)", " (    9,    9) (    5,    0)"},
      {mok32f, modeConst, "       1.00001       1.00001", "             9       1.00001"},
      {mok32f, modeSequence, "             5           5.5", "             9             5"},
  };
  for (const auto& row : rows) {
    Nines whole(row.type, 2), one(row.type, 2);
    whole.setVector(row.mode, 5, 6);
    one.setIndex(1, row.mode, 5, 6);
    EXPECT_EQ(whole.getString(), row.whole);
    EXPECT_EQ(one.getString(), row.one);
  }
}

}  // namespace
