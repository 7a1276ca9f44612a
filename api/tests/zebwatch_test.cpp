#include <gtest/gtest.h>

#include "capture.h"
#include "disturb.h"
#include "zeb87.h"
#include "zebctrlstatus.h"
#include "zebssx.h"

namespace {

TEST(Watch, NamesFlagsInOrder) {
  const ts87Base x87;
  const tsSSXBase ssx;
  for (const zebString& text : {x87.strSW(0x3F), ssx.strExceptionState(0x3F)}) {
    EXPECT_EQ(text, "?Invalid ?Denormal ?Zerodivide ?Overflow ?Underflow _Inexact ");
  }
}

TEST(Watch, FindsInexactHarmlessAndReportsEachBadUnitOnALineOfItsOwn) {
  zebInitCtrlStatus();
  bool bad87 = true, badSSX = true;
  g_ctrl87.start();
  volatile long double three = 3;
  three = 1 / three;
  g_ctrl87.stop();
  zeb_set_ssx(0x20, 0x20);
  g_ssx.stop();
  EXPECT_FALSE(zebBadCtrlStatus(bad87, badSSX));

  overflow87();
  g_ctrl87.stop();
  overflowSSX();
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
