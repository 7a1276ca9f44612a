// moktiming.h: how many clocks do some calls of one library function take?
//
// Two ways to spend calls, one counter reading around all of them or one
// around each. Call and Restore are functions known at compile time, so that
// between two readings stands a direct call and no indirection. Both forms
// report the library's status through mokTest::checkStatus.
#ifndef MOKTIMING_H
#define MOKTIMING_H

#include "moktest.h"
#include "qordefs.h"
#include "zebcounter.h"
#include "zebticker.h"

// Inlined without optimisation too: a call in between would be measured.
#define MOK_INLINE [[gnu::always_inline]] inline

typedef int (*mokCallFunc)();

// The restoring step of a function that leaves its input as it was.
MOK_INLINE int mokNoRestore() {
  return 0;
}

// Out of line and without a string for the usual case of success: hundreds of
// generated functions end here.
zebResult mokCheckCall(QorStatus status, const char* func);

// Stores the clocks of numLoops calls, restoring included. Only the last
// call's status counts, and an error doesn't end the loop.
template <mokCallFunc Call, mokCallFunc Restore>
MOK_INLINE zebResult mokTimeLoop(const char* func, int numLoops, long long* clocks) {
  // Not counted: the first call pays for cold caches.
  Restore();
  QorStatus status = Call();

  const long long start = qor_get_cpu_counter();
  for (int i = 0; i < numLoops; ++i) {
    Restore();
    status = Call();
  }
  const long long ticks = qor_get_cpu_counter() - start;

  *clocks = ticks * zebCpuTicker::getClockFactor();
  return mokCheckCall(status, func);
}

// In: the least calls to make and the least clocks to spend. Out: the calls
// made and the clocks spent, restoring excluded. An error ends the calls; a
// warning is remembered to the end.
template <mokCallFunc Call, mokCallFunc Restore>
MOK_INLINE zebResult mokTimeStat(const char* func, int* numCalls, long long* clocks) {
  const int leastCalls = *numCalls;
  const long long leastClocks = *clocks;
  const int factor = zebCpuTicker::getClockFactor();
  long long sum = 0;
  QorStatus kept = qorStsNoErr;
  int calls = -1;
  for (;; ++calls) {
    // Not counted: the first call pays for cold caches.
    if (calls == 0) sum = 0;
    if (calls >= leastCalls && sum * factor >= leastClocks) break;
    Restore();

    const long long start = qor_get_cpu_counter();
    const QorStatus status = Call();
    sum += qor_get_cpu_counter() - start;

    if (status != qorStsNoErr) kept = status;
    if (status < qorStsNoErr) break;
  }
  *numCalls = calls;
  *clocks = sum * factor;
  return mokCheckCall(kept, func);
}

#endif
