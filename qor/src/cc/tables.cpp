#include "tables.h"

#include <math.h>

#include "gammacurve.h"
#include "ranges.h"

namespace qortables {

Gamma255::Gamma255() {
  for (int i = 0; i < 256; ++i) {
    const double light = i / 255.0;
    value[i] = static_cast<float>(255 * (light < 0.018 ? 4.5 * light : 1.099 * pow(light, 0.45) - 0.099));
  }
}

const Gamma255 kGammaOf255;

namespace {

template <class T, qor::Direction direction>
struct GammaTable {
  T value[static_cast<int>(qor::Range<T>::span) + 1];

  GammaTable() {
    const double span = qor::Range<T>::span;
    // A hair more than the half: 2758.5 may be 2758.4999999.
    for (int i = 0; i <= span; ++i)
      value[i] = static_cast<T>(qor::curve<direction>(i / span) * span + (0.5 + 1e-9));
  }
};

const GammaTable<Qor8u, qor::Direction::forward> kForward8u;
const GammaTable<Qor8u, qor::Direction::inverse> kInverse8u;
const GammaTable<Qor16u, qor::Direction::forward> kForward16u;
const GammaTable<Qor16u, qor::Direction::inverse> kInverse16u;

}  // namespace

const Qor8u *const kGammaFwd8u = kForward8u.value, *const kGammaInv8u = kInverse8u.value;
const Qor16u *const kGammaFwd16u = kForward16u.value, *const kGammaInv16u = kInverse16u.value;

}  // namespace qortables
