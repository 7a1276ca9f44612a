// A call that is wrong in one argument is refused and writes nothing.
#include <gtest/gtest.h>

#include <cmath>

#include "calls.h"

namespace {

class Refusal {
 public:
  explicit Refusal(const Entry& e) : entry_(e), example_(e, kSize) {}

  void pointers() {
    const auto refuseNull = [&](auto spoil) { refuse(qorStsNullPtrErr, spoil); };
    for (int p = 0; p < example_.source.planeCount() && !entry_.inPlace(); ++p)
      refuseNull([&](Call& c) { c.source[p] = nullptr; });
    for (int p = 0; p < example_.target.planeCount(); ++p)
      refuseNull([&](Call& c) { c.target[p] = nullptr; });
    if (entry_.sourcePart.starts_with("Planes") && !entry_.inPlace())
      refuseNull([](Call& c) { c.noSourcePlanes = true; });
    if (entry_.targetPart.starts_with("Planes")) refuseNull([](Call& c) { c.noTargetPlanes = true; });
    if (entry_.sourcePart == "PlanesSteps") refuseNull([](Call& c) { c.noSourceSteps = true; });
    if (entry_.targetPart == "PlanesSteps") refuseNull([](Call& c) { c.noTargetSteps = true; });
    if (entry_.extra == "Coeffs") refuseNull([](Call& c) { c.coeffs = nullptr; });
    if (entry_.extra == "Twist") refuseNull([](Call& c) { c.twist = nullptr; });
    if (entry_.extra == "Adaptive") refuseNull([](Call& c) { c.scratch = nullptr; });
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
    if (!entry_.inPlace()) eachStep(entry_.sourcePart, example_.source, &Call::sourceStep);
    eachStep(entry_.targetPart, example_.target, &Call::targetStep);
    if (entry_.extra == "Adaptive") refuse(qorStsStepErr, [](Call& c) { --c.scratchStep; });
    // Bytes of a row beyond 32 bits mustn't wrap into a small number.
    if (!entry_.sourcePart.ends_with("Tight") && !entry_.isMosaic())
      refuse(qorStsStepErr, [](Call& c) { c.size.width = 0x7fffffff; });
  }

  void others() {
    const auto refuseBad = [&](auto spoil) { refuse(qorStsBadArgErr, spoil); };
    if (entry_.extra == "Layout")
      for (int layout : {0, 1, 0x10, 0x16, -1}) refuseBad([&](Call& c) { c.layout = layout; });
    if (entry_.extra == "Span") {
      for (float v : {-0.25f, -1.0f, HUGE_VALF, std::nanf("")}) refuseBad([&](Call& c) { c.vMax = v; });
      refuseBad([&](Call& c) { c.vMin = -3e38f, c.vMax = 3e38f; });
    }
    if (entry_.extra == "Reduce") {
      for (int noise : {-1, 101}) refuseBad([&](Call& c) { c.noise = noise; });
      for (int levels : {1, example_.target.layout.elementSize() == 1 ? 257 : 65537})
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
    Call c = example_.call();
    spoil(c);
    const Bytes before = example_.target.copy();
    EXPECT_EQ(entry_.run(c), wanted) << entry_.name;
    EXPECT_TRUE(before == example_.target.copy()) << entry_.name << " wrote";
  }

  void eachStep(const std::string& part, const Image& image, int (Call::*steps)[4]) {
    if (part.ends_with("Tight")) return;
    const bool isOne = part == "Planes" || part == "PlanesInPlace";
    for (int p = 0; p < (isOne ? 1 : image.planeCount()); ++p)
      for (int step : {image.step(p) - 1, 0, -image.step(p)})
        refuse(qorStsStepErr, [&](Call& c) { (c.*steps)[p] = step; });
  }

  const Entry& entry_;
  Example example_;
};

TEST(Arguments, OfWhichOneIsWrongAreRefusedAndNothingIsWritten) {
  for (const Entry& e : entries()) {
    Refusal refusal(e);
    refusal.pointers();
    refusal.sizes();
    refusal.steps();
    refusal.others();
    if (HasFailure()) return;
  }
}

}  // namespace
