// A call that is wrong in one argument is refused and writes nothing.
#include <gtest/gtest.h>

#include "calls.h"

namespace {

class Refusal {
 public:
  explicit Refusal(const Entry& e)
      : entry_(e),
        names_(parse(e.name)),
        source_(names_.source, kWidth, kHeight, 0),
        target_(names_.target, kWidth, kHeight, 0) {}

  void nullPointers() const {
    for (int p = 0; p < source_.planeCount(); ++p)
      refuse(qorStsNullPtrErr, [&](Call& c) { c.source[p] = nullptr; });
    for (int p = 0; p < target_.planeCount(); ++p)
      refuse(qorStsNullPtrErr, [&](Call& c) { c.target[p] = nullptr; });
    if (entry_.extra == "Coeffs") refuse(qorStsNullPtrErr, [](Call& c) { c.coeffs = nullptr; });
  }

  void nullArrays() const {
    if (entry_.sourcePart.starts_with("Planes"))
      refuse(qorStsNullPtrErr, [](Call& c) { c.noSourcePlanes = true; });
    if (entry_.targetPart.starts_with("Planes"))
      refuse(qorStsNullPtrErr, [](Call& c) { c.noTargetPlanes = true; });
    if (entry_.sourcePart == "PlanesSteps") refuse(qorStsNullPtrErr, [](Call& c) { c.noSourceSteps = true; });
    if (entry_.targetPart == "PlanesSteps") refuse(qorStsNullPtrErr, [](Call& c) { c.noTargetSteps = true; });
  }

  void sizes() const {
    for (QoriSize size : {QoriSize{0, 1}, {1, 0}, {-1, 1}, {1, -5}})
      refuse(qorStsSizeErr, [&](Call& c) { c.size = size; });
  }

  // One byte less than a row, in turn for each step that there is.
  void steps() const {
    const bool oneSource = entry_.sourcePart == "Planes", oneTarget = entry_.targetPart == "Planes";
    if (!entry_.sourcePart.ends_with("Tight"))
      for (int p = 0; p < (oneSource ? 1 : source_.planeCount()); ++p)
        for (int step : {source_.step(p) - 1, 0, -source_.step(p)})
          refuse(qorStsStepErr, [&](Call& c) { c.sourceStep[p] = step; });
    if (!entry_.targetPart.ends_with("Tight"))
      for (int p = 0; p < (oneTarget ? 1 : target_.planeCount()); ++p)
        for (int step : {target_.step(p) - 1, 0, -target_.step(p)})
          refuse(qorStsStepErr, [&](Call& c) { c.targetStep[p] = step; });
  }

  void hugeWidth() const {
    // Bytes of a row beyond 32 bits mustn't wrap into a small number.
    if (entry_.sourcePart.ends_with("Tight")) return;
    refuse(qorStsStepErr, [](Call& c) { c.size.width = 0x7fffffff; });
  }

  void layouts() const {
    if (entry_.extra != "Layout") return;
    for (int layout : {0, 1, 0x10, 0x16, -1}) refuse(qorStsBadArgErr, [&](Call& c) { c.layout = layout; });
  }

 private:
  static constexpr int kWidth = 5, kHeight = 3;

  template <class Spoil>
  void refuse(QorStatus wanted, Spoil spoil) const {
    Call c = callOf(entry_, source_, target_);
    spoil(c);
    const auto before = target_.copy();
    EXPECT_EQ(entry_.run(c), wanted) << entry_.name;
    EXPECT_TRUE(before == target_.copy()) << entry_.name << " wrote";
  }

  const Entry& entry_;
  const Names names_;
  const Image source_;
  mutable Image target_;
};

void eachFunction(void (Refusal::*check)() const) {
  for (const Entry& e : conversions()) {
    (Refusal(e).*check)();
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
TEST(Arguments, UnknownSliceLayoutsAreRefused) {
  eachFunction(&Refusal::layouts);
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
