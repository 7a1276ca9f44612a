#include "moktest.h"

#include <gtest/gtest.h>

#include <cstring>

#include "capture.h"
#include "mokimage.h"
#include "moktiming.h"
#include "zebhooks.h"

namespace {

struct PlainTest : mokTest {
  explicit PlainTest(const char* name)
      : mokTest(nullptr, nullptr, nullptr, nullptr, name, "file", "PlainTest//ZEB_REG") {}
  double getFlops() override { return 3; }
  bool canStart() override {
    EXPECT_FALSE(m_checkErrorsOnly);
    return false;
  }
};

TEST(CheckStatus, TellsErrorsAndWarningsAndKeepsTheWorst) {
  qor_GetStatusString = [](QorStatus) { return "as it should be"; };
  PlainTest test("qoriCopy_8u_C1R");
  Capture output(outWarn);
  mokTest::m_checkErrorsOnly = true;
  EXPECT_EQ(mokTest::checkStatus(3, ""), resOk);
  EXPECT_EQ(test.run(), resDataError) << "minds warnings again";
  zebTest::m_currentResult = resNotRun;
  EXPECT_EQ(test.checkStatus(-5), resLibError);
  EXPECT_EQ(mokTest::checkStatus(3, ""), resLibWarning);
  EXPECT_EQ(zebTest::m_currentResult, resLibError);
  const zebString told =
      "--QOR ERROR. status = -5 in qoriCopy_8u_C1R: as it should be\n"
      "--QOR WARNING. status = 3: as it should be\n";
  EXPECT_TRUE(contains(output.text(), told)) << output.text().c_str();
}

TEST(ImageTest, IsOfAMacroOfItsOwnAndCountsOperationsOnFloatsAlone) {
  PlainTest floats("qoriRGBToHLS_32f_C3R"), bytes("qoriRGBToHLS_8u_AC4R");
  EXPECT_TRUE(floats.isFloatFunction() && !bytes.isFloatFunction());
  EXPECT_TRUE(contains(bytes.regInfo(), "registered by MOK_REG macro")) << bytes.regInfo().c_str();
}

int s_calls = 0;

int failThird() {
  return ++s_calls == 3 ? -5 : 0;
}

TEST(SingleCalls, EndAtAnError) {
  qor_GetStatusString = [](QorStatus) { return "Error"; };
  Capture output(0);
  int calls = 4;
  long long clocks = 0;
  EXPECT_EQ((mokTimeStat<failThird, mokNoRestore>("fail", &calls, &clocks)), resLibError);
  EXPECT_EQ(s_calls, 3);
  EXPECT_EQ(calls, 1) << "the first isn't counted, the last wasn't done";
}

TEST(BlockOutput, ShowsEachOwnerOnceAndBareBlocksAsBytesAtItsLevel) {
  PlainTest test("qoriCopy_8u_C1R");
  mokImage image(mok8u, 3, true);
  image.createVector(2, 1, modeValue, 5, 0);
  void* const bytes = memset(zebTest::allocate(2, 0), 0xfa, 2);
  Capture output(msgData);
  EXPECT_EQ(test.printAllMemoryBlocks("before"), 2);
  zebTest::deallocate(bytes);
  EXPECT_EQ(output.text(),
            "======== OBJECTS OUTPUT START === before === OBJECTS OUTPUT START ========\n"
            "======== Object 1: Image 8u_P3 size=2x1\n"
            "   5   5\n\n   5   5\n\n   5   5\n\n"
            "======== Object 2: \n"
            " FA FA\n\n"
            "======== OBJECTS OUTPUT END === before === OBJECTS OUTPUT END ========\n");
}

}  // namespace
