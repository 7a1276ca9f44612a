#include <gtest/gtest.h>

#include "capture.h"
#include "zebpaths.h"
#include "zebreportend.h"
#include "zebreportformat.h"
#include "zebreporttest.h"
#include "zebtest.h"

namespace {

const zebString rule = "+-----------------------------------------------------------------------------+\n";

constexpr time_t start = 1000000000;

// A finished test.
struct FinishedTest : zebTest {
  FinishedTest()
      : zebTest(TestFuncOld(nullptr), "__zebBrelkCpu", "qorcc/src/p_ccrgb_ia",
                "__zebBrelkCpuTest/Brelk CPU information") {
    m_startTime = start;
    m_stopTime = start + 1;
    m_result = resOk;
  }
};

}  // namespace

TEST(ReportFormat, SetsItemsApartAndLetsALineThatOverrunsLoseItsRightBorder) {
  zebString f50, f64;
  f50.resize(50, 'f');
  f64.resize(64, 'f');
  const zebString time = "Thu Nov 19 05:05:12 2026";
  const struct {
    zebString name, text, right, line;
  } cases[] = {
      {"CPU", "text", "right",
       "| CPU       : text                                                       right|\n"},
      {"Nine  char", "x", time, "| Nine  char : x                                      " + time + "|\n"},
      {"Eleven char", "x", time, "| Eleven char : x                                     " + time + "|\n"},
      {"Function", f50, time, "| Function  : " + f50 + " " + time + "\n"},
      {"Function", f64, "", "| Function  : " + f64 + "|\n"},
      {"Function", f64 + "f", "", "| Function  : " + f64 + "f\n"},
  };
  zebReportFormat format(1, 12, 14, rightAligned);
  for (const auto& c : cases) EXPECT_EQ(format.getLine(c.name, ":", c.text, c.right, "", ""), c.line);
  format.lastLine();
  EXPECT_EQ(format.getLine("CPU", ":", "text", "", "", ""), "  CPU       : text\n");
}

TEST(ReportEnd, SortsEachResultIntoItsLines) {
  zebTestList list;
  list.m_startTime = start;
  list.m_stopTime = start + 3725;
  // One, two, four, ... so that each sum tells its parts.
  for (int r = 0; r < zebResultCount; ++r) {
    for (int i = 0; i < 1 << r; ++i) list.plus(static_cast<zebResult>(r));
  }
  Capture console(outErr);
  g_ostrm << zebReportEnd(list);
  EXPECT_EQ(
      console.text(),
      rule +
          "| ZEB Summary                                                                 |\n"
          "| .Number of tests : 4095                                                     |\n"
          "| .Successes       : 2                                                        |\n"
          "| .Failures        : 1980                                                     |\n"  // 2-5, 7-10
          "| ...Fails         : 1920                                                     |\n"
          "| .....-FAIL       : 896                                                      |\n"  // 7, 8 and 9
          "| .....-EXCPTFAIL  : 1024                                                     |\n"
          "| ...Warnings      : 60                                                       |\n"
          "| .....-WARNING    : 52                                                       |\n"  // 2, 4 and 5
          "| .....-BADSTSWRN  : 8                                                        |\n"
          "| ...Undefined     : 2113                                                     |\n"  // 0, 6 and 11
          "| .Total time      : 01:02:05                                                 |\n" +
          rule);
}

TEST(ReportTestTitle, TellsADescriptionInListingsThatShowMore) {
  FinishedTest test;
  for (int level : {outErr, outWarn}) {
    Capture console(level);
    g_ostrm << msgErr << zebReportTestTitle(&test) << msgEnd;
    EXPECT_EQ(contains(console.text(), "| Description : Brelk CPU information   "), level != outErr);
  }
}

TEST(SummaryTable, MarksDisturbedUnits) {
  FinishedTest bad87, badSSX;
  bad87.m_bad87 = badSSX.m_badSSX = true;
  bad87.m_result = resCtrlStatus;
  bad87.m_stopTime = start + 68;
  zebPaths::m_exePath = "/opt/bin/zeb";
  EXPECT_EQ(zebReportTestResult(&bad87).m_table, "-,?,-,-,__zebBrelkCpuTest,68,p_ccrgb_ia,BADSTSWRN,zeb");
  EXPECT_EQ(zebReportTestResult(&badSSX).m_table, "-,-,-,?,__zebBrelkCpuTest,1,p_ccrgb_ia,OK,zeb");
  zebPaths::m_exePath = "";
}
