// zebtoolloops.h: how far can a loop count grow? Counts are ints that are multiplied step by step; what
// doesn't fit stays at the greatest int.
#ifndef ZEBTOOLLOOPS_H
#define ZEBTOOLLOOPS_H

#include <climits>

inline int loopCount(long long n) {
  return n > INT_MAX ? INT_MAX : static_cast<int>(n);
}

#endif
