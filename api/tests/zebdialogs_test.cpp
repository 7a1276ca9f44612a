// What the dialogs set, with the words of their items given in place of a user.
#include <gtest/gtest.h>

#include "capture.h"
#include "zebistream.h"
#include "zebmemory.h"
#include "zebsession.h"
#include "zebtool.h"

namespace {

struct Dialogs : testing::Test {
  ~Dialogs() override {
    g_istrm.m_dataList.clear();
    g_tool = zebTool();
    initTimingMethod = nullptr;
  }

  Capture screen{outPerf};
  zebSession session;
};

TEST_F(Dialogs, BeginWithTheMethodThatTheSuiteRegistered) {
  initTimingMethod = [](zebTool& tool) { tool.setMethodBest(4, 1000, 77); };
  session.readTimingMethod();
  int start = 0, stop = 0;
  long long clocks = 0;
  EXPECT_TRUE(g_tool.getMethodBest(start, stop, clocks));
  EXPECT_TRUE(start == 4 && stop == 1000 && clocks == 77);
}

TEST_F(Dialogs, TakeAccuracyInPercentAndAnyOtherNumberForNone) {
  const std::pair<const char*, double> cases[] = {
      {"50", 0.5}, {"1", 0.01}, {"0", 500}, {"51", 500}, {"x", 0.05}};
  for (const auto& [percent, accuracy] : cases) {
    g_istrm.m_dataList.set("Accuracy", percent);
    session.readTimingMethod();
    EXPECT_EQ(g_tool.m_wantedAccuracy, accuracy) << percent;
  }
}

TEST_F(Dialogs, RefuseAShiftThatLeadsInFrontOfTheData) {
  g_istrm.m_dataList.set("MutualVectorShift=-64");
  session.readDataOffset();
  EXPECT_EQ(zebGetVectorShift(), 512);
  EXPECT_TRUE(contains(screen.text(), "-Invalid value of MutualVectorShift = -64\n"));
}

}  // namespace
