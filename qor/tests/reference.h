// reference.h: what should a pixel become? In double precision, from the published
// formulas and their published constants, one pixel at a time.
#ifndef QOR_TESTS_REFERENCE_H
#define QOR_TESTS_REFERENCE_H

#include <array>

#include "layouts.h"

using Triple = std::array<double, 3>;

// What a conversion needs besides the pixel.
struct Surroundings {
  double coeffs[3] = {};
  double least = 0, most = 0, mean = 0;  // of the whole source
};

// Components as element values of the source's type in, of the destination's
// type out: not rounded, not clamped.
Triple expected(const Names&, const Triple& source, const Surroundings&);

#endif
