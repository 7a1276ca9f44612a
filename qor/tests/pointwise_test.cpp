// Colour twist and gamma: every function against its formula in double precision.
#include <fenv.h>
#include <gtest/gtest.h>

#include <limits>

#include "pixels.h"
#include "qorcc.h"

namespace {

struct PointCall {
  const void* source[3] = {};
  void* target[3] = {};
  bool noPlanes = false;
  int sourceStep = 0, targetStep = 0;
  QoriSize size = {0, 0};
  const float (*twist)[4] = nullptr;
  float vMin = 0, vMax = 2;
};

template <class T>
T* const* planesOf(const PointCall& c, void* const* planes) {
  return c.noPlanes ? nullptr : reinterpret_cast<T* const*>(planes);
}

#define IMAGES_Packed(T) \
  static_cast<const T*>(c.source[0]), c.sourceStep, static_cast<T*>(c.target[0]), c.targetStep
#define IMAGES_Planes(T)                                                            \
  c.noPlanes ? nullptr : reinterpret_cast<const T* const*>(c.source), c.sourceStep, \
      planesOf<T>(c, c.target), c.targetStep
#define IMAGES_PackedInPlace(T) static_cast<T*>(c.target[0]), c.targetStep
#define IMAGES_PlanesInPlace(T) planesOf<T>(c, c.target), c.targetStep
#define EXTRA_None
#define EXTRA_Twist , c.twist
#define EXTRA_Span , c.vMin, c.vMax

struct Entry {
  std::string name, images, extra, type, format;
  QorStatus (*run)(const PointCall&);

  bool isPlanar() const { return images.starts_with("Planes"); }
  bool inPlace() const { return images.ends_with("InPlace"); }
  int planes() const { return isPlanar() ? 3 : 1; }
  int perPixel() const { return isPlanar() ? 1 : format == "C3" ? 3 : 4; }
  int channels() const { return format == "C4" ? 4 : 3; }
};

const Entry kEntries[] = {
#define QORCC_POINTWISE(name, images, extra, type, format, transform) \
  {#name, #images, #extra,                                            \
   #type, #format, [](const PointCall& c) { return name(IMAGES_##images(Qor##type), c.size EXTRA_##extra); }},
#include "qorccparameters.def"
};

constexpr float kTwist[4][4] = {
    {0.5f, 0.75f, -0.25f, 3}, {-1, 0.125f, 1.5f, -20}, {0.3f, 0.3f, 0.3f, 0.5f}, {0.25f, -0.5f, 0.75f, 2}};

double forward(double v) {
  return v < 0.018 ? 4.5 * v : 1.099 * std::pow(v, 0.45) - 0.099;
}
double inverse(double v) {
  return v < 0.081 ? v / 4.5 : std::pow((v + 0.099) / 1.099, 1 / 0.45);
}

class Case {
 public:
  Case(const Entry& e, int width, int height)
      : entry(e),
        width_(width),
        source(e.type, e.planes(), width * e.perPixel(), height, 5),
        target(e.type, e.planes(), width * e.perPixel(), height, 12) {
    call.size = {width, height};
    call.twist = kTwist;
    call.sourceStep = source.step;
    call.targetStep = target.step;
    for (int p = 0; p < e.planes(); ++p) call.source[p] = source.plane(p), call.target[p] = target.plane(p);
  }

  QorStatus run() {
    if (entry.inPlace()) target.fill([&](int p, int i, int y) { return source.value(p, i, y); });
    return entry.run(call);
  }

  // Every channel is right, all else as it was.
  void check() const {
    for (int y = 0; y < source.height; ++y)
      for (int x = 0; x < width_; ++x)
        for (int c = 0; c < 4; ++c) checkChannel(x, y, c);
    EXPECT_TRUE(source.hasCleanPadding() && target.hasCleanPadding()) << entry.name;
  }

  double in(int x, int y, int c) const { return get(source, x, y, c); }
  double out(int x, int y, int c) const { return get(target, x, y, c); }

  const Entry& entry;

 private:
  const int width_;

 public:
  Pixels source, target;
  PointCall call;

 private:
  double get(const Pixels& p, int x, int y, int c) const {
    return entry.isPlanar() ? p.value(c, x, y) : p.value(0, x * entry.perPixel() + c, y);
  }

  double formula(int x, int y, int c) const {
    if (entry.extra == "Twist") {
      const float* row = call.twist[c];
      const double last = entry.channels() == 4 ? in(x, y, 3) : 1;
      return row[0] * in(x, y, 0) + row[1] * in(x, y, 1) + row[2] * in(x, y, 2) + row[3] * last;
    }
    const double low = entry.type == "32f" ? call.vMin : source.type.low;
    const double span = entry.type == "32f" ? call.vMax - call.vMin : source.type.span();
    const double v = std::fmin(std::fmax((in(x, y, c) - low) / span, 0), 1);
    return low + span * (entry.name.find("Fwd") != std::string::npos ? forward(v) : inverse(v));
  }

  void checkChannel(int x, int y, int c) const {
    if (c >= entry.channels()) {
      if (c >= entry.perPixel() || entry.isPlanar()) return;
      const double untouched = entry.inPlace() ? in(x, y, c) : garbage();
      EXPECT_TRUE(out(x, y, c) == untouched) << entry.name << " wrote alpha";
      return;
    }
    const double exact = formula(x, y, c);
    const double held =
        source.type.isFloat ? exact : std::fmin(std::fmax(exact, source.type.low), source.type.high);
    // Single precision of sums as large as 2 * 65535, and of floats near 25.
    const double ofFloats = entry.extra == "Twist" ? 3e-6 : 4e-7;
    const double tolerance = source.type.isFloat ? ofFloats : 0.5 + 0.04;
    ASSERT_NEAR(out(x, y, c), held, tolerance)
        << entry.name << " " << width_ << ": " << x << "," << y << "," << c;
  }

  double garbage() const {
    Pixels one(entry.type, 1, 1, 1, 0);
    return one.value(0, 0, 0);
  }
};

TEST(Pointwise, EveryFunctionComputesItsFormulaAndTouchesNothingElse) {
  std::mt19937 random(1);
  for (const Entry& e : kEntries)
    for (int width : {1, 7, 17, 63, 300}) {
      Case c(e, width, 3);
      c.source.fillRandom(random);
      const auto before = c.source.copy();
      ASSERT_EQ(c.run(), qorStsNoErr) << e.name;
      c.check();
      EXPECT_TRUE(before == c.source.copy()) << e.name;
      if (HasFailure()) return;
    }
}

TEST(Pointwise, OrdinaryDataRaiseNoFlagButInexact) {
  std::mt19937 random(2);
  for (const Entry& e : kEntries) {
    Case c(e, 65, 2);
    c.source.fillRandom(random);
    feclearexcept(FE_ALL_EXCEPT);
    ASSERT_EQ(c.run(), qorStsNoErr);
    EXPECT_EQ(fetestexcept(FE_ALL_EXCEPT & ~FE_INEXACT), 0) << e.name;
  }
}

template <class Spoil>
void refuse(const Entry& e, QorStatus wanted, Spoil spoil) {
  Case c(e, 5, 3);
  spoil(c.call);
  const auto before = c.target.copy();
  EXPECT_EQ(e.run(c.call), wanted) << e.name;
  EXPECT_TRUE(before == c.target.copy()) << e.name << " wrote";
}

TEST(Pointwise, WrongArgumentsAreRefusedAndNothingIsWritten) {
  const float infinity = std::numeric_limits<float>::infinity(), nan = std::nanf(""), most = 3e38f;
  for (const Entry& e : kEntries) {
    for (int p = 0; p < e.planes(); ++p) {
      refuse(e, qorStsNullPtrErr, [&](PointCall& c) { c.target[p] = nullptr; });
      if (!e.inPlace()) refuse(e, qorStsNullPtrErr, [&](PointCall& c) { c.source[p] = nullptr; });
    }
    if (e.isPlanar()) refuse(e, qorStsNullPtrErr, [](PointCall& c) { c.noPlanes = true; });
    for (QoriSize size : {QoriSize{0, 3}, {5, 0}, {-5, 3}})
      refuse(e, qorStsSizeErr, [&](PointCall& c) { c.size = size; });
    refuse(e, qorStsStepErr, [](PointCall& c) { c.targetStep -= 13; });
    if (!e.inPlace()) refuse(e, qorStsStepErr, [](PointCall& c) { c.sourceStep -= 6; });
    if (e.extra == "Twist") refuse(e, qorStsNullPtrErr, [](PointCall& c) { c.twist = nullptr; });
    if (e.extra != "Span") continue;
    for (float v : {0.0f, -1.0f, infinity, nan})
      refuse(e, qorStsBadArgErr, [&](PointCall& c) { c.vMax = v; });
    refuse(e, qorStsBadArgErr, [&](PointCall& c) { c.vMin = -most, c.vMax = most; });
  }
}

TEST(ColorTwist, PermutesSaturatesAndRoundsHalfUp) {
  const Qor8u source[6] = {10, 200, 31, 0, 255, 1};
  Qor8u target[6];
  const float permute[3][4] = {{0, 0, 1, 0}, {1, 0, 0, 0}, {0, 1, 0, 0}};
  ASSERT_EQ(qoriColorTwist32f_8u_C3R(source, 6, target, 6, {2, 1}, permute), qorStsNoErr);
  EXPECT_EQ(std::vector<int>(target, target + 6), (std::vector<int>{31, 10, 200, 1, 0, 255}));
  const float wild[3][4] = {{0, 2, 0, 0}, {-1, 0, 0, 3}, {0, 0, 0.5f, 0}};
  ASSERT_EQ(qoriColorTwist32f_8u_C3R(source, 6, target, 6, {2, 1}, wild), qorStsNoErr);
  EXPECT_EQ(std::vector<int>(target, target + 6), (std::vector<int>{255, 0, 16, 255, 3, 1}));

  Qor8s small[3] = {-128, 127, -3};
  const float negate[3][4] = {{-1, 0, 0, 0}, {-2, -1, 0, -500}, {0, 0, 0.5f, 0}};
  ASSERT_EQ(qoriColorTwist32f_8s_C3IR(small, 3, {1, 1}, negate), qorStsNoErr);
  EXPECT_EQ(std::vector<int>(small, small + 3), (std::vector<int>{127, -128, -1}));
}

TEST(ColorTwist, FourChannelsAllTakePart) {
  const Qor32f source[4] = {1, 2, 3, 10};
  Qor32f target[4];
  const float twist[4][4] = {{1, 0, 0, 1}, {0, 1, 0, 0}, {0, 0, 1, -1}, {1, 1, 1, 0.5f}};
  ASSERT_EQ(qoriColorTwist_32f_C4R(source, 16, target, 16, {1, 1}, twist), qorStsNoErr);
  EXPECT_EQ(std::vector<float>(target, target + 4), (std::vector<float>{11, 2, -7, 11}));
}

TEST(Gamma, IntegersAreTheRoundedFormulaForEveryValue) {
  for (const Entry& e : kEntries) {
    if (e.images != "Packed" || e.format != "C3" || e.extra != "None") continue;
    const double span = elementType(e.type).span();
    Case c(e, static_cast<int>(span + 1), 1);
    c.source.fill([](int, int i, int) { return i / 3; });
    ASSERT_EQ(c.run(), qorStsNoErr);
    const bool isForward = e.name.find("Fwd") != std::string::npos;
    for (int v = 0; v <= span; ++v) {
      const double exact = (isForward ? forward(v / span) : inverse(v / span)) * span;
      ASSERT_EQ(c.out(v, 0, v % 3), std::floor(exact + 0.5 + 1e-9)) << e.name << " " << v;
    }
  }
}

TEST(Gamma, ThereAndBackIsWithinTheRoundingOfTheWay) {
  // The inverse is at most 1 / (1.099 * 0.45) = 2.02 steep: half a step becomes about one.
  std::vector<Qor16u> all(65538), coded(65538), back(65538);
  for (int i = 0; i < 65538; ++i) all[i] = static_cast<Qor16u>(i);
  const QoriSize size = {21846, 1};
  const int step = 65538 * 2;
  qoriGammaFwd_16u_C3R(all.data(), step, coded.data(), step, size);
  qoriGammaInv_16u_C3R(coded.data(), step, back.data(), step, size);
  for (int i = 0; i < 65536; ++i) ASSERT_LE(std::abs(back[i] - all[i]), 1) << i;

  Qor8u bytes[258];
  for (int i = 0; i < 258; ++i) bytes[i] = static_cast<Qor8u>(i);
  qoriGammaFwd_8u_C3IR(bytes, 258, {86, 1});
  qoriGammaInv_8u_C3IR(bytes, 258, {86, 1});
  for (int i = 0; i < 256; ++i) ASSERT_LE(std::abs(bytes[i] - i), 1) << i;
}

TEST(Gamma, FloatsAreExactToTheLastPlaceOrTwo) {
  constexpr int kSteps = 300000;
  std::vector<float> in(kSteps), coded(kSteps), back(kSteps);
  for (int i = 0; i < kSteps; ++i) in[i] = static_cast<float>(i) / (kSteps - 1);
  qoriGammaFwd_32f_C3R(in.data(), kSteps * 4, coded.data(), kSteps * 4, {kSteps / 3, 1}, 0, 1);
  qoriGammaInv_32f_C3R(in.data(), kSteps * 4, back.data(), kSteps * 4, {kSteps / 3, 1}, 0, 1);
  for (int i = 0; i < kSteps; ++i) {
    // The standard's two pieces don't meet: single precision decides the side.
    if (std::fabs(in[i] - 0.018) < 1e-7 || std::fabs(in[i] - 0.081) < 1e-7) continue;
    ASSERT_NEAR(coded[i], forward(in[i]), forward(in[i]) * 1.2e-7);
    ASSERT_NEAR(back[i], inverse(in[i]), inverse(in[i]) * 1.2e-7);
  }
}

TEST(Gamma, FloatsOutsideTheSpanCountAsItsEnds) {
  const float infinity = std::numeric_limits<float>::infinity();
  float v[6] = {-5, 7, infinity, -infinity, std::nanf(""), 3};
  ASSERT_EQ(qoriGammaFwd_32f_C3IR(v, 24, {2, 1}, -1, 3), qorStsNoErr);
  EXPECT_EQ(std::vector<float>(v, v + 6), (std::vector<float>{-1, 3, 3, -1, -1, 3}));
}

}  // namespace
