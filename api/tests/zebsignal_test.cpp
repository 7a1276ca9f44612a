#include "zebsignal.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include "capture.h"
#include "zebfpu.h"
#include "zebtrace.h"

namespace {

// A sanitizer would report the crash in place of the handler.
__attribute__((no_sanitize("null", "address"))) void writeToNull() {
  volatile int* volatile nowhere = nullptr;
  *nowhere = 1;
}

TEST(Signal, LeavesTheUnitsInTheirDefaultsAndNoValuesOnTheRegisterStack) {
  EXPECT_THROW(zebCatchSignals([] {
                 zeb_set_cw_fpu(0x800, 0xC00);
                 zeb_set_ssx(0x4000, 0x6000);
                 asm volatile("fld1\n\tfld1");
                 // A system may hand the crashed function's state to the handler as it was.
                 tsSignal::sig_fpe(SIGFPE, 0);
               }),
               zebException);
  EXPECT_EQ(zeb_get_cw_fpu() & 0xF3F, 0x23Bu);
  EXPECT_EQ(zeb_get_ssx() & 0xFFBF, 0x9F80u);
  EXPECT_EQ(zeb_get_sw_fpu() & 0x3800, 0u);
}

TEST(Signal, ReturnsToTheInnermostPointWhichIsGivenBackAtTheEnd) {
  EXPECT_THROW(zebCatchSignals([] {
                 EXPECT_THROW(zebCatchSignals([] { asm volatile("ud2"); }), zebException);
                 EXPECT_THROW(zebCatchSignals([] { throw zebException("of the steps"); }), zebException);
                 writeToNull();
               }),
               zebException);
  EXPECT_FALSE(tsSignal::m_armed);
}

TEST(SignalDeathTest, OutsideOfAnyTestKillsAndSaysWhatAndWhere) {
  g_trace.insert(g_trace.begin(), "outputHeader");
  EXPECT_EXIT(writeToNull(), testing::KilledBySignal(SIGSEGV),
              "^-- Signal: Illegal storage access. outside of any test in outputHeader\n");
  g_trace.erase(g_trace.begin());
}

// A second crash while the first is being cleared up must end, not run in a circle.
TEST(SignalDeathTest, WhileACrashIsClearedUpKills) {
  EXPECT_EXIT(
      {
        static int jumps = 0;
        tsSignalPoint point;
        if (setjmp(tsSignal::m_jmpbuf)) ++jumps < 3 ? writeToNull() : _exit(0);
        point.arm();
        writeToNull();
      },
      testing::KilledBySignal(SIGSEGV), "outside of any test");
}

}  // namespace
