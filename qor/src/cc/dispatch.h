// dispatch.h: the code path in force.
#ifndef QOR_CC_DISPATCH_H
#define QOR_CC_DISPATCH_H

#include "path.h"
#include "state.h"

namespace qorpath {

extern const Path* const kPaths[];  // in the order of QorPath

inline const Path& current() {
  return *kPaths[qorGetState().path];
}

}  // namespace qorpath

#endif
