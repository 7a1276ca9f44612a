#include <gtest/gtest.h>

#include "capture.h"
#include "zeb87.h"
#include "zebctrlstatus.h"
#include "zebfpu.h"
#include "zebssx.h"

namespace {

// Stores what a double can hold as a float.
void overflow87() {
  volatile long double big = 1e300L;
  [[maybe_unused]] volatile float small = static_cast<float>(big);
}

struct Watch : testing::Test {
  Watch() { zebInitCtrlStatus(); }
  ~Watch() override { zeb_set_ssx(0, 0x40); }
};

TEST_F(Watch, NamesFlagsAndControlBitsInOrder) {
  const ts87Base x87;
  const tsSSXBase ssx;
  for (const zebString& text : {x87.strSW(0x3F), ssx.strExceptionState(0x3F)}) {
    EXPECT_EQ(text, "?Invalid ?Denormal ?Zerodivide ?Overflow ?Underflow _Inexact ");
  }
  EXPECT_EQ(x87.strSW(0xFFC0), "Ok");
  EXPECT_EQ(x87.strCW(0x23B), "Near 53 Invalid Denormal Overflow Underflow Inexact ");
  EXPECT_EQ(x87.strCW(0x800) + x87.strCW(0x500), "Up 24 Down ");
  EXPECT_EQ(ssx.strCW(0x9F80), "Near Invalid Denormal Zerodivide Overflow Underflow Inexact FlushToZero ");
  EXPECT_EQ(ssx.strCW(0x4000) + ssx.strCW(0xA000), "Up NoFlushToZero Down FlushToZero ");
}

TEST_F(Watch, LeavesOnlyDivisionByZeroUnmaskedOrAsAskedFor) {
  EXPECT_EQ(zeb_get_cw_fpu() & 0xF3F, 0x23Bu);
  EXPECT_EQ(zeb_get_ssx() & 0xFFBF, 0x9F80u);
  ts87Base x87;
  x87.enableExceptions();
  x87.disableInexactException();
  EXPECT_EQ(x87.getCW() & 0x3F, 0x20u);
  tsSSXBase ssx;
  ssx.enableExceptions();
  ssx.disableInexactException();
  EXPECT_EQ(ssx.get() & 0x1F80, 0x1000u);
  ssx.set(0x40, 0x40);
  ssx.setDefault();
  EXPECT_EQ(ssx.get(), 0x9FC0u) << "denormals are zero as they were";
}

TEST_F(Watch, FindsInexactHarmlessAndReportsEachBadUnitOnALineOfItsOwn) {
  bool bad87 = true, badSSX = true;
  g_ctrl87.start();
  volatile long double three = 3;
  three = 1 / three;
  g_ctrl87.stop();
  zeb_set_ssx(0x20, 0x20);
  g_ssx.stop();
  EXPECT_EQ(g_ctrl87.strSW() + g_ssx.strExceptionState(), "_Inexact _Inexact ");
  EXPECT_FALSE(zebBadCtrlStatus(bad87, badSSX));

  overflow87();
  g_ctrl87.stop();
  zeb_set_ssx(0x08, 0x08);
  g_ssx.stop();
  g_ctrl87.start();
  EXPECT_EQ(zeb_get_sw_fpu() & 0x3F, 0u);
  g_ctrl87.stop();
  EXPECT_TRUE(zebBadCtrlStatus(bad87, badSSX)) << "what a later start cleared is remembered";
  const Capture c(3);
  zebPrintCtrlStatus(bad87, badSSX);
  EXPECT_EQ(c.text(), "-- Status    87: ?Overflow _Inexact \n-- Status    SSX: ?Overflow _Inexact \n");
  zeb_set_ssx(0x4000, 0x6000);
  zebClearCtrlStatus();
  EXPECT_EQ(zeb_get_ssx() & 0x603F, 0x4000u) << "rounding stays";
  EXPECT_FALSE(zebBadCtrlStatus(bad87, badSSX));
}

}  // namespace
