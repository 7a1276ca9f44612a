#include "zebreportlist.h"

#include <gtest/gtest.h>

#include "capture.h"
#include "zebregister.h"
#include "zebtest.h"

TEST(ReportList, ComparesTheLibrarysFunctionsWithTheTests) {
  constexpr TestFuncOld none = nullptr;
  zebTest rgb(none, "xRGB", "a/p_one", "TimA//M"), xyz(none, "xXYZ", "a/p_two", "TimA//M");
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
  for (const char* name : {"xRGB", "xGet_8u", "xSet_8u", "xGet_GetA", "xOffset", "xXYZ", "xRG"})
    functions.push_back(name);
  EXPECT_EQ(listed(0), plain);
  const zebString missing = "-\txGet_8u\t\n-\txSet_8u\t\n-\txGet_GetA\t\n-\txOffset\t\n";
  EXPECT_EQ(listed(1), "Exist\tFunction\t\n+\txRGB\t\n" + missing + "+\txXYZ\t\n-\txRG\t\n");
  EXPECT_EQ(listed(-1), "Exist\tFunction\t\n" + missing + "-\txRG\t\n");
  g_pLibFuncList = old;
}
