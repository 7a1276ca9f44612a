// What the framework calls of the library, and what it tells of that.
#include "zebhooks.h"

#include <gtest/gtest.h>

#include "capture.h"

namespace {

QorStatus s_initStatus;
QorStatus s_callStatus;

// A library of scripted answers in place of all hooks.
class Hooks : public ::testing::Test {
 protected:
  Hooks() {
    qorEnvironment = [] {};
    qor_GetStatusString = [](QorStatus) { return "its text"; };
    qor_Init = [] { return s_initStatus; };
    qor_InitCpu = [](QorCpuType) { return s_callStatus; };
    qor_SetNumThreads = [](int) { return s_callStatus; };
    s_initStatus = s_callStatus = 0;
  }
  ~Hooks() override {
    qorEnvironment = nullptr;
    qor_GetStatusString = nullptr;
    qor_Init = nullptr;
    qor_InitCpu = nullptr;
    qor_SetNumThreads = nullptr;
    s_cpuType = -1;
    s_numThreads = 0;
  }
  Capture console{outErr};
};

}  // namespace

TEST_F(Hooks, TellTheChoiceOfAProcessorAndHowItWent) {
  const zebString again = "--calling qorInit()\n", error = "--QOR ERROR. status = ";
  const struct {
    QorStatus initCpu, init;
    zebString text;
  } cases[] = {{0, -1, "--status = qorStsNoErr\n"},
               {3, -1, "--QOR WARNING. status = 3: its text\n"},
               {-5, 0, error + "-5: its text\n" + again},
               {-5, -7, error + "-5: its text\n" + again + error + "-7: its text\n"}};
  s_cpuType = 65;
  for (const auto& c : cases) {
    Capture told(outErr);
    s_callStatus = c.initCpu;
    s_initStatus = c.init;
    initStaticCpu();
    EXPECT_EQ(told.text(), zebString("\n--calling qorInitCpu( qorCpuSSE2=65 )\n") + c.text);
  }
}

TEST_F(Hooks, TellTheNumberOfThreadsThatWasAskedFor) {
  setNumThreads();
  s_numThreads = 2;
  s_callStatus = 1;
  setNumThreads();
  EXPECT_EQ(console.text(), "\n--calling qorSetNumThreads( 2 )\n--QOR WARNING. status = 1: its text\n");
}

TEST_F(Hooks, CallNothingOfALibraryThatIsNotThereAndTellNothingOfItsOwnChoice) {
  s_initStatus = -7;
  initStaticCpu();
  qorEnvironment = nullptr;
  s_cpuType = 65;
  s_numThreads = 2;
  initStaticCpu();
  setNumThreads();
  EXPECT_EQ(console.text(), "");
}
