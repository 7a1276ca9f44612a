#include <gtest/gtest.h>

#include "capture.h"
#include "zebpaths.h"
#include "zebregister.h"
#include "zebreportend.h"
#include "zebreportformat.h"
#include "zebreportlist.h"
#include "zebreporttest.h"
#include "zebtest.h"

namespace {

constexpr TestFuncOld s_noFunction = nullptr;

TEST(ReportFormat, SetsItemsApartAndLetsALineThatOverrunsLoseItsRightBorder) {
  zebString f50;
  f50.resize(50, 'f');
  const zebString time = "Thu Nov 19 05:05:12 2026";
  const zebString cases[][4] = {
      {"Eleven char", "x", time, "| Eleven char : x                                     " + time + "|\n"},
      {"Function", f50, time, "| Function  : " + f50 + " " + time + "\n"},
  };
  zebReportFormat format(1, 12, 14, rightAligned);
  for (const auto& [name, text, right, line] : cases)
    EXPECT_EQ(format.getLine(name, ":", text, right, "", ""), line);
}

TEST(ReportEnd, SortsEachResultIntoItsLines) {
  zebTestList list;
  list.m_startTime = 1000000000;
  list.m_stopTime = list.m_startTime + 3725;
  // One, two, four, ... so that each sum tells its parts.
  for (int r = 0; r < zebResultCount; ++r) {
    for (int i = 0; i < 1 << r; ++i) list.plus(static_cast<zebResult>(r));
  }
  list.plus(static_cast<zebResult>(99));  // no result, and undefined
  const zebReportEnd report(list);
  zebString values;
  for (auto it = report.begin(); it != report.end(); ++it) values << *++it << " ";
  // All, successes and failures; fails, FAIL and EXCPTFAIL; warnings, WARNING and BADSTSWRN; undefined, time.
  EXPECT_EQ(values, "4096 2 1980 1920 896 1024 60 52 8 2114 01:02:05 ");
}

TEST(SummaryTable, MarksDisturbedUnits) {
  zebTest test(s_noFunction, "__zebBrelkCpu", "qorcc/src/p_ccrgb_ia", "__zebBrelkCpuTest/text");
  test.m_stopTime = test.m_startTime + 68;
  test.m_result = resCtrlStatus;
  zebPaths::m_exePath = "/opt/bin/zeb";
  test.m_bad87 = true;
  EXPECT_EQ(zebReportTestResult(&test).m_table, "-,?,-,-,__zebBrelkCpuTest,68,p_ccrgb_ia,BADSTSWRN,zeb");
  std::swap(test.m_bad87, test.m_badSSX);
  EXPECT_EQ(zebReportTestResult(&test).m_table, "-,-,-,?,__zebBrelkCpuTest,68,p_ccrgb_ia,BADSTSWRN,zeb");
  zebPaths::m_exePath = "";
}

TEST(ReportList, ComparesTheLibrarysFunctionsWithTheTests) {
  zebTest rgb(s_noFunction, "xRGB", "a/p_one", "TimA//M"), xyz(s_noFunction, "xXYZ", "a/p_two", "TimA//M");
  zebTestList tests;
  tests.push_back(&rgb);
  tests.push_back(&xyz);
  zebConditions conditions;
  const auto listed = [&](int mode) {
    Capture console(outPerf);
    g_ostrm << zebReportList(tests, conditions, mode);
    return console.text();
  };
  zebStringList functions;
  zebStringList* const old = g_pLibFuncList;
  g_pLibFuncList = &functions;
  // Functions that only help others aren't listed, and if there are no others, tests are.
  for (const char* name : {"xInitFFT", "xFFTFree", "xMalloc_8u", "xAllocA", "xCloseA", "xPutValA", "xGetSize",
                           "xSetA_8u", "xGetRotateCenter", "xResizeShift", "xDrawText"}) {
    functions.push_back(name);
  }
  const zebString plain =
      "   #\tFunction\tTest\tSource\t\n   1\txRGB\tTimA\tp_one\t\n   2\txXYZ\tTimA\tp_two\t\n";
  EXPECT_EQ(listed(1), plain);
  for (const char* name : {"xRGB", "xGet_8u", "xSet_8u", "xGet_GetA", "xXYZ", "xRG"})
    functions.push_back(name);
  const zebString missing = "-\txGet_8u\t\n-\txSet_8u\t\n-\txGet_GetA\t\n";
  EXPECT_EQ(listed(1), "Exist\tFunction\t\n+\txRGB\t\n" + missing + "+\txXYZ\t\n-\txRG\t\n");
  EXPECT_EQ(listed(-1), "Exist\tFunction\t\n" + missing + "-\txRG\t\n");
  g_pLibFuncList = old;
}

}  // namespace
