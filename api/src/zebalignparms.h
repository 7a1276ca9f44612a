// zebalignparms.h: which distances between test vectors can the user ask for?
#ifndef ZEBALIGNPARMS_H
#define ZEBALIGNPARMS_H

#include "zebdefault.h"

// A misalignment against the 64-byte boundary: only the remainder by 64 counts, negative values keep their
// sign.
class DefaultAlign : public zebDefault<int> {
 public:
  using zebDefault<int>::zebDefault;
  int validItem(zebString text) override;
};

// A shift from one vector to the next, in bytes: cut down to a multiple of 64.
class DefaultShift : public zebDefault<int> {
 public:
  using zebDefault<int>::zebDefault;
  int validItem(zebString text) override;
};

#endif
