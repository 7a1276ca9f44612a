// The tests that run over more than image sizes, or hand more than images to the library.
#include <gtest/gtest.h>

#include "suite.h"

namespace {

// "64x64 0 BGGR" and so on, one value after the other.
zebString values(const zebTest& test) {
  zebString text;
  for (const zebParameter* parm : test.m_parms) text << (text.empty() ? "" : " ") << parm->valueString();
  return text;
}

TEST(ParameterTests, RunOverAllCombinationsOfTheirDefaults) {
  const struct {
    const char* name;
    int combinations;
    const char *names, *first, *last;
  } cases[] = {
      {"qoriDemosaicAHD_8u_C1C3R", 24, "ImageSize srcBorder bayerGrid", "8x8 0 BGGR", "24x16 5 GRBG"},
      {"qoriCFAToRGB_16u_C1C3R", 12, "ImageSize bayerGrid", "8x8 BGGR", "24x16 GRBG"},
      {"qoriReduceBits_16u8u_C3R", 30, "ImageSize DitherType Noise", "8x8 None 0", "24x16 Bayer 20"},
      // A second test of a class builds its lists anew.
      {"qoriCFAToRGB_8u_C1C3R", 12, "ImageSize bayerGrid", "8x8 BGGR", "24x16 GRBG"},
  };
  for (const auto& c : cases) {
    Combination one(*findTest(c.name), "8x8; 16x8; 24x16");
    zebString names, last;
    for (const zebParameter* parm : one->m_parms) names << (names.empty() ? "" : " ") << parm->m_name;
    EXPECT_EQ(names, c.names);
    EXPECT_EQ(values(*one.operator->()), c.first);
    int count = 0;
    do {
      last = values(*one.operator->());
      ++count;
    } while (one.next());
    EXPECT_EQ(last, c.last);
    EXPECT_EQ(count, c.combinations) << c.name;
  }
}

zebString layout(const mokImage& image) {
  zebString text = image.m_func;
  return text << " " << image.m_size;
}

TEST(ParameterTests, MakeTheImagesThatTheNameAsksForAndDivideByTheElementsThatAreRead) {
  const struct {
    const char *name, *size, *source, *destination;
    double elements;
  } cases[] = {
      {"qoriCFAToRGB_16u_C1C3R", "65x48", "_16u_C1 81x64", "_16u_C3 65x48", 81 * 64},
      {"qoriDemosaicAHD_8u_C1C3R", "65x48", "_8u_C1 65x48", "_8u_C3 65x48", 65 * 48},
      {"qoriReduceBits_32f16s_AC4R", "65x48", "_32f_AC4 65x48", "_16s_AC4 65x48", 65 * 48},
      {"qoriColorTwist32f_8s_IP3R", "65x48", "_8s_P3 65x48", "_8s_P3 65x48", 65 * 48},
      {"qoriGammaFwd_16u_AC4IR", "65x48", "_16u_AC4 65x48", "_16u_AC4 65x48", 3 * 65 * 48},
      {"qoriGammaInv_32f_IP3R", "65x48", "_32f_P3 65x48", "_32f_P3 65x48", 3 * 65 * 48},
      {"qoriHLSToBGR_8u_P3C3R", "65x48", "_8u_P3 65x48", "_8u_C3 65x48", 65 * 48},
      {"qoriYCbCr420ToBGR_8u_P3C3R", "65x48", "_8u_P3 65x48", "_8u_C3 65x48", 65 * 48},
      // Slices have whole pairs of columns and 16 rows, at least once.
      {"qoriYCbCr420ToYCbCr422_8u_P2C2R", "63x47", "_8u_P2 64x32", "_8u_C2 64x32", 64 * 32},
      {"qoriYCbCr420ToYCrCb420_Filter_8u_P2P3R", "1x1", "_8u_P2 2x16", "_8u_P3 2x16", 2 * 16},
  };
  for (const auto& c : cases) {
    Combination one(*findTest(c.name), c.size);
    ASSERT_TRUE(one.ready()) << c.name;
    EXPECT_EQ(layout(*one.image(0)), c.source) << c.name;
    EXPECT_EQ(layout(*one.image(1)), c.destination) << c.name;
    EXPECT_EQ(one->getDivisor(), c.elements) << c.name;
  }
}

TEST(DemosaicTests, PutABorderAroundTheSourceAndGiveScratchRows) {
  Combination one(*findTest("qoriDemosaicAHD_16u_C1C3R"), "64x48");
  while (one.image(0)->m_size.width == 64) ASSERT_TRUE(one.next());
  EXPECT_EQ(values(*one.operator->()), "64x48 5 BGGR");
  EXPECT_EQ(layout(*one.image(0)), "_16u_C1 74x58");
  EXPECT_EQ(layout(*one.image(2)), "_16u_C1 70x30");
}

TEST(ConstantTexts, ShowTheMatrixAndTheRange) {
  const struct {
    const char *name, *text;
  } cases[] = {{"qoriColorTwist_32f_C4R", "twist:\n0.10.70.10.1\n0.10.10.70.1\n0.70.10.10.1\n"},
               {"qoriGammaFwd_8u_P3R", "Src[i,j] =   57\n"},
               {"qoriGammaInv_32f_C3IR", "Src[i,j] =       -0.54801\nvMin = 0\nvMax = 2\n"}};
  for (const auto& c : cases) {
    Combination one(*findTest(c.name), "64x48");
    Capture output(outPerf);
    one->constToOstrm();
    EXPECT_EQ(output.text(), c.text);
  }
}

TEST(InPlaceGamma, GetsTheSameFloatsForEachCallAndTheIntegersThatTheCallBeforeLeft) {
  for (const char* name : {"qoriGammaFwd_32f_AC4IR", "qoriGammaFwd_32f_C3IR", "qoriGammaFwd_32f_IP3R",
                           "qoriGammaInv_32f_AC4IR", "qoriGammaInv_32f_C3IR", "qoriGammaInv_32f_IP3R",
                           "qoriGammaFwd_8u_C3IR", "qoriGammaInv_16u_IP3R", "qoriGammaFwd_16u_AC4IR"}) {
    Combination one(*findTest(name), "9x4");
    const bool floats = one.image(0)->m_type == mok32f;
    const mokImage& worked = *one.image(floats ? 1 : 0);
    const mokImage& other = *one.image(floats ? 0 : 1);
    const zebString before = other.getString();
    long long clocks = 0;
    EXPECT_EQ(one->m_funcLoop(0, &clocks), resOk);
    const zebString once = worked.getString();
    EXPECT_FALSE(once == before);
    EXPECT_EQ(one->m_funcLoop(3, &clocks), resOk);
    EXPECT_EQ(worked.getString() == once, floats) << name;
    int calls = 3;
    clocks = 1000000;
    EXPECT_EQ(one->m_funcStat(&calls, &clocks), resOk);
    EXPECT_EQ(worked.getString() == once, floats) << name;
    EXPECT_EQ(other.getString(), before) << name;
    EXPECT_TRUE(calls > 3 && clocks >= 1000000) << calls << " calls, " << clocks << " clocks";
  }
}

}  // namespace
