// transforms_hue.cpp: HLS (double hexcone) and HSV (hexcone), hue 0..1.
//
// A. R. Smith, "Color Gamut Transform Pairs", SIGGRAPH 1978; J. Foley, A. van Dam,
// S. Feiner, J. Hughes, "Computer Graphics", 13.3. Without branches.
#include "floats.h"
#include "transforms.h"

namespace qor {
namespace {

// In place of a divisor of 0, whose dividend is 0 as well.
constexpr float kTiny = 1e-30f;

struct Channels {
  Floats a, b, c;
};

struct Hue {
  Floats most, least, spread, turns;  // turns: the hue in 0..turn
};

// The channels are put in order, by which the hue is the sector's beginning plus or
// minus a sixth's part. Gray has hue 0. For integers all is exact up to the one
// division, so that halves are rounded alike everywhere.
inline Hue hueOf(Floats r, Floats g, Floats b, float turn) {
  const Floats high = larger(g, b), low = smaller(g, b);
  const Floats most = larger(r, high), middle = smaller(r, high), least = smaller(middle, low);
  const Floats spread = most - least;
  // Sectors of 6, from red; the sign tells whether the hue runs backwards in it.
  const Floats behindBlue = g < b ? all(-6) : all(0);
  const Floats sector = r < high ? -2 - behindBlue : behindBlue;
  const Floats angle = magnitude(sector * spread + (middle - low));
  return {most, least, spread, angle * turn / larger(6 * spread, all(kTiny))};
}

// A trapezoid over a turn of 6 with its top about red: 1 - 2 - 1 sixths wide.
inline Floats redOf(Floats sixths) {
  return atLeast(atMost(magnitude(sixths - 3) - 1, 1), 0);
}
// The same about green, at 2, and about blue, at 4.
inline Floats peak(Floats sixths, float at) {
  return atLeast(atMost(2 - magnitude(sixths - at), 1), 0);
}

// `pixel` makes three channels of three. Tile rows have room for whole vectors behind
// their last pixel.
template <class T, class Pixel>
void eachPixel(const TileRows& in, const TileRows& out, int n, Pixel pixel) {
  const Planes<const T> from(in);
  const Planes<T> into(out);
  constexpr int vectors = sizeof(T) == 1 ? 4 : 1;
  for (int i = 0; i < n; i += vectors * kFloats) {
    Floats a[vectors], b[vectors], c[vectors];
    for (int k = 0; k < vectors; ++k) {
      const int at = i + k * kFloats;
      const Channels to = pixel(loadFloats(from.a + at), loadFloats(from.b + at), loadFloats(from.c + at));
      a[k] = to.a, b[k] = to.b, c[k] = to.c;
    }
    if constexpr (sizeof(T) == 1) {
      storeFour(into.a + i, a);
      storeFour(into.b + i, b);
      storeFour(into.c + i, c);
    } else {
      storeElements(into.a + i, a[0]);
      storeElements(into.b + i, b[0]);
      storeElements(into.c + i, c[0]);
    }
  }
}

// In steps above the range's lower end the differences of nearly equal 16-bit
// colours, on which hue rests, are exact.
template <class T, class Pixel>
void eachPixelInSteps(const TileRows& in, const TileRows& out, int n, Pixel pixel) {
  constexpr float low = Range<T>::low;
  eachPixel<T>(in, out, n, [&](Floats r, Floats g, Floats b) {
    const Channels c = pixel(r - low, g - low, b - low);
    return Channels{c.a + low, c.b + low, c.c + low};
  });
}

// Hue in steps to sixths of a turn. Floats may lie a turn outside.
template <class T>
Floats sixthsOf(Floats hue) {
  const Floats sixths = hue * (6 / Range<T>::span);
  if constexpr (Range<T>::span != 1) return sixths;
  return sixths + (sixths < 0 ? all(6) : all(0)) - (sixths >= 6 ? all(6) : all(0));
}

inline Channels rgbOf(Floats least, Floats spread, Floats sixths) {
  return {least + spread * redOf(sixths), least + spread * peak(sixths, 2), least + spread * peak(sixths, 4)};
}

}  // namespace

template <class T>
void rgbToHls(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  constexpr float span = Range<T>::span;
  eachPixelInSteps<T>(in, out, n, [](Floats r, Floats g, Floats b) {
    const Hue h = hueOf(r, g, b, span);
    // Near white floats would lose the room in a difference of nearly equal sums.
    const Floats sum = h.most + h.least;
    const Floats room = smaller(sum, span == 1 ? (span - h.most) + (span - h.least) : 2 * span - sum);
    return Channels{h.turns, sum * 0.5f, h.spread * span / larger(room, all(kTiny))};
  });
}

template <class T>
void hlsToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  constexpr float span = Range<T>::span;
  eachPixelInSteps<T>(in, out, n, [](Floats h, Floats l, Floats s) {
    const Floats half = smaller(l, span - l) * (s * (1 / span));
    return rgbOf(l - half, half + half, sixthsOf<T>(h));
  });
}

template <class T>
void rgbToHsv(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  constexpr float span = Range<T>::span;
  eachPixelInSteps<T>(in, out, n, [](Floats r, Floats g, Floats b) {
    const Hue h = hueOf(r, g, b, span);
    return Channels{h.turns, h.spread * span / larger(h.most, all(kTiny)), h.most};
  });
}

template <class T>
void hsvToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  constexpr float span = Range<T>::span;
  eachPixelInSteps<T>(in, out, n, [](Floats h, Floats s, Floats v) {
    const Floats spread = v * (s * (1 / span));
    return rgbOf(v - spread, spread, sixthsOf<T>(h));
  });
}

}  // namespace qor
