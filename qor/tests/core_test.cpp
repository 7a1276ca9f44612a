#include "qorcore.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "paths.h"
#include "qorcc.h"

namespace {

TEST(Core, RunsOnTheBestPathUntilAnotherIsChosen) {
  EXPECT_EQ(qorInit(), qorStsNoErr);
  EXPECT_EQ(qorGetCpuType(), pathCodes().back());
}

TEST(Core, ChoosesThePathThatAProcessorCodeStandsForAndRefusesOthers) {
  __builtin_cpu_init();
  const std::map<int, bool> mayRun = {{65, true},
                                      {69, __builtin_cpu_supports("sse4.2")},
                                      {70, __builtin_cpu_supports("avx2")},
                                      {38, sizeof(void*) == 8 && __builtin_cpu_supports("avx512vbmi")}};
  std::map<int, int> pathOf = {{37, 69}, {69, 69}, {71, 69}, {70, 70}, {38, 38}};
  for (int code : {0, 6, 7, 8, 9, 10, 11, 32, 33, 34, 35, 36, 65, 66, 67, 68, 96}) pathOf[code] = 65;
  for (int code = -1; code <= 128; ++code) {
    const OnPath floor(65);
    const QorStatus status = qorInitCpu(code);
    const bool isChosen = status == qorStsNoErr;
    const bool wasPossible = pathOf.contains(code) && mayRun.at(pathOf[code]);
    // The later paths need more than one extension.
    EXPECT_TRUE(wasPossible ? isChosen || code == 70 || code == 38 : status == qorStsNotSupportedCpu) << code;
    EXPECT_EQ(qorGetCpuType(), isChosen ? pathOf[code] : 65) << code;
  }
}

TEST(Core, RefusesLessThanOneThreadAndANullPointer) {
  EXPECT_EQ(qorSetNumThreads(0), qorStsSizeErr);
  EXPECT_EQ(qorSetNumThreads(-4), qorStsSizeErr);
  EXPECT_EQ(qorGetMaxCacheSizeB(nullptr), qorStsNullPtrErr);
}

TEST(Core, HasATextOfItsOwnForEachStatus) {
  std::set<std::string> texts;
  for (int status : {-9999, -14, -9, -8, -6, -5, 0, 1, -77777, 77777})
    texts.insert(qorGetStatusString(status));
  EXPECT_EQ(texts.size(), 10u);
}

TEST(Core, ReportsCoresAndCacheOfThisProcessor) {
  int size = -1;
  EXPECT_GE(qorGetNumCoresOnDie(), 1);
  const bool isKnown = qorGetMaxCacheSizeB(&size) == qorStsNoErr;
  EXPECT_TRUE(isKnown ? size >= 16 * 1024 : size == 0) << size;
}

TEST(Version, TellsLibraryAndPathInForce) {
  const std::map<int, const char*> versions = {
      {65, "1.0 (sse2)"}, {69, "1.0 (sse4)"}, {70, "1.0 (avx2)"}, {38, "1.0 (avx512)"}};
  for (int code : pathCodes()) {
    const OnPath now(code);
    EXPECT_STREQ(qorccGetLibVersion()->name, "qorcc");
    EXPECT_STREQ(qorccGetLibVersion()->version, versions.at(code));
    EXPECT_STRNE(qorccGetLibVersion()->buildDate, "");
  }
}

}  // namespace
