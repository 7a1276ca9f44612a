#include <gtest/gtest.h>

// In this order: mok.h binds the hooks of the headers that it finds.
#include "qorcc.h"
#include "qorcore.h"
#include "suite.h"

#include "capture.h"

namespace {

constexpr int s_sources = 10;  // sources of tests and of what they share

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

TEST(SliceTests, AdjustTheSizeAndShowTheAdjustedOne) {
  const struct {
    const char *asked, *used;
  } cases[] = {{"64x64", "64x64"}, {"65x10", "66x16"}, {"1x1", "2x16"}, {"63x47", "64x32"}};
  for (const auto& c : cases) {
    Capture output(outPerf);
    Combination one(*findTest("qoriYCbCr420ToYCrCb420_Filter_8u_P2P3R"), c.asked);
    EXPECT_EQ(one->m_funcCall(), qorStsNoErr);
    one->parmsToOstrm();
    EXPECT_EQ(output.text(), zebString("size=") + c.used);
    one->parmsToCstrm();
    zebString cell;
    g_cstrm.getColm(0, cell);
    EXPECT_EQ(cell, c.used);
    g_cstrm.tableFlush();
  }
}

// The least and the greatest value of the first channel.
struct Range {
  explicit Range(const mokImage& image);
  double low, high;
};

Range::Range(const mokImage& image) : low(image.getImageAt(0, 0, 0)), high(low) {
  for (int y = 0; y < image.m_size.height; ++y) {
    for (int x = 0; x < image.m_size.width; ++x) {
      const double value = image.getImageAt(x, y, 0);
      if (value < low) low = value;
      if (value > high) high = value;
    }
  }
}

TEST(SuiteData, HasRandomSourcesOfTheWholeRangeAndConstantDestinations) {
  const struct {
    const char* name;
    double low, high;    // of the source
    double destination;  // before the call
  } cases[] = {{"qoriRGBToHLS_32f_C3R", 0, 1, 1.00001f},
               {"qoriRGBToHLS_16s_AC4R", -32768, 32767, 2},
               {"qoriRGBToHLS_16u_C3R", 0, 65535, 2},
               {"qoriBGRToHLS_8u_AP4C4R", 0, 255, 2},
               {"qoriSBGRToYCoCg_16s32s_C3P3R", -32768, 32767, 2},
               {"qoriYCbCr420_8u_P3P2R", 0, 255, 2},
               {"qoriCFAToRGB_16u_C1C3R", 0, 65535, 2},
               {"qoriReduceBits_32f8u_C3R", -1, 1, 2},
               {"qoriGammaFwd_32f_C3R", -1, 1, 1.00001f},
               {"qoriGammaInv_8u_IP3R", 0, 255, 2},
               {"qoriYCbCr420ToYCbCr422_8u_P2C2R", 0, 255, 2}};
  for (const auto& c : cases) {
    Combination one(*findTest(c.name), "64x64");
    ASSERT_TRUE(one.image(0) && one.image(1) && !one.image(2)) << c.name;
    const Range source(*one.image(0));
    const double slack = (c.high - c.low) / 100;
    EXPECT_TRUE(source.low >= c.low && source.low < c.low + slack) << c.name << " " << source.low;
    EXPECT_TRUE(source.high <= c.high && source.high > c.high - slack) << c.name << " " << source.high;
    const Range destination(*one.image(1));
    EXPECT_EQ(destination.low, c.destination) << c.name;
    EXPECT_EQ(destination.high, c.destination) << c.name;
  }
}

TEST(SuiteData, FailsForAnImageThatCannotBeAllocated) {
  Capture output(outPerf);
  for (const char* name :
       {"qoriHLSToBGR_8u_P3C3R", "qoriRGBToGray_8u_C3C1R", "qoriYCbCr420ToBGR_8u_P3C3R",
        "qoriYCbCr420ToYCbCr422_8u_P2C2R", "qoriDemosaicAHD_8u_C1C3R", "qoriCFAToRGB_8u_C1C3R",
        "qoriGammaFwd_8u_P3R", "qoriReduceBits_8u_C3R", "qoriColorTwist32f_8u_C3R"}) {
    EXPECT_FALSE(Combination(*findTest(name), "100000x100000").ready()) << name;
  }
  EXPECT_EQ(zebMallocFirst(nullptr, nullptr), nullptr);
}

TEST(SuiteRegistration, NamesHotFunctionsThatAreTested) {
  ASSERT_TRUE(g_pHotList);
  EXPECT_EQ(g_pHotList->size(), 7);
  for (const zebString& name : *g_pHotList) {
    const zebTest* test = findTest(name.c_str());
    ASSERT_TRUE(test) << name.c_str();
    EXPECT_TRUE(const_cast<zebTest*>(test)->isHotLine());
  }
}

TEST(SuiteRegistration, BindsTheLibraryOnceForEachSource) {
  EXPECT_EQ(qorVersionList->size(), s_sources + 1);  // and this one
  for (QorVersionFunc version : *qorVersionList) EXPECT_EQ(version(), qorccGetLibVersion());
  ASSERT_TRUE(qorEnvironment);
  qorEnvironment();
  EXPECT_EQ(qor_GetCpuType, qorGetCpuType);
  EXPECT_EQ(qor_GetNumCoresOnDie, qorGetNumCoresOnDie);
  EXPECT_EQ(qor_GetMaxCacheSizeB, qorGetMaxCacheSizeB);
  EXPECT_EQ(qor_GetStatusString, qorGetStatusString);
  EXPECT_EQ(qor_Init, qorInit);
  EXPECT_EQ(qor_InitCpu, qorInitCpu);
  EXPECT_EQ(qor_SetNumThreads, qorSetNumThreads);
}

}  // namespace
