// Bit reduction: against a second error diffusion that pushes instead of pulling.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "calls.h"

namespace {

// What an element's error gives, in parts of the divisor, to elements 2 left ... 2 right in its
// own row and in the two below.
struct Spread {
  QoriDitherType dither;
  int divisor;
  int weights[3][5];
};

constexpr Spread kSpreads[] = {
    {qorDitherNone, 1, {}},
    {qorDitherBayer, 1, {}},
    {qorDitherFS, 16, {{0, 0, 0, 7, 0}, {0, 3, 5, 1, 0}}},
    {qorDitherJJN, 48, {{0, 0, 0, 7, 5}, {3, 5, 7, 5, 3}, {1, 3, 5, 3, 1}}},
    {qorDitherStucki, 42, {{0, 0, 0, 8, 4}, {2, 4, 8, 4, 2}, {1, 2, 4, 2, 1}}},
};

constexpr double kLevel = 65536;  // places between two levels

// Of 64 thresholds, each in the middle of its share of a level.
double thresholdOf(QoriDitherType dither, int x, int y) {
  return dither == qorDitherBayer ? (bayer(x, y, 3) + 0.5) / 64 * kLevel : kLevel / 2;
}

// The levels of one channel; received errors are rounded once, when they are used.
std::vector<int> levelsOf(const Image& source, int channel, int levels, const Spread& spread) {
  const Layout& l = source.layout;
  const int width = source.width, height = source.height;
  std::vector<double> received(size_t(width) * height);
  std::vector<int> result(received.size());
  for (int i = 0; i < width * height; ++i) {
    const int x = i % width, y = i / width;
    const double value = source.value({0, y, x * l.channels + channel});
    const double place = std::floor((value - l.low()) * (levels - 1) / (l.high() - l.low()) * kLevel + 0.5);
    const double wanted = place + std::floor(received[i] / spread.divisor + 0.5);
    const double level = std::floor((wanted + thresholdOf(spread.dither, x, y)) / kLevel);
    result[i] = static_cast<int>(std::clamp(level, 0.0, levels - 1.0));
    for (int dy = 0; dy < 3 && y + dy < height; ++dy)
      for (int dx = -2; dx <= 2; ++dx)
        if (x + dx >= 0 && x + dx < width)
          received[i + dy * width + dx] += spread.weights[dy][dx + 2] * (wanted - result[i] * kLevel);
  }
  return result;
}

void compare(Example& x, const Spread& spread, int levels) {
  Call call = x.call();
  call.noise = 0, call.dither = spread.dither, call.levels = levels;
  ASSERT_EQ(x.entry.run(call), qorStsNoErr);
  const Layout& l = x.target.layout;
  for (int channel = 0; channel < std::min(l.channels, l.hasAlpha ? 4 : 3); ++channel) {
    const std::vector<int> wanted = levelsOf(x.source, channel, levels, spread);
    for (int i = 0; i < int(wanted.size()); ++i) {
      const Location at = {0, i / x.target.width, i % x.target.width * l.channels + channel};
      ASSERT_EQ(x.target.value(at),
                l.low() + std::floor(wanted[i] * (l.high() - l.low()) / (levels - 1) + 0.5))
          << x.name() << " dither " << spread.dither << " levels " << levels << " channel " << channel
          << " at " << i;
    }
  }
}

TEST(ReduceBits, MatchesAPushingReference) {
  std::mt19937 random(3);
  for (const Entry& e : entries())
    for (int width : {1, 2, 3, 7, 63, 70, 300}) {
      if (e.extra != "Reduce" || HasFailure()) continue;
      Example x(e, {width, 10}, 3);
      x.source.fillRandom(random);
      for (const Spread& spread : kSpreads)
        for (int levels : {2, 3, 255, 256, 32768, 65536})
          if (levels <= 256 || x.target.layout.elementSize() == 2) compare(x, spread, levels);
    }
}

TEST(ReduceBits, NoiseMovesThresholdsAsFarAsItsAmplitude) {
  Example x(entryOf("qoriReduceBits_16u_C1R"), {256, 256});
  for (const Location& at : x.source.locations()) x.source.setValue(at, at.row * 256 + at.index);
  for (int noise : {20, 100}) {
    Call call = x.call();
    call.noise = noise, call.dither = qorDitherNone, call.levels = 2;
    ASSERT_EQ(x.entry.run(call), qorStsNoErr);
    double lowest = 1, highest = 0;  // white, black
    for (const Location& at : x.source.locations()) {
      const double value = x.source.value(at) / 65535;
      if (x.target.value(at) > 0)
        lowest = std::min(lowest, value);
      else
        highest = std::max(highest, value);
    }
    // Nowhere beyond, but for rounding, and nearly there.
    const double reach = noise / 200.0;
    EXPECT_NEAR(lowest, 0.5 - reach + 0.01, 0.01 + 1e-4) << noise;
    EXPECT_NEAR(highest, 0.5 + reach - 0.01, 0.01 + 1e-4) << noise;
  }
}

}  // namespace
