// transforms_gamma.cpp: gamma by table for integers, by its curve for floats.
#include "doubles.h"
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

// The power of gammacurve.h for floats, kDoubles of them: minimax in m - 1.5, relative
// error below 4e-9, a twentieth of a float's last place. The exponent, -6 to 0, leaves the
// three low bits of its field as 1 to 7, each of which has its factor.
struct QuickPower {
  double terms[9];
  double ofBits[3];  // 2^1, 2^2, 2^4 to that power
  double least;      // 2^-7
};

constexpr QuickPower kQuick045 = {{-0.0008580473288906601, 0.0014612311588583932, -0.0022585517262940679,
                                   0.0045271945259382992, -0.0096691081476527396, 0.022739757841510238,
                                   -0.066008845184075424, 0.36004952836682582, 1.2001652999678886},
                                  {1.3660402567543955, 1.8660659830736148, 3.4822022531844966},
                                  0.11265630782635378};

constexpr QuickPower kQuickInverse = {
    {-0.00012461156059740939, 0.00027546684637641232, -0.00068720578579817671, 0.0022503626684768875,
     -0.009514179403576298, 0.073386434608575769, 1.4860693344278165, 3.6476245967847683, 2.4621466057786762},
    {4.6661161583044663, 21.772640002790031, 474.0478526910927},
    2.0764007571020156e-5};

// Beyond its range of exponents some finite value.
inline Doubles quickPower(Doubles x, const QuickPower& p, double gain) {
  const Longs bits = reinterpret_cast<Longs>(x);
  const Doubles t = reinterpret_cast<Doubles>((bits & 0xFFFFFFFFFFFFF) | 0x3FF0000000000000) - 1.5;
  Doubles sum = allDoubles(p.terms[0]);
  for (int i = 1; i < 9; ++i) sum = sum * t + p.terms[i];
  Doubles factor = whereBit<52>(bits, gain * p.least * p.ofBits[0], gain * p.least);
  factor *= whereBit<53>(bits, p.ofBits[1], 1);
  factor *= whereBit<54>(bits, p.ofBits[2], 1);
  return sum * factor;
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
  constexpr const Curve& c = kCurve<direction>;
  constexpr const QuickPower& p = direction == Direction::forward ? kQuick045 : kQuickInverse;
  const double low = span.m[0][0], width = span.m[0][1] - low, perWidth = 1 / width;
  const double slope = c.slope * width, gain = c.gain * width, offset = c.offset * width + low;
  for (int plane = 0; plane < 3; ++plane) {
    const Qor32f* s = reinterpret_cast<const Qor32f*>(in.plane[plane]);
    Qor32f* o = reinterpret_cast<Qor32f*>(out.plane[plane]);
    for (int i = 0; i < n; i += kFloats) {
      const Floats held = atMost(atLeast(loadFloats(s + i), span.m[0][0]), span.m[0][1]);
      const auto bend = [&](Doubles d) {
        const Doubles v = (d - low) * perWidth,
                      base = direction == Direction::forward ? v : (v + c.shift) * c.scale;
        const Doubles bent = quickPower(base, p, gain) + offset;
        return v < c.knee ? v * slope + low : bent;
      };
      *reinterpret_cast<FloatsInMemory*>(o + i) = together(bend(lowerHalf(held)), bend(upperHalf(held)));
    }
  }
}

}  // namespace qor
