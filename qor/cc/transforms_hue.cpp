// transforms_hue.cpp: HLS (double hexcone) and HSV (hexcone), hue 0..1.
//
// A. R. Smith, "Color Gamut Transform Pairs", SIGGRAPH 1978; J. Foley, A. van Dam,
// S. Feiner, J. Hughes, "Computer Graphics", 13.3. Without branches.
#include "floats.h"
#include "transforms.h"

namespace qor {
namespace {

struct Extremes {
  Floats most, least, spread;
};

inline Extremes extremes(Floats r, Floats g, Floats b) {
  const Floats most = larger(r, larger(g, b)), least = smaller(r, smaller(g, b));
  return {most, least, most - least};
}

// A turn being `turn`; gray has hue 0. For integers all is exact up to the one
// division, so that halves are rounded alike everywhere.
inline Floats hue(Floats r, Floats g, Floats b, const Extremes& e, float turn) {
  const Floats fromGreen = g == e.most ? 2 * e.spread + (b - r) : 4 * e.spread + (r - g);
  const Floats angle = r == e.most ? g - b : fromGreen;
  const Floats sixth = e.spread > 0 ? e.spread : all(1);
  return (angle < 0 ? angle + 6 * e.spread : angle) * turn / (6 * sixth);
}

// A trapezoid over a turn of 6: up in 0..1, 1 in 1..3, down in 3..4, then 0.
inline Floats ramp(Floats sixths) {
  const Floats turned = sixths + (sixths < 0 ? all(6) : all(0)) - (sixths >= 6 ? all(6) : all(0));
  return atLeast(atMost(smaller(turned, 4 - turned), 1), 0);
}

struct Channels {
  Floats a, b, c;
};

// `pixel` makes three channels of three. Tile rows have room for a whole vector
// behind their last pixel.
template <class T, class Pixel>
void eachPixel(const TileRows& in, const TileRows& out, int n, Pixel pixel) {
  const Planes<const T> from(in);
  const Planes<T> into(out);
  for (int i = 0; i < n; i += kFloats) {
    const Channels to = pixel(loadFloats(from.a + i), loadFloats(from.b + i), loadFloats(from.c + i));
    storeElements(into.a + i, to.a);
    storeElements(into.b + i, to.b);
    storeElements(into.c + i, to.c);
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

template <class T, class Pixel>
void eachPixelInFractions(const TileRows& in, const TileRows& out, int n, Pixel pixel) {
  constexpr float low = Range<T>::low, span = Range<T>::span;
  eachPixel<T>(in, out, n, [&](Floats h, Floats x, Floats y) {
    const Channels c = pixel((h - low) * (1 / span), (x - low) * (1 / span), (y - low) * (1 / span));
    return Channels{c.a * span + low, c.b * span + low, c.c * span + low};
  });
}

inline Channels rgbOf(Floats least, Floats spread, Floats hue) {
  const Floats sixths = 6 * hue;
  return {least + spread * ramp(sixths + 2), least + spread * ramp(sixths),
          least + spread * ramp(sixths - 2)};
}

}  // namespace

template <class T>
void rgbToHls(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  constexpr float span = Range<T>::span;
  eachPixelInSteps<T>(in, out, n, [](Floats r, Floats g, Floats b) {
    const Extremes e = extremes(r, g, b);
    const Floats sum = e.most + e.least, room = sum <= span ? sum : 2 * span - sum;
    return Channels{hue(r, g, b, e, span), sum / 2, e.spread * span / (room > 0 ? room : all(1))};
  });
}

template <class T>
void hlsToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  eachPixelInFractions<T>(in, out, n, [](Floats h, Floats l, Floats s) {
    const Floats room = l <= 0.5f ? l : 1 - l, most = l + room * s, least = 2 * l - most;
    return rgbOf(least, most - least, h);
  });
}

template <class T>
void rgbToHsv(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  constexpr float span = Range<T>::span;
  eachPixelInSteps<T>(in, out, n, [](Floats r, Floats g, Floats b) {
    const Extremes e = extremes(r, g, b);
    const Floats saturation = e.spread * span / (e.most > 0 ? e.most : all(1));
    return Channels{hue(r, g, b, e, span), saturation, e.most};
  });
}

template <class T>
void hsvToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&) {
  eachPixelInFractions<T>(in, out, n, [](Floats h, Floats s, Floats v) {
    const Floats spread = v * s;
    return rgbOf(v - spread, spread, h);
  });
}

}  // namespace qor
