#include <gtest/gtest.h>

#include "capture.h"
#include "zebtrace.h"

TEST(Messages, ReachTheFilesByTheBitsOfTheMask) {
  Capture console(outErr);
  g_ostrm << "plain text is dropped\n" << msgErr << "error\n" << msgEnd << "dropped again\n";
  g_ostrm.setOutLevel(static_cast<OutputLevel>(23));
  EXPECT_TRUE(g_ostrm.beginMessage(msgInfo)) << "the number is below the mask";
  g_ostrm << "and yet the mask lacks the bit\n";
  g_ostrm.endMessage();
  EXPECT_FALSE(g_ostrm.beginMessage(msgMem));
  g_ostrm << "plain\n";
  EXPECT_EQ(console.text(), "error\nplain\n");
}

TEST(Trace, ShowsNestingAndLeavesInnerStepsWithOuterOnes) {
  Capture console(17);
  zebTrace trace;
  for (const char* step : {"outer", "middle", "inner"}) trace.traceIn(step);
  EXPECT_EQ(trace.getCurName(), "inner");
  trace.traceOut("middle");
  trace.traceOut("never entered");
  EXPECT_EQ(trace.getCurName(), "outer");
  EXPECT_EQ(console.text(),
            "****** trace into   outer\n******* trace into   middle\n******** trace into   inner\n"
            "******** trace out of middle\n****** trace out of never entered\n");
}
