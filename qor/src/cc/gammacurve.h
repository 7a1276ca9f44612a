// gammacurve.h: the transfer function of ITU-R BT.709-6, item 1.2, and its inverse.
//
// Own arithmetic in place of pow(): add and multiply only, so that every build
// gives the same bits and no call raises a floating-point flag but "inexact".
#ifndef QOR_CC_GAMMACURVE_H
#define QOR_CC_GAMMACURVE_H

#include <stdint.h>

#include "transforms.h"

namespace qor {
namespace {

constexpr int kTerms = 13;

// x to the power of one exponent, for x in 2^-6..1: x = m 2^e, of which m in 1..2 goes
// through a Chebyshev approximation in m - 1.5, highest term first, and 2^e
// through a table. Relative error below 3e-12.
struct Power {
  double terms[kTerms];
  double ofHalves[7];  // 2^-6 to that power, 2^-5, ... 1
};

constexpr Power kPower045 = {
    {-9.7329996565421994e-5, 1.6511439215707413e-4, -2.0431082303131735e-4, 3.5916827840731583e-4,
     -6.6842108913880302e-4, 1.2243749129775431e-3, -2.3122240601826487e-3, 4.5736597734703529e-3,
     -9.6630005823231906e-3, 2.2736469892233618e-2, -6.6009091561596611e-2, 3.6004959043807002e-1,
     1.200165301609877},
    {0.15389305166811454, 0.21022410381342864, 0.28717458874925875, 0.39229204894837537, 0.53588673126814658,
     0.73204284797281271, 1}};

constexpr Power kPowerInverse = {
    {-5.5047320520213254e-6, 1.1167350473574194e-5, -1.892887939808471e-5, 4.1989436886467206e-5,
     -9.9750631015704512e-5, 2.5050535759716169e-4, -6.9596643411136919e-4, 2.2549298822645425e-3,
     -9.5130179348548651e-3, 7.3386137632704532e-2, 1.4860692821782731, 3.6476246017054043,
     2.4621466061526054},
    {9.6887271238293425e-5, 4.5208726185902853e-4, 2.1094916775240355e-3, 9.8431332023036966e-3,
     4.5929202883612464e-2, 0.21431099571326821, 1}};

inline double power(double x, const Power& p) {
  constexpr uint64_t kFraction = (uint64_t{1} << 52) - 1, kOne = uint64_t{1023} << 52;
  const uint64_t bits = __builtin_bit_cast(uint64_t, x);
  const double t = __builtin_bit_cast(double, (bits & kFraction) | kOne) - 1.5;
  double sum = p.terms[0];
  for (int i = 1; i < kTerms; ++i) sum = sum * t + p.terms[i];
  return sum * p.ofHalves[static_cast<int>(bits >> 52) - (1023 - 6)];
}

// slope * v below the knee, else gain * ((v + shift) * scale)^exponent + offset.
struct Curve {
  double knee, slope, shift, scale, gain, offset;
  const Power& power;
};

template <Direction>
constexpr Curve kCurve = {0.018, 4.5, 0, 1, 1.099, -0.099, kPower045};
template <>
constexpr Curve kCurve<Direction::inverse> = {0.081, 1 / 4.5, 0.099, 1 / 1.099, 1, 0, kPowerInverse};

// v in 0..1; so is the result.
template <Direction direction>
inline double curve(double v) {
  constexpr const Curve& c = kCurve<direction>;
  const double base = ((v < c.knee ? c.knee : v) + c.shift) * c.scale;
  const double bent = c.gain * power(base < 1 ? base : 1, c.power) + c.offset;
  return v < c.knee ? c.slope * v : bent < 1 ? bent : 1;
}

}  // namespace
}  // namespace qor

#endif
