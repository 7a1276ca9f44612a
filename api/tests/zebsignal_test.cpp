#include "zebsignal.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <thread>

#include "capture.h"
#include "zebfpu.h"
#include "zebtrace.h"

namespace {

// A sanitizer would report the crash in place of the handler.
__attribute__((no_sanitize("null", "address"))) void writeToNull() {
  volatile int* volatile nowhere = nullptr;
  *nowhere = 1;
}

int deep(int n) {
  volatile char room[4096];
  room[n % 4096] = 1;
  return n < 0 ? 0 : deep(n + 1) + room[n % 4096];
}

// The message of the exception that a crash comes out as.
zebString messageOf(void (*crash)()) {
  try {
    zebCatchSignals([&] { crash(); });
  } catch (zebException& e) {
    return e.msg();
  }
  return "no exception";
}

const struct {
  void (*crash)();
  int signal;
  const char* text;
} s_crashes[] = {
    {writeToNull, SIGSEGV, "Illegal storage access."},
    {[] { deep(0); }, SIGSEGV, "Illegal storage access."},
    {[] { asm volatile("ud2"); }, SIGILL, "Illegal instruction."},
    // Leaves the exception pending and values on the register stack.
    {[] { asm volatile("fld1\n\tfldz\n\tfdivrp\n\tfld1\n\tfwait"); }, SIGFPE,
     "FP error, such as overflow, division by zero, invalid operation."},
};

TEST(Signal, ComesOutAsAnExceptionTenTimesInARowAndLeavesTheUnitsInTheirDefaults) {
  for (auto& c : s_crashes) {
    for (int i = 0; i < 10; ++i) {
      zeb_set_cw_fpu(0x800, 0xC00);
      EXPECT_EQ(messageOf(c.crash), zebString("--QOR. Signal: ") + c.text);
      EXPECT_EQ(tsSignal::code(), c.signal);
      EXPECT_EQ(zeb_get_cw_fpu() & 0xF3F, 0x23Bu);
      EXPECT_EQ(zeb_get_ssx() & 0xFFBF, 0x9F80u);
    }
  }
}

// A system may hand the crashed function's state to the handler as it was.
TEST(Signal, FindsNoValuesOnTheRegisterStackAfterwards) {
  EXPECT_THROW(zebCatchSignals([] {
                 asm volatile("fld1\n\tfld1");
                 tsSignal::sig_fpe(SIGFPE, 0);
               }),
               zebException);
  EXPECT_EQ(zeb_get_sw_fpu() & 0x3800, 0u);
}

TEST(Signal, ReturnsToTheInnermostPointWhichIsGivenBackAtTheEnd) {
  zebString inner, outer;
  try {
    zebCatchSignals([&] {
      inner = messageOf(s_crashes[2].crash);
      EXPECT_THROW(zebCatchSignals([] { throw zebException("of the steps"); }), zebException);
      writeToNull();
    });
  } catch (zebException& e) {
    outer = e.msg();
  }
  EXPECT_EQ(inner + outer, "--QOR. Signal: Illegal instruction.--QOR. Signal: Illegal storage access.");
  EXPECT_FALSE(tsSignal::m_armed);
}

TEST(SignalDeathTest, OutsideOfAnyTestKillsAndSaysWhatAndWhere) {
  messageOf(writeToNull);
  for (auto& c : s_crashes) {
    EXPECT_EXIT(c.crash(), testing::KilledBySignal(c.signal),
                (zebString("^-- Signal: ") + c.text + " outside of any test\n").c_str());
  }
  g_trace.insert(g_trace.begin(), "outputHeader");
  EXPECT_EXIT(writeToNull(), testing::KilledBySignal(SIGSEGV), "outside of any test in outputHeader\n");
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

// Its stack isn't the one that the armed point lies on.
TEST(SignalDeathTest, InAThreadOfTheLibraryKillsEvenDuringATest) {
  EXPECT_EXIT(zebCatchSignals([] { std::thread(writeToNull).join(); }), testing::KilledBySignal(SIGSEGV),
              "Illegal storage access. in a thread of the library");
}

}  // namespace
