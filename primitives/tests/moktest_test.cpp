#include "moktest.h"

#include <gtest/gtest.h>

#include <cstring>

#include "capture.h"
#include "mokimage.h"
#include "moktitle.h"
#include "tablefile.h"
#include "zebcacheiterator.h"
#include "zebgeometry.h"
#include "zebhooks.h"

namespace {

struct PlainTest : mokTest {
  explicit PlainTest(const char* name, const char* info = "PlainTest//MOK_REG")
      : mokTest(nullptr, nullptr, nullptr, nullptr, name, "file", info) {}
  double getFlops() override { return 3; }
  bool canStart() override {
    EXPECT_EQ(mokVector::m_seed, 7u);
    EXPECT_FALSE(m_checkErrorsOnly);
    return false;
  }
};

TEST(CheckStatus, TellsErrorsAndWarningsAndKeepsTheWorst) {
  qor_GetStatusString = [](QorStatus) { return "as it should be"; };
  zebTest::m_currentResult = resNotRun;
  PlainTest test("qoriCopy_8u_C1R");
  Capture output(outWarn);
  mokTest::m_checkErrorsOnly = true;
  EXPECT_EQ(mokTest::checkStatus(3, ""), resOk);
  mokTest::m_checkErrorsOnly = false;
  EXPECT_EQ(zebTest::m_currentResult, resNotRun);
  EXPECT_EQ(test.checkStatus(-5), resLibError);
  EXPECT_EQ(mokTest::checkStatus(3, ""), resLibWarning);
  EXPECT_EQ(zebTest::m_currentResult, resLibError);
  EXPECT_EQ(output.text(),
            "--QOR ERROR. status = -5 in qoriCopy_8u_C1R: as it should be\n"
            "--QOR WARNING. status = 3: as it should be\n");
}

TEST(TestRun, StartsFromTheSameSeedAndMindsWarnings) {
  Capture output(0);
  mokVector::m_seed = 12345;
  mokTest::m_checkErrorsOnly = true;
  EXPECT_EQ(PlainTest("qoriCopy_8u_C1R").run(), resDataError);
}

TEST(Test, IsSortedListedAndDescribedByItsName) {
  PlainTest pixels("qoriRGBToHLS_32f_C3R"), alpha("qoriRGBToHLS_8u_AC4R", "PlainTest//ZEB_REG");
  EXPECT_GT(pixels.compareFunc(&alpha), 0);
  EXPECT_NE(alpha.regInfo().find("registered by MOK_REG macro"), zebString::npos);
  EXPECT_TRUE(pixels.isFloatFunction());
  EXPECT_FALSE(alpha.isFloatFunction());

  TableFile file(g_cstrm);
  PlainTest("qoriRGBToYCoCg_Rev_8u16s_C3P3R").funcToCstrm();
  mokFuncTitleToCStream();
  mokParmsTitleToCStream();
  g_cstrm.lineOut(0);
  EXPECT_EQ(file.text(),
            "qoriRGBToYCoCg_Rev,8u16s,C3P3R,funcBase,funcDataType,funcDescriptor,"
            "Len/Size,Parm1,Parm2,Parm3,Parm4,scaleFactor\n");
}

TEST(CacheParameter, DrivesTheFirstSizeOfARunAndNoOther) {
  PlainTest test("qoriCopy_8u_C1R");
  mokImage image;
  zebIterator<QoriSize> first, second;
  zebTest::m_cache = true;
  test.regCacheParm(first, image, nullptr);
  test.regCacheParm(second, nullptr);
  zebTest::m_cache = false;
  ASSERT_EQ(*test.m_parms.begin(), test.m_pCache);
  EXPECT_EQ(test.m_pCache->m_parm, &first);
  EXPECT_EQ(test.m_pCache->m_object, &image);
  EXPECT_EQ(*++test.m_parms.begin(), &second);
}

TEST(BlockOutput, ShowsEachOwnerOnceAndBareBlocksAsBytesAtItsLevel) {
  PlainTest test("qoriCopy_8u_C1R");
  mokImage image(mok8u, 3, true);
  image.createVector(2, 1, modeValue, 5, 0);
  void* const bytes = memset(zebTest::allocate(2, 0), 0x0a, 2);
  Capture output(msgData);
  EXPECT_EQ(test.printAllMemoryBlocks("before"), 2);
  zebTest::deallocate(bytes);
  EXPECT_EQ(output.text(),
            "======== OBJECTS OUTPUT START === before === OBJECTS OUTPUT START ========\n"
            "======== Object 1: Image 8u_P3 size=2x1\n"
            "   5   5\n\n   5   5\n\n   5   5\n\n"
            "======== Object 2: \n"
            " 0A 0A\n\n"
            "======== OBJECTS OUTPUT END === before === OBJECTS OUTPUT END ========\n");
}

}  // namespace
