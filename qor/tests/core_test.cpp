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

TEST(Core, ChoosesThePathThatAProcessorCodeStandsFor) {
  const std::pair<int, int> floor[] = {{0, 65},  {6, 65},  {7, 65},  {8, 65},  {9, 65},  {10, 65},
                                       {11, 65}, {32, 65}, {33, 65}, {34, 65}, {35, 65}, {36, 65},
                                       {65, 65}, {66, 65}, {67, 65}, {68, 65}, {96, 65}};
  for (const auto& [code, path] : floor) {
    const OnPath now(code);
    EXPECT_EQ(qorGetCpuType(), path) << code;
  }
  __builtin_cpu_init();
  qorInitCpu(65);
  const bool hasSse4 = __builtin_cpu_supports("sse4.2");
  for (int code : {37, 69, 71}) {
    EXPECT_EQ(qorInitCpu(code), hasSse4 ? qorStsNoErr : qorStsNotSupportedCpu) << code;
    EXPECT_EQ(qorGetCpuType(), hasSse4 ? 69 : 65) << code;
  }
  for (int path : {70, 38}) {
    const int before = qorGetCpuType();
    const QorStatus status = qorInitCpu(path);
    EXPECT_EQ(qorGetCpuType(), status == qorStsNoErr ? path : before);
  }
  qorInit();
}

TEST(Core, RefusesOtherCodesAndKeepsItsPath) {
  const OnPath floor(65);
  for (int cpu : {1, 5, 12, 16, 17, 39, 64, 72, 97, 12345, -1})
    EXPECT_EQ(qorInitCpu(cpu), qorStsNotSupportedCpu) << cpu;
  __builtin_cpu_init();
  const bool mayHaveAvx512 = sizeof(void*) == 8 && __builtin_cpu_supports("avx512vbmi");
  if (!mayHaveAvx512) {
    EXPECT_EQ(qorInitCpu(38), qorStsNotSupportedCpu);
  }
  EXPECT_EQ(qorGetCpuType(), 65);
}

TEST(Core, RefusesLessThanOneThread) {
  EXPECT_EQ(qorSetNumThreads(2), qorStsNoErr);
  EXPECT_EQ(qorSetNumThreads(0), qorStsSizeErr);
  EXPECT_EQ(qorSetNumThreads(-4), qorStsSizeErr);
  EXPECT_EQ(qorSetNumThreads(1), qorStsNoErr);
}

TEST(Core, HasATextOfItsOwnForEachStatus) {
  std::set<std::string> texts;
  for (int status :
       std::initializer_list<int>{qorStsNotSupportedCpu, qorStsStepErr, qorStsSizeErr, qorStsNullPtrErr,
                                  qorStsBadArgErr, qorStsNoErr, qorStsNoOperation, -77777, 77777})
    texts.insert(qorGetStatusString(status));
  EXPECT_EQ(texts.size(), 9u);
  EXPECT_STREQ(qorGetStatusString(qorStsNoErr), "No error");
  EXPECT_STREQ(qorGetStatusString(-77777), "Unknown error");
}

TEST(Core, ReportsCoresAndCacheOfThisProcessor) {
  int size = -1;
  EXPECT_GE(qorGetNumCoresOnDie(), 1);
  EXPECT_EQ(qorGetMaxCacheSizeB(nullptr), qorStsNullPtrErr);
  const QorStatus status = qorGetMaxCacheSizeB(&size);
  if (status == qorStsNoErr)
    EXPECT_GE(size, 16 * 1024);
  else
    EXPECT_EQ(size, 0);
}

TEST(Version, HasThreeStrings) {
  const QorLibraryVersion* v = qorccGetLibVersion();
  ASSERT_NE(v, nullptr);
  EXPECT_STREQ(v->name, "qorcc");
  EXPECT_FALSE(std::string(v->version).empty());
  EXPECT_FALSE(std::string(v->buildDate).empty());
}

TEST(Version, TellsThePathInForce) {
  const std::map<int, std::string> texts = {{65, "sse2"}, {69, "sse4"}, {70, "avx2"}, {38, "avx512"}};
  for (int code : pathCodes()) {
    const OnPath now(code);
    EXPECT_NE(std::string(qorccGetLibVersion()->version).find(texts.at(code)), std::string::npos) << code;
  }
}

}  // namespace
