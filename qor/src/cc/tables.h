// tables.h: which tables are made when the library is loaded?
//
// They lie outside of the code paths: what runs at load time must run on every
// processor.
#ifndef QOR_CC_TABLES_H
#define QOR_CC_TABLES_H

#include "qordefs.h"

namespace qortables {

// BT.709-6, item 1.2, of 0..255: light to 0..255.
struct Gamma255 {
  float value[256];

  Gamma255();
};

// Made when the library is loaded: callers may unmask floating-point traps later.
extern const Gamma255 kGammaOf255;

// The transfer functions of transforms_gamma.cpp, over each type's range.
extern const Qor8u *const kGammaFwd8u, *const kGammaInv8u;
extern const Qor16u *const kGammaFwd16u, *const kGammaInv16u;

}  // namespace qortables

#endif
