#include <gtest/gtest.h>

#include "mokfunc.h"

// Every name stands before all that follow it, and equals itself.
TEST(FunctionOrder, GoesByBaseThenTypesThenDescriptor) {
  const char* const names[] = {
      "qoriColorTwist32f",           "qoriColorTwist32f_8u_C3R",   "qoriColorTwist32f_8u_AC4R",
      "qoriColorTwist32f_8u_P3R",    "qoriColorTwist32f_8u_C3IR",  "qoriColorTwist32f_8u_AC4IR",
      "qoriColorTwist32f_8u16s_C3R", "qoriColorTwist32f_16u_C3R",  "qoriColorTwist32f_16uc_C3",
      "qoriColorTwist32f_8s_C3R",    "qoriColorTwist32f_16sc_C3R", "qoriColorTwist32f_32f_C3R",
      "qoriRGBToYUV_8u_C3R",         "qoriRGBToYUV420_8u_C3P3R",   "qorsColorTwist32f_8u_C3R",
  };
  for (const char* const& a : names) {
    for (const char* const& b : names) {
      const int order = mokFunc(a).compare(mokFunc(b));
      EXPECT_EQ((order > 0) - (order < 0), (&a > &b) - (&a < &b)) << a << " " << b;
    }
  }
  EXPECT_EQ(mokFunc::compareTypes("8u8u8u16s", "8u8u8u32f"), 0) << "no more than three tokens";
  EXPECT_LT(mokFunc::compareDescr("AP4R", "C3R"), 0) << "only \"AC4\" stands behind \"C\"";
}
