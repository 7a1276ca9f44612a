// Bit reduction: against a second error diffusion that pushes instead of pulling.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "calls.h"

namespace {

class Case {
 public:
  Case(const Entry& e, int width, int height)
      : entry(e),
        size{width, height},
        names_(parse(e.name)),
        source_(names_.source, width, height, 3),
        target_(names_.target, width, height, 6) {
    std::mt19937 random(3);
    source_.fillRandom(random);
  }

  QorStatus run(QoriDitherType dither, int levels) {
    Call c = callOf(entry, source_, target_);
    c.noise = 0, c.dither = dither, c.levels = levels;
    return entry.run(c);
  }

  int channels() const { return names_.source.hasAlpha ? 4 : std::min(3, names_.source.channels); }

  // In levels, as a fraction.
  double place(int x, int y, int c, int levels) const {
    const Layout& l = names_.source;
    return (source_.value({0, y, x * l.channels + c}) - l.low()) * (levels - 1) / (l.high() - l.low());
  }
  double valueOf(int level, int levels) const {
    const Layout& l = names_.target;
    return l.low() + std::floor(level * (l.high() - l.low()) / (levels - 1) + 0.5);
  }
  double out(int x, int y, int c) const { return target_.value({0, y, x * names_.target.channels + c}); }

  const Entry& entry;
  const QoriSize size;

 private:
  const Names names_;
  Image source_, target_;
};

// What an element's error gives to the element dx, dy away.
struct Share {
  int dx, dy, weight;
};
struct Spread {
  int divisor;
  std::vector<Share> shares;
};

const std::map<QoriDitherType, Spread>& spreads() {
  static const std::map<QoriDitherType, Spread> all = {
      {qorDitherNone, {1, {}}},
      {qorDitherFS, {16, {{1, 0, 7}, {-1, 1, 3}, {0, 1, 5}, {1, 1, 1}}}},
      {qorDitherJJN,
       {48,
        {{1, 0, 7},
         {2, 0, 5},
         {-2, 1, 3},
         {-1, 1, 5},
         {0, 1, 7},
         {1, 1, 5},
         {2, 1, 3},
         {-2, 2, 1},
         {-1, 2, 3},
         {0, 2, 5},
         {1, 2, 3},
         {2, 2, 1}}}},
      {qorDitherStucki,
       {42,
        {{1, 0, 8},
         {2, 0, 4},
         {-2, 1, 2},
         {-1, 1, 4},
         {0, 1, 8},
         {1, 1, 4},
         {2, 1, 2},
         {-2, 2, 1},
         {-1, 2, 2},
         {0, 2, 4},
         {1, 2, 2},
         {2, 2, 1}}}}};
  return all;
}

// One channel in 2^-16 levels; received errors are rounded once, when they are used.
std::vector<int> diffused(const Case& c, int channel, int levels, const Spread& spread) {
  const int w = c.size.width, h = c.size.height;
  std::vector<int64_t> received(size_t(w) * h);
  std::vector<int> result(size_t(w) * h);
  for (int i = 0; i < w * h; ++i) {
    const int x = i % w, y = i / w;
    const int64_t place = std::llround(std::floor(c.place(x, y, channel, levels) * 65536 + 0.5));
    const int64_t wanted =
        place + static_cast<int64_t>(std::floor(double(received[i]) / spread.divisor + 0.5));
    const double level = std::floor(wanted / 65536.0 + 0.5);
    result[i] = static_cast<int>(std::fmin(std::fmax(level, 0), levels - 1));
    for (const Share& s : spread.shares)
      if (x + s.dx >= 0 && x + s.dx < w && y + s.dy < h)
        received[i + s.dy * w + s.dx] += s.weight * (wanted - int64_t{result[i]} * 65536);
  }
  return result;
}

void compare(Case& c, int levels, QoriDitherType dither, const Spread& spread) {
  ASSERT_EQ(c.run(dither, levels), qorStsNoErr);
  for (int channel = 0; channel < c.channels(); ++channel) {
    const std::vector<int> wanted = diffused(c, channel, levels, spread);
    for (int i = 0; i < int(wanted.size()); ++i)
      ASSERT_EQ(c.out(i % c.size.width, i / c.size.width, channel), c.valueOf(wanted[i], levels))
          << c.entry.name << " dither " << dither << " levels " << levels << " channel " << channel << " at "
          << i;
  }
}

TEST(ReduceBits, MatchesAPushingReference) {
  for (const Entry& e : entries())
    for (int width : {1, 2, 3, 7, 63, 70, 300}) {
      if (e.extra != "Reduce" || HasFailure()) continue;
      Case c(e, width, 6);
      for (const auto& [dither, spread] : spreads())
        for (int levels : {2, 3, 255, 256}) compare(c, levels, dither, spread);
    }
}

TEST(ReduceBits, NoDitherTakesTheNearestLevelForEveryValueAndAnyCount) {
  for (int levels : {2, 3, 5, 17, 255, 4097, 32768, 65535, 65536}) {
    std::vector<Qor16u> all(65536), out(65536);
    for (int i = 0; i < 65536; ++i) all[i] = static_cast<Qor16u>(i);
    ASSERT_EQ(
        qoriReduceBits_16u_C1R(all.data(), 131072, out.data(), 131072, {65536, 1}, 0, qorDitherNone, levels),
        qorStsNoErr);
    for (int64_t i = 0; i < 65536; ++i) {
      // round(i (levels - 1) / 65535), a draw being impossible, and back, draws up
      const int64_t top = levels - 1, level = (2 * i * top + 65535) / (2 * 65535);
      ASSERT_EQ(out[i], (2 * level * 65535 + top) / (2 * top)) << levels << " " << i;
    }
  }
}

TEST(ReduceBits, FlatFieldsKeepTheirMean) {
  for (QoriDitherType dither : {qorDitherFS, qorDitherJJN, qorDitherStucki, qorDitherBayer})
    for (int noise : {0, 20, 100})
      for (int value : {20, 64, 100, 127, 128, 200, 250}) {
        // Ordered thresholds beyond 0..1 are clipped where there's no level to give.
        if (noise == 100 && dither == qorDitherBayer) continue;
        std::vector<Qor8u> in(128 * 128, static_cast<Qor8u>(value)), out(128 * 128);
        ASSERT_EQ(qoriReduceBits_8u_C1R(in.data(), 128, out.data(), 128, {128, 128}, noise, dither, 3),
                  qorStsNoErr);
        double sum = 0;
        for (Qor8u v : out) {
          ASSERT_TRUE(v == 0 || v == 128 || v == 255) << int(v);
          sum += v;
        }
        EXPECT_NEAR(sum / out.size(), value, 2.0) << "dither " << dither << " noise " << noise;
      }
}

TEST(ReduceBits, BayerLightsAsManyOf64PixelsAsTheGrayHasSixtyFourths) {
  for (int k = 0; k <= 64; ++k) {
    std::vector<Qor32f> in(64, static_cast<float>(k) / 64);
    Qor8u out[64];
    ASSERT_EQ(qoriReduceBits_32f8u_C1R(in.data(), 32, out, 8, {8, 8}, 0, qorDitherBayer, 2), qorStsNoErr);
    EXPECT_EQ(std::count(out, out + 64, 255), k);
    // The first four lie as far apart as they can: 4 pixels each way.
    for (int i = 0; i < 64 && k == 4; ++i) EXPECT_TRUE(out[i] == out[i ^ 4] && out[i] == out[i ^ 32]) << i;
  }
}

TEST(ReduceBits, NoiseStaysInsideItsAmplitudeAndRepeats) {
  std::vector<Qor16u> in(65536), out(65536), again(65536);
  for (int i = 0; i < 65536; ++i) in[i] = static_cast<Qor16u>(i);
  for (int noise : {20, 100}) {
    const auto run = [&](std::vector<Qor16u>& to) {
      return qoriReduceBits_16u_C1R(in.data(), 512, to.data(), 512, {256, 256}, noise, qorDitherNone, 2);
    };
    ASSERT_EQ(run(out), qorStsNoErr);
    ASSERT_EQ(run(again), qorStsNoErr);
    EXPECT_EQ(out, again);
    const double reach = noise / 200.0;
    int lowest = 65535, highest = 0;
    for (int i = 0; i < 65536; ++i) {
      if (out[i]) lowest = std::min(lowest, i);
      if (!out[i]) highest = i;
    }
    EXPECT_NEAR(lowest / 65535.0, 0.5 - reach, 0.02);
    EXPECT_GE(lowest / 65535.0, 0.5 - reach - 1e-4);
    EXPECT_NEAR(highest / 65535.0, 0.5 + reach, 0.02);
    EXPECT_LE(highest / 65535.0, 0.5 + reach + 1e-4);
  }
}

TEST(ReduceBits, StrangeFloatsSaturate) {
  const Qor32f in[6] = {-1e30f, 1e30f, HUGE_VALF, -HUGE_VALF, std::nanf(""), 0.5f};
  for (const auto& [dither, spread] : spreads()) {
    Qor16s out[6];
    ASSERT_EQ(qoriReduceBits_32f16s_C1R(in, 24, out, 12, {6, 1}, 0, dither, 3), qorStsNoErr);
    EXPECT_EQ(std::vector<int>(out, out + 6), (std::vector<int>{-32768, 32767, 32767, -32768, -32768, 0}));
  }
}

}  // namespace
