#include "zebsignal.h"

#include <signal.h>
#include <unistd.h>

#include <cstring>

#include "zeb87.h"
#include "zebfpu.h"
#include "zebssx.h"
#include "zebtrace.h"

namespace {

const int s_signals[] = {SIGFPE, SIGILL, SIGSEGV};

// The handler has to run when the process's own stack is used up. Room for the frame with the widest vector
// registers several times over.
alignas(16) char s_stack[64 * 1024];

void onSignal(int signal, siginfo_t* info, void*) {
  tsSignal::sig_fpe(signal, info->si_code);
}

// A thread of the library's has no point of ours on its stack.
bool onMainThread() {
  return gettid() == getpid();
}

// After a crash neither the heap nor the streams can be trusted, so this is all done by write.
void say(const char* text) {
  [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, text, strlen(text));
}

[[noreturn]] void die(int signal) {
  ::signal(signal, SIG_DFL);  // first, in case that the report crashes too
  say("-- Signal: ");
  say(tsSignal::getInfo());
  say(onMainThread() ? " outside of any test" : " in a thread of the library");
  if (!g_trace.empty()) {
    say(" in ");
    say(g_trace.begin()->c_str());
  }
  say("\n");
  raise(signal);
  _exit(128 + signal);
}

// The system enters a handler with state of its own choosing, and the crashed function may have left values
// on the x87 stack.
void resetUnits() {
  zeb_init_fpu();
  ts87Base().setDefault();
  tsSSXBase().setDefault();
}

}  // namespace

jmp_buf tsSignal::m_jmpbuf;
volatile bool tsSignal::m_armed = false;
volatile int tsSignal::m_code = 0;

tsSignal::tsSignal() {
  stack_t stack{};
  stack.ss_sp = s_stack;
  stack.ss_size = sizeof(s_stack);
  sigaltstack(&stack, nullptr);
  struct sigaction action {};
  action.sa_sigaction = onSignal;
  // SA_NODEFER: the handler is left by a jump, and the tenth crash must reach it like the first.
  action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
  for (int signal : s_signals) sigaction(signal, &action, nullptr);
}

void tsSignal::sig_fpe(int signal, int) {
  m_code = signal;
  if (!m_armed || !onMainThread()) die(signal);
  m_armed = false;
  resetUnits();
  longjmp(m_jmpbuf, -1);
}

const char* tsSignal::getInfo() {
  switch (m_code) {
    case SIGFPE:
      return "FP error, such as overflow, division by zero, invalid operation.";
    case SIGILL:
      return "Illegal instruction.";
    case SIGSEGV:
      return "Illegal storage access.";
    default:
      return "Unknown exception";
  }
}

tsSignalPoint::tsSignalPoint() : m_outerArmed(tsSignal::m_armed) {
  memcpy(m_outerPoint, tsSignal::m_jmpbuf, sizeof(jmp_buf));
}

tsSignalPoint::~tsSignalPoint() {
  // While the buffer is being copied there is no point to jump to.
  tsSignal::m_armed = false;
  memcpy(tsSignal::m_jmpbuf, m_outerPoint, sizeof(jmp_buf));
  tsSignal::m_armed = m_outerArmed;
}
