// A call that is wrong in one argument is refused and writes nothing.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "calls.h"

namespace {

class Refusal {
 public:
  explicit Refusal(const Entry& e)
      : entry_(e),
        names_(parse(e.name)),
        source_(names_.source, sourceSize(e, kSize).width, sourceSize(e, kSize).height, 0),
        target_(names_.target, kSize.width, kSize.height, 0) {}

  void nullPointers() {
    for (int p = 0; p < source_.planeCount() && !entry_.inPlace(); ++p)
      refuse(qorStsNullPtrErr, [&](Call& c) { c.source[p] = nullptr; });
    for (int p = 0; p < target_.planeCount(); ++p)
      refuse(qorStsNullPtrErr, [&](Call& c) { c.target[p] = nullptr; });
    if (entry_.extra == "Coeffs") refuse(qorStsNullPtrErr, [](Call& c) { c.coeffs = nullptr; });
    if (entry_.extra == "Twist") refuse(qorStsNullPtrErr, [](Call& c) { c.twist = nullptr; });
    if (entry_.extra == "Adaptive") refuse(qorStsNullPtrErr, [](Call& c) { c.scratch = nullptr; });
  }

  void nullArrays() {
    if (entry_.sourcePart.starts_with("Planes") && !entry_.inPlace())
      refuse(qorStsNullPtrErr, [](Call& c) { c.noSourcePlanes = true; });
    if (entry_.targetPart.starts_with("Planes"))
      refuse(qorStsNullPtrErr, [](Call& c) { c.noTargetPlanes = true; });
    if (entry_.sourcePart == "PlanesSteps") refuse(qorStsNullPtrErr, [](Call& c) { c.noSourceSteps = true; });
    if (entry_.targetPart == "PlanesSteps") refuse(qorStsNullPtrErr, [](Call& c) { c.noTargetSteps = true; });
  }

  void sizes() {
    for (QoriSize size : {QoriSize{0, 1}, {1, 0}, {-1, 1}, {1, -5}})
      refuse(qorStsSizeErr, [&](Call& c) {
        c.size = size;
        c.roi.width = size.width, c.roi.height = size.height;
      });
    for (QoriSize size : {QoriSize{1, 8}, {9, 1}, {0, 0}})
      if (entry_.isMosaic()) refuse(qorStsSizeErr, [&](Call& c) { c.mosaic = size; });
  }

  // One byte less than a row, in turn for each step that there is.
  void steps() {
    const bool oneSource = entry_.sourcePart == "Planes", oneTarget = entry_.targetPart.starts_with("Planes");
    if (!entry_.sourcePart.ends_with("Tight") && !entry_.inPlace())
      for (int p = 0; p < (oneSource ? 1 : source_.planeCount()); ++p)
        for (int step : {source_.step(p) - 1, 0, -source_.step(p)})
          refuse(qorStsStepErr, [&](Call& c) { c.sourceStep[p] = step; });
    if (!entry_.targetPart.ends_with("Tight"))
      for (int p = 0; p < (oneTarget && entry_.targetPart != "PlanesSteps" ? 1 : target_.planeCount()); ++p)
        for (int step : {target_.step(p) - 1, 0, -target_.step(p)})
          refuse(qorStsStepErr, [&](Call& c) { c.targetStep[p] = step; });
    const int scratchRow = (kSize.width + 6) * names_.target.elementSize();
    if (entry_.extra == "Adaptive") refuse(qorStsStepErr, [&](Call& c) { c.scratchStep = scratchRow - 1; });
  }

  void hugeWidth() {
    // Bytes of a row beyond 32 bits mustn't wrap into a small number.
    if (entry_.sourcePart.ends_with("Tight") || entry_.isMosaic()) return;
    refuse(qorStsStepErr, [](Call& c) { c.size.width = 0x7fffffff; });
  }

  void others() {
    const auto refuseBad = [&](auto spoil) { refuse(qorStsBadArgErr, spoil); };
    if (entry_.extra == "Layout")
      for (int layout : {0, 1, 0x10, 0x16, -1}) refuseBad([&](Call& c) { c.layout = layout; });
    if (entry_.extra == "Span") {
      const float infinity = std::numeric_limits<float>::infinity();
      for (float v : {-0.25f, -1.0f, infinity, std::nanf("")}) refuseBad([&](Call& c) { c.vMax = v; });
      refuseBad([&](Call& c) { c.vMin = -3e38f, c.vMax = 3e38f; });
    }
    if (entry_.extra == "Reduce") {
      for (int noise : {-1, 101}) refuseBad([&](Call& c) { c.noise = noise; });
      for (int levels : {1, names_.target.elementSize() == 1 ? 257 : 65537})
        refuseBad([&](Call& c) { c.levels = levels; });
      refuseBad([](Call& c) { c.dither = QoriDitherType(5); });
    }
    if (!entry_.isMosaic()) return;
    for (QoriRect roi :
         {QoriRect{-1, 1, 5, 3}, {0, -1, 5, 3}, {2, 1, 5, 3}, {1, 2, 5, 3}, {0x7fffffff, 1, 5, 3}})
      refuseBad([&](Call& c) { c.roi = roi; });
    for (int code : {-1, 4}) refuseBad([&](Call& c) { c.grid = QoriBayerGrid(code); });
    if (entry_.extra == "Bilinear") refuseBad([](Call& c) { c.interpolation = 1; });
  }

 private:
  static constexpr QoriSize kSize = {5, 3};

  template <class Spoil>
  void refuse(QorStatus wanted, Spoil spoil) {
    Call c = callOf(entry_, source_, target_);
    spoil(c);
    const auto before = target_.copy();
    EXPECT_EQ(entry_.run(c), wanted) << entry_.name;
    EXPECT_TRUE(before == target_.copy()) << entry_.name << " wrote";
  }

  const Entry& entry_;
  const Names names_;
  const Image source_;
  Image target_;
};

void eachFunction(void (Refusal::*check)()) {
  for (const Entry& e : entries()) {
    Refusal refusal(e);
    (refusal.*check)();
    if (testing::Test::HasFailure()) return;
  }
}

TEST(Arguments, NullPointersAndPlanesAreRefused) {
  eachFunction(&Refusal::nullPointers);
}
TEST(Arguments, NullArraysAreRefused) {
  eachFunction(&Refusal::nullArrays);
}
TEST(Arguments, SizesBelowOneAreRefused) {
  eachFunction(&Refusal::sizes);
}
TEST(Arguments, StepsSmallerThanARowAreRefused) {
  eachFunction(&Refusal::steps);
}
TEST(Arguments, RowsBeyondTheRangeOfAStepAreRefused) {
  eachFunction(&Refusal::hugeWidth);
}
TEST(Arguments, OtherParametersOutOfRangeAreRefused) {
  eachFunction(&Refusal::others);
}

TEST(Arguments, FourthPlanePointerIsReadOnlyWhereAlphaIsCopied) {
  const Qor8u rgb[3] = {1, 2, 3};
  Qor8u hls[3], alpha = 9, copied = 0;
  const Qor8u* source[4] = {&rgb[0], &rgb[1], &rgb[2], nullptr};
  Qor8u* target[4] = {&hls[0], &hls[1], &hls[2], nullptr};
  EXPECT_EQ(qoriBGRToHLS_8u_AP4R(source, 1, target, 1, {1, 1}), qorStsNoErr);
  const Qor8u packed[4] = {1, 2, 3, alpha};
  EXPECT_EQ(qoriBGRToHLS_8u_AC4P4R(packed, 4, target, 1, {1, 1}), qorStsNullPtrErr);
  target[3] = &copied;
  EXPECT_EQ(qoriBGRToHLS_8u_AC4P4R(packed, 4, target, 1, {1, 1}), qorStsNoErr);
  EXPECT_EQ(copied, alpha);
}

}  // namespace
