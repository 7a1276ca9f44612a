// The tests that run over more than image sizes, or hand more than images to the library.
#include <gtest/gtest.h>

#include "capture.h"
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
      {"qoriGammaFwd_8u_C3R", 3, "ImageSize", "8x8", "24x16"},
      {"qoriColorTwist32f_8u_C3R", 3, "ImageSize", "8x8", "24x16"},
  };
  for (const auto& c : cases) {
    // Twice: the lists are built anew, and the names of the values are still there.
    for (int run = 0; run < 2; ++run) {
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
}

TEST(ParameterTests, TakeTheUsersListsIfTheyNameKnownValues) {
  Combination one(*findTest("qoriReduceBits_8u_C1R"), "8x8");
  zebParameter& dither = **++one->m_parms.begin();
  dither.translate("Bayer; FS");
  EXPECT_EQ(dither.defaultString(), "Bayer; FS");
  EXPECT_EQ(dither.validString(), "None|FS|JJN|Stucki|Bayer");
  EXPECT_THROW(dither.translate("Ordered"), zebException);
}

TEST(ParameterTests, DivideByTheElementsThatAreRead) {
  const struct {
    const char *name, *size;
    double elements;
  } cases[] = {
      {"qoriDemosaicAHD_16u_C1C3R", "64x64", 4096}, {"qoriCFAToRGB_8u_C1C3R", "64x64", 6400},
      {"qoriGammaFwd_8u_C3R", "64x64", 12288},      {"qoriGammaInv_32f_IP3R", "64x64", 12288},
      {"qoriReduceBits_16s_AC4R", "64x64", 4096},   {"qoriHLSToBGR_8u_P3C3R", "65x10", 650},
      {"qoriYCbCr420ToBGR_8u_P3C3R", "65x10", 650}, {"qoriYCbCr420ToYCbCr422_8u_P2C2R", "65x10", 66 * 16}};
  for (const auto& c : cases) {
    Combination one(*findTest(c.name), c.size);
    EXPECT_EQ(one->getDivisor(), c.elements) << c.name;
  }
}

zebString layout(const mokImage& image) {
  zebString text = image.m_func;
  return text << " " << image.m_size;
}

TEST(ParameterTests, MakeTheImagesThatTheNameAsksFor) {
  const struct {
    const char *name, *source, *destination;
  } cases[] = {{"qoriCFAToRGB_16u_C1C3R", "_16u_C1 80x64", "_16u_C3 64x48"},
               {"qoriDemosaicAHD_8u_C1C3R", "_8u_C1 64x48", "_8u_C3 64x48"},
               {"qoriReduceBits_32f16s_AC4R", "_32f_AC4 64x48", "_16s_AC4 64x48"},
               {"qoriColorTwist32f_8s_IP3R", "_8s_P3 64x48", "_8s_P3 64x48"},
               {"qoriColorTwist_32f_C4R", "_32f_C4 64x48", "_32f_C4 64x48"},
               {"qoriGammaFwd_16u_AC4IR", "_16u_AC4 64x48", "_16u_AC4 64x48"}};
  for (const auto& c : cases) {
    Combination one(*findTest(c.name), "64x48");
    EXPECT_EQ(layout(*one.image(0)), c.source) << c.name;
    EXPECT_EQ(layout(*one.image(1)), c.destination) << c.name;
  }
}

TEST(DemosaicTests, PutABorderAroundTheSourceAndGiveScratchRows) {
  Combination one(*findTest("qoriDemosaicAHD_16u_C1C3R"), "64x48");
  for (int i = 0; i < 4; ++i) one.next();
  EXPECT_EQ(values(*one.operator->()), "64x48 5 BGGR");
  EXPECT_EQ(layout(*one.image(0)), "_16u_C1 74x58");
  EXPECT_EQ(layout(*one.image(1)), "_16u_C3 64x48");
  EXPECT_EQ(layout(*one.image(2)), "_16u_C1 70x30");
}

TEST(ConstantTexts, ShowTheMatrixAndTheRange) {
  const struct {
    const char *name, *text;
  } cases[] = {{"qoriColorTwist_32f_C4R", "twist:\n0.10.70.10.1\n0.10.10.70.1\n0.70.10.10.1\n"},
               {"qoriGammaFwd_16u_P3R", "Src[i,j] = %\n"},
               {"qoriGammaInv_32f_C3IR", "Src[i,j] = %\nvMin = 0\nvMax = 2\n"}};
  for (const auto& c : cases) {
    Combination one(*findTest(c.name), "64x48");
    const mokImage& source = *one.image(0);
    zebString expected = c.text, before, after;
    if (expected.parse(before, after, "%") == 2) {
      expected = before + source.getDataString(source.getPointerAt(0, 0, 0), 1) + after;
    }
    Capture output(outPerf);
    one->constToOstrm();
    EXPECT_EQ(output.text(), expected);
  }
}

TEST(TwistTests, BeginWithOnesAndAreLeftWithOnes) {
  for (const char* name : {"qoriColorTwist32f_8u_C3IR", "qoriColorTwist32f_16s_IP3R"}) {
    Combination one(*findTest(name), "9x4");
    mokImage& image = *one.image(0);
    const zebString before = image.getString();
    EXPECT_EQ(image.getImageAt(8, 3, 2), 1);
    long long clocks = 0;
    EXPECT_EQ(one->m_funcLoop(3, &clocks), resOk);
    EXPECT_EQ(image.getString(), before) << name;
  }
}

// What the loop form leaves in an image of a test.
zebString afterLoops(const char* name, int loops, int imageNumber) {
  Combination one(*findTest(name), "9x4");
  long long clocks = 0;
  EXPECT_EQ(one->m_funcLoop(loops, &clocks), resOk);
  return one.image(imageNumber)->getString();
}

TEST(InPlaceGamma, OfFloatsBeginsEachCallWithTheSameInput) {
  for (const char* name : {"qoriGammaFwd_32f_AC4IR", "qoriGammaFwd_32f_C3IR", "qoriGammaFwd_32f_IP3R",
                           "qoriGammaInv_32f_AC4IR", "qoriGammaInv_32f_C3IR", "qoriGammaInv_32f_IP3R"}) {
    const zebString once = afterLoops(name, 0, 1);
    EXPECT_EQ(afterLoops(name, 3, 1), once) << name;
    Combination one(*findTest(name), "9x4");
    const zebString source = one.image(0)->getString();
    EXPECT_FALSE(source == once) << name;
    int calls = 3;
    long long clocks = 0;
    EXPECT_EQ(one->m_funcStat(&calls, &clocks), resOk);
    EXPECT_EQ(one.image(0)->getString(), source) << name;
    EXPECT_EQ(one.image(1)->getString(), once) << name;
  }
}

TEST(InPlaceGamma, OfIntegersWorksOnTheSourceAndGoesOnFromThere) {
  for (const char* name : {"qoriGammaFwd_8u_C3IR", "qoriGammaInv_16u_IP3R", "qoriGammaFwd_16u_AC4IR"}) {
    EXPECT_FALSE(afterLoops(name, 3, 0) == afterLoops(name, 0, 0)) << name;
    EXPECT_EQ(afterLoops(name, 3, 1), afterLoops(name, 0, 1)) << name;
  }
}

}  // namespace
