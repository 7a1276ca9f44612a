// zebsignal.h: how does the run survive a crash of the function that it measures?
//
// SIGFPE, SIGILL and SIGSEGV, stack overflow included, jump back to the armed
// point, in the innermost place that has one:
//
//   zebCatchSignals([&] { steps(); });  // a signal comes out as a zebException
//
// The jump leaves the steps' frames without running their destructors, and finds
// the floating-point units in their defaults. Where no point is armed the signal
// kills the process as it would any other, after a line on standard error.
#ifndef ZEBSIGNAL_H
#define ZEBSIGNAL_H

#include <csetjmp>

#include "zebexception.h"

class tsSignal {
 public:
  tsSignal();  // installs the handler for the process, and a stack of its own for it

  static void sig_fpe(int signal, int code);  // the handler
  static int code() { return m_code; }        // the last signal's number
  static const char* getInfo();               // and its description

  // Where the handler jumps to while m_armed is set. It is plain setjmp's: the handler runs with no signal
  // blocked, so there is no mask to restore, and arming costs no system call.
  static jmp_buf m_jmpbuf;
  static volatile bool m_armed;

 private:
  static volatile int m_code;
};

extern tsSignal _g_signal;

// Keeps the point that was armed before, and gives it back at the end of the scope. The jump disarms, so a
// crash of the code that clears up after a crash isn't taken for the first one.
class tsSignalPoint {
 public:
  tsSignalPoint();
  tsSignalPoint(const tsSignalPoint&) = delete;
  tsSignalPoint& operator=(const tsSignalPoint&) = delete;
  ~tsSignalPoint();

  void arm() { tsSignal::m_armed = true; }

 private:
  jmp_buf m_outerPoint;
  bool m_outerArmed;
};

// Not inlined: the caller's variables must not share a frame with setjmp, which may lose their values.
template <class Steps>
[[gnu::noinline]] void zebCatchSignals(const Steps& steps) {
  tsSignalPoint point;
  if (setjmp(tsSignal::m_jmpbuf)) throw zebException(tsSignal::getInfo());
  point.arm();
  steps();
}

#endif
