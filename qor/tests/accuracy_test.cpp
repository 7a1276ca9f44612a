// Every family's results against its formula: random samples miss what wraps at the edges.
//
// Every fifth value of each 8-bit component, both ends included; qor_accuracy takes all.
#include "accuracy.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

TEST(Accuracy, IsACountForIntegersAndSomeUnitsInTheLastPlaceForFloats) {
  for (const Subject& s : functions()) {
    // A slightly wrong constant stays within one count but shows in many colours.
    const bool isEightBit = s.names.source.elementSize() == 1;
    ASSERT_EQ(complaint(s, measure(s, isEightBit ? 5 : 8), 0.01), "");
  }
}

TEST(Accuracy, IsWhatTheDocumentationSays) {
  std::stringstream text;
  text << std::ifstream(QOR_DOCUMENTATION).rdbuf();
  EXPECT_TRUE(text.str().find(fingerprint()) != std::string::npos)
      << fingerprint() << ", results have changed: qor_accuracy --write " << QOR_DOCUMENTATION;
}

}  // namespace
