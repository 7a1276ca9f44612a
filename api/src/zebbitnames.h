// zebbitnames.h: what do the bits of a floating-point control or status word say, in words?
//
// The names carry their trailing blank, so that they can simply be joined.
#ifndef ZEBBITNAMES_H
#define ZEBBITNAMES_H

#include "zebstring.h"

// The name applies when the bits under the mask equal the value.
struct zebBitName {
  unsigned int mask;
  unsigned int value;
  const char* name;
};

// The names that apply to the word, in table order.
template <int count>
zebString zebBitNames(unsigned int word, const zebBitName (&table)[count]) {
  zebString names;
  for (const zebBitName& row : table) {
    if ((word & row.mask) == row.value) names += row.name;
  }
  return names;
}

// The exception flags, in the same bits of the x87 status word and of MXCSR; "Ok" if none is set. "?" begins
// the name of each flag that makes a status bad.
zebString zebStatusNames(unsigned int status);

#endif
