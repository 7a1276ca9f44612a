// state.h: what did the caller choose, for the shared objects that do the work?
//
// Not for callers: they have qorcore.h.
#ifndef QOR_CORE_STATE_H
#define QOR_CORE_STATE_H

#include "qordefs.h"

// From the floor up: each needs all that the ones before it need.
enum QorPath { qorPathSse2, qorPathSse4, qorPathAvx2, qorPathAvx512 };

struct QorState {
  QorPath path;
  int threads;  // at least 1
};

extern "C" QOR_API QorState qorGetState(void);

#endif
