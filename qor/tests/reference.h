// reference.h: what should a pixel become? In double precision, from the published
// formulas and their published constants, one pixel at a time.
#ifndef QOR_TESTS_REFERENCE_H
#define QOR_TESTS_REFERENCE_H

#include <array>

#include "calls.h"

using Triple = std::array<double, 3>;

// What a conversion needs besides the pixel.
struct Surroundings {
  Surroundings() = default;
  Surroundings(const Call&, const Image& source);

  double coeffs[3] = {};
  const float (*twist)[4] = nullptr;
  double low = 0, high = 1;  // of gamma's floats
  int levels = 2;
  double fourth = 1;                     // the pixel's fourth channel if a twist takes it
  double least = 0, most = 0, mean = 0;  // of the whole source, for tone maps
};

// Components as element values of the source's type in, of the destination's
// type out: not rounded, not clamped.
Triple expected(const Names&, const Triple& source, const Surroundings&);

// A row of a twist's matrix.
double twisted(const float (&row)[4], const Triple& source, double fourth);

// For each component of a float result the largest number that the formula adds or
// subtracts on its way: single precision can't keep more digits than that one has.
Triple largestTerms(const Names&, const Triple& source, const Surroundings&);

// Counts of an integer element off the formula's result, which is rounded and clamped; both ends of
// the range are the same hue.
double countError(const Layout&, int component, double got, double wanted);

#endif
