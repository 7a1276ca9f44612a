// What the framework calls of the library, and what it tells of that.
#include "zebhooks.h"

#include <gtest/gtest.h>

#include "capture.h"

namespace {

QorStatus s_initStatus;
QorStatus s_callStatus;

// A library of scripted answers in place of all hooks.
struct Hooks : testing::Test {
  Hooks() {
    qorEnvironment = [] {};
    qor_GetStatusString = [](QorStatus) { return "its text"; };
    qor_Init = [] { return s_initStatus; };
    qor_InitCpu = [](QorCpuType) { return s_callStatus; };
    qor_SetNumThreads = [](int) { return s_callStatus; };
  }
  ~Hooks() override {
    qorEnvironment = nullptr;
    s_cpuType = -1;
    s_numThreads = 0;
  }

  // What is told of a choice of this processor and so many threads.
  static zebString toldOf(QorCpuType cpu, int threads) {
    Capture console(outErr);
    s_cpuType = cpu;
    s_numThreads = threads;
    initStaticCpu();
    setNumThreads();
    return console.text();
  }
};

TEST_F(Hooks, TellTheChoiceOfAProcessorAndHowItWent) {
  const zebString again = "--calling qorInit()\n", error = "--QOR ERROR. status = ";
  const std::tuple<QorStatus, QorStatus, zebString> cases[] = {
      {0, -1, "--status = qorStsNoErr\n"},
      {3, -1, "--QOR WARNING. status = 3: its text\n"},
      {-5, 0, error + "-5: its text\n" + again},
      {-5, -7, error + "-5: its text\n" + again + error + "-7: its text\n"}};
  for (const auto& [ofChoice, ofInit, text] : cases) {
    s_callStatus = ofChoice;
    s_initStatus = ofInit;
    EXPECT_EQ(toldOf(65, 0), "\n--calling qorInitCpu( qorCpuSSE2=65 )\n" + text);
  }
}

TEST_F(Hooks, TellTheNumberOfThreadsThatWasAskedForAndNothingOfTheLibrarysOwnChoice) {
  s_callStatus = 1;
  EXPECT_EQ(toldOf(-1, 2), "\n--calling qorSetNumThreads( 2 )\n--QOR WARNING. status = 1: its text\n");
  s_initStatus = -7;
  EXPECT_EQ(toldOf(-1, 0), "");
  qorEnvironment = nullptr;
  EXPECT_EQ(toldOf(65, 2), "") << "of a library that isn't there";
}

}  // namespace
