// Ordinary pictures, black ones among them, leave no floating-point flag but "inexact": the tool that
// measures the library takes any other for a disturbed state.
#include <gtest/gtest.h>

#include <cfenv>

#include "calls.h"

namespace {

constexpr float kCoeffs[3] = {0.33f, 0.33f, 0.33f};

int flagsOf(const Entry& e, const Image& source, Image& target) {
  Call c = callOf(e, source, target);
  c.coeffs = kCoeffs;
  feclearexcept(FE_ALL_EXCEPT);
  EXPECT_EQ(e.run(c), qorStsNoErr) << e.name;
  return fetestexcept(FE_ALL_EXCEPT & ~FE_INEXACT);
}

}  // namespace

TEST(Flags, OnlyInexactIsRaisedOnRandomAndOnBlackPictures) {
  std::mt19937 random(1);
  for (const Entry& e : entries()) {
    // Large enough for candidates of an adaptive mosaic that saturate to black.
    const QoriSize size = e.isMosaic() ? QoriSize{333, 199} : QoriSize{73, 8}, from = sourceSize(e, size);
    const Names names = parse(e.name);
    Image source(names.source, from.width, from.height, 0), target(names.target, size.width, size.height, 0);
    source.fillRandom(random);
    EXPECT_EQ(flagsOf(e, source, target), 0) << e.name << " of random values";
    source.fillBytes(0);
    EXPECT_EQ(flagsOf(e, source, target), 0) << e.name << " of zeros";
  }
}
