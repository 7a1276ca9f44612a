// disturb.h: what does a careless function leave behind in the floating-point units?
#ifndef DISTURB_H
#define DISTURB_H

#include "zebfpu.h"

// Stores what a double can hold as a float.
inline void overflow87() {
  volatile long double big = 1e300L;
  [[maybe_unused]] volatile float small = static_cast<float>(big);
}

// With Inexact, which comes along: the engine's own arithmetic may raise it, too.
inline void overflowSSX() {
  zeb_set_ssx(0x28, 0x28);
}

#endif
