#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "capture.h"
#include "nines.h"

namespace {

TEST(Random, GivesTheSameNumbersFromSeed7AsEver) {
  Nines v(mok8u, 8), next(mok8u, 4), cut(mok8u, 8);
  v.setRandom(0, 255, 7);
  EXPECT_EQ(elements(v), "57 33 111 45 147 74 70 143");
  EXPECT_EQ(mokVector::m_seed, 3392750990u);
  next.setRandom(0, 255);
  EXPECT_EQ(elements(next), "227 204 79 47");
  cut.setRandom(-1000, 1000, 7);
  EXPECT_EQ(elements(cut), elements(v)) << "the range is cut to the type";
  Nines complex(mok16sc, 4), real(mok16s, 8);
  complex.setRandom(-100, 100, 7);
  real.setRandom(-100, 100, 7);
  EXPECT_EQ(memcmp(complex.m_data, real.m_data, real.size()), 0);
}

TEST(Random, SpansMinus1To1ForFloatsAndTheWholeTypeForIntegers) {
  Nines f(mok32f, 2), s(mok16s, 1000);
  mokVector::m_seed = 7;
  f.setRandom();
  EXPECT_NEAR(f.p32f[0], -0.5480098, 1e-7);
  EXPECT_NEAR(f.p32f[1], -0.7399065, 1e-7);
  s.setRandom();
  EXPECT_LT(*std::min_element(s.p16s, s.p16s + 1000), -32000);
  EXPECT_GT(*std::max_element(s.p16s, s.p16s + 1000), 32000);
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
  v.setSequence(0, 10);
  EXPECT_EQ(elements(v), "0 2 4 6 8 10");
  v.setVector(modeSequence, 0, 60);
  EXPECT_EQ(elements(v), "0 10 20 30 40 50") << "as a mode by the range over the length";
  v.setVector(modeSequence, 0, 3);
  EXPECT_EQ(elements(v), "0 1 2 3 0 1") << "and at least by 1";
  Nines c(mok32fc, 4);
  c.setVector(modeSequence, 0, 1);
  EXPECT_EQ(elements(c), "0 0.25 0.5 0.75");
  EXPECT_EQ(c.p32fc[1].im, 0.25f);
}

TEST(Jaehne, SpansTheTypeUnlessTheMagnitudeIsLess) {
  Nines u(mok8u, 400), limited(mok8u, 400), f(mok64f, 400), s(mok16sc, 400);
  for (Nines* v : {&u, &f, &s}) v->setJaehne();
  EXPECT_EQ(u.p8u[0], 127) << "the sine of 0, in the middle";
  // At i = 20 the argument is pi / 2, the first crest.
  EXPECT_EQ(u.p8u[20], 255);
  EXPECT_NEAR(f.p64f[10], std::sin(std::acos(-1.0) / 8), 1e-12);
  EXPECT_EQ(s.p16sc[20].im, 32767);
  limited.setJaehne(1e9);
  limited.setJaehne(-1);  // writes nothing
  EXPECT_EQ(elements(limited), elements(u));
}

}  // namespace
