#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "suite.h"

namespace {

TEST(Suite, CallsEveryFunctionWithArgumentsThatItAccepts) {
  for (zebTest* test : *pTestList) {
    Combination one(*test, "64x64");
    ASSERT_TRUE(one.ready()) << test->m_name.c_str();
    EXPECT_EQ(test->getUnit(), test->m_info.m_testName == "TimccGamma" ? "pxch" : "px");
    do {
      EXPECT_EQ(test->m_funcCall(), qorStsNoErr) << test->m_name.c_str();
    } while (one.next());
  }
  EXPECT_EQ(zebMallocFirst(nullptr, nullptr), nullptr);
}

// The least and the greatest value of the first channel.
struct Range {
  explicit Range(const mokImage& image) {
    for (int i = 0; i < image.m_size.width * image.m_size.height; ++i) {
      const double value = image.getImageAt(i % image.m_size.width, i / image.m_size.width, 0);
      low = std::min(low, value);
      high = std::max(high, value);
    }
  }

  double low = HUGE_VAL, high = -HUGE_VAL;
};

TEST(SuiteData, HasRandomSourcesOfTheWholeRangeOrOnesForATwistAndConstantDestinations) {
  const struct {
    const char* name;
    double low, high;    // of the source
    double destination;  // before the call
  } cases[] = {{"qoriColorTwist32f_8u_C3IR", 1, 1, 1},   {"qoriColorTwist32f_16s_P3R", 1, 1, 1},
               {"qoriRGBToHLS_32f_C3R", 0, 1, 1.00001f}, {"qoriRGBToHLS_16s_AC4R", -32768, 32767, 2},
               {"qoriBGRToHLS_8u_AP4C4R", 0, 255, 2},    {"qoriCFAToRGB_16u_C1C3R", 0, 65535, 2},
               {"qoriReduceBits_32f8u_C3R", -1, 1, 2},   {"qoriGammaFwd_32f_C3R", -1, 1, 1.00001f},
               {"qoriYCbCr420_8u_P3P2R", 0, 255, 2},     {"qoriYCbCr420ToYCbCr422_8u_P2C2R", 0, 255, 2}};
  for (const auto& c : cases) {
    Combination one(*findTest(c.name), "64x64");
    ASSERT_TRUE(one.image(0) && one.image(1) && !one.image(2)) << c.name;
    const Range source(*one.image(0));
    const double slack = (c.high - c.low) / 100;
    EXPECT_TRUE(source.low >= c.low && source.low <= c.low + slack) << c.name << " " << source.low;
    EXPECT_TRUE(source.high <= c.high && source.high >= c.high - slack) << c.name << " " << source.high;
    const Range destination(*one.image(1));
    EXPECT_EQ(destination.low, c.destination) << c.name;
    EXPECT_EQ(destination.high, c.destination) << c.name;
  }
}

TEST(SuiteData, FailsForAnImageThatCannotBeAllocated) {
  Capture output(0);
  for (zebTest* test : *pTestList) {
    EXPECT_FALSE(Combination(*test, "100000x100000").ready()) << test->m_name.c_str();
  }
  EXPECT_EQ(zebMallocFirst(nullptr, nullptr), nullptr);
}

}  // namespace
