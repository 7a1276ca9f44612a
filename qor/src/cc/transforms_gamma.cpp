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
// error below 4e-9, a twentieth of a float's last place. The exponent, -7 to 0, is in the
// three low bits of its field.
struct QuickPower {
  double terms[9];
  Eight ofExponent;
};

constexpr QuickPower kQuick045 = {
    {-0.0008580473288906601, 0.0014612311588583932, -0.0022585517262940679, 0.0045271945259382992,
     -0.0096691081476527396, 0.022739757841510238, -0.066008845184075424, 0.36004952836682582,
     1.2001652999678886},
    Eight({0.11265630782635378, 0.15389305166811454, 0.21022410381342864, 0.28717458874925875,
           0.39229204894837537, 0.53588673126814658, 0.73204284797281271, 1.0})};

constexpr QuickPower kQuickInverse = {
    {-0.00012461156059740939, 0.00027546684637641232, -0.00068720578579817671, 0.0022503626684768875,
     -0.009514179403576298, 0.073386434608575769, 1.4860693344278165, 3.6476245967847683, 2.4621466057786762},
    Eight({2.0764007571020156e-5, 9.6887271238293425e-5, 0.00045208726185902853, 0.0021094916775240355,
           0.0098431332023036966, 0.045929202883612464, 0.21431099571326821, 1.0})};

// m - 1.5.
inline Doubles fraction(Doubles x) {
  const Longs bits = reinterpret_cast<Longs>(x);
  return reinterpret_cast<Doubles>((bits & 0xFFFFFFFFFFFFF) | 0x3FF0000000000000) - 1.5;
}

inline Doubles ofFraction(Doubles t, const double (&terms)[9]) {
  // Even and odd powers apart: a chain of eight sums would be waited for.
  const Doubles square = t * t;
  Doubles even = allDoubles(terms[0]), odd = allDoubles(terms[1]);
  for (int i = 2; i < 8; i += 2) {
    even = even * square + terms[i];
    odd = odd * square + terms[i + 1];
  }
  return even * square + terms[8] + odd * t;
}

// For a plane of a tile: the fractions and then the powers, and their other factor.
struct alignas(64) Powers {
  double of[kWidePixels + 16], ofExponents[kWidePixels + 16];
};

inline void storeBoth(double* p, const TwoDoubles& v) {
  store(p, reinterpret_cast<Vec>(v.lower));
  store(p + kFloats / 2, reinterpret_cast<Vec>(v.upper));
}
inline Doubles loadDoubles(const double* p) {
  return reinterpret_cast<Doubles>(load(p));
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
  const Floats least = all(span.m[0][0]), most = all(span.m[0][1]);
  const double low = span.m[0][0], width = span.m[0][1] - low;
  // Linear maps of what is held within the span.
  const double perWidth = c.scale / width, shift = c.shift * c.scale - low * perWidth;
  const double knee = low + c.knee * width, ofKnee = low - c.slope * low;
  const double gain = c.gain * width, offset = c.offset * width + low;
  const auto bent = [&](Doubles held, Doubles power) {
    return held < knee ? held * c.slope + ofKnee : power * gain + offset;
  };
  const auto heldAt = [&](const Qor32f* s) { return toDoubles(smaller(larger(loadFloats(s), least), most)); };
  Powers powers;
  for (int plane = 0; plane < 3; ++plane) {
    const Qor32f* s = reinterpret_cast<const Qor32f*>(in.plane[plane]);
    Qor32f* o = reinterpret_cast<Qor32f*>(out.plane[plane]);
    // Loops of their own, since a value takes longer than the processor looks ahead.
    for (int i = 0; i < n; i += kFloats) {
      const TwoDoubles held = heldAt(s + i),
                       x = {held.lower * perWidth + shift, held.upper * perWidth + shift};
      storeBoth(powers.of + i, {fraction(x.lower), fraction(x.upper)});
      // Beyond the range of exponents some finite value.
      storeBoth(powers.ofExponents + i, ofExponents(p.ofExponent, x));
    }
    for (int i = 0; i < n; i += kFloats / 2) {
      const Doubles power =
          ofFraction(loadDoubles(powers.of + i), p.terms) * loadDoubles(powers.ofExponents + i);
      store(powers.of + i, reinterpret_cast<Vec>(power));
    }
    for (int i = 0; i < n; i += kFloats) {
      const TwoDoubles held = heldAt(s + i);
      *reinterpret_cast<FloatsInMemory*>(o + i) =
          toFloats({bent(held.lower, loadDoubles(powers.of + i)),
                    bent(held.upper, loadDoubles(powers.of + i + kFloats / 2))});
    }
  }
}

}  // namespace qor
