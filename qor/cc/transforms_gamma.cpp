// transforms_gamma.cpp: gamma by table for integers, by its curve for floats.
#include "gammacurve.h"
#include "ranges.h"
#include "tables.h"
#include "transforms.h"

namespace qor {
namespace {

inline const Qor8u* tableOf(bool forward, Qor8u) {
  return forward ? qortables::kGammaFwd8u : qortables::kGammaInv8u;
}
inline const Qor16u* tableOf(bool forward, Qor16u) {
  return forward ? qortables::kGammaFwd16u : qortables::kGammaInv16u;
}

}  // namespace

template <class T, Direction direction>
void applyGamma(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  const T* table = tableOf(direction == Direction::forward, T());
  for (int p = 0; p < 3; ++p) {
    const T* s = reinterpret_cast<const T*>(in.plane[p]);
    T* __restrict o = reinterpret_cast<T*>(out.plane[p]);
    for (int i = 0; i < n; ++i) o[i] = table[s[i]];
  }
}

template <Direction direction>
void applyFloatGamma(const TileRows& in, const TileRows& out, int n, const Matrix& span) {
  const double low = span.m[0][0], width = span.m[0][1] - low, perWidth = 1 / width;
  for (int p = 0; p < 3; ++p) {
    const Qor32f* s = reinterpret_cast<const Qor32f*>(in.plane[p]);
    Qor32f* __restrict o = reinterpret_cast<Qor32f*>(out.plane[p]);
    for (int i = 0; i < n; ++i) {
      const float held = atMost(atLeast(s[i], span.m[0][0]), span.m[0][1]);
      const double v = (held - low) * perWidth;
      o[i] = static_cast<float>(curve<direction>(v < 1 ? v : 1) * width + low);
    }
  }
}

}  // namespace qor
