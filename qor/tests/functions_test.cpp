// Every function but mosaics against the reference: values, and elements that must stay.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "calls.h"
#include "reference.h"

namespace {

struct Mean {
  double sum = 0;
  int count = 0;
  int component = 0;

  double value() const { return sum / count; }
};

// How far a result may lie from the reference, in counts of an integer, or as a share of the
// value (of 1, if that is more) for floats.
double tolerance(const Names& n) {
  const bool isCurve = n.base.starts_with("ToneMap") || n.base.starts_with("Gamma");
  const bool moves = n.source.space == n.target.space && !isCurve && !n.base.starts_with("ColorTwist");
  if (moves || n.target.space == "YCoCg" || n.source.space == "YCoCg") return 0;
  return n.target.type == "32f" ? 1e-6 : 1;
}

class Comparison {
 public:
  Comparison(const Entry& e, QoriSize size, int padding) : example_(e, size, padding) {
    std::mt19937 random(unsigned(size.width * 100 + size.height));
    example_.source.fillRandom(random);
  }

  // False after the first failure.
  bool run() {
    Call call = example_.call();
    call.dither = qorDitherNone, call.noise = 0;
    around_ = Surroundings(call, source_);
    collect();
    EXPECT_EQ(example_.entry.run(call), qorStsNoErr) << example_.name();
    for (const auto& [key, mean] : wanted_)
      if (!fits(key.first, mean)) return fail(key.first, mean.value());
    for (const auto& [at, value] : untouched_)
      if (target_.value(at) != value) return fail(at, value);
    return !testing::Test::HasFailure();
  }

 private:
  void collect() {
    for (int y = 0; y < source_.height; ++y)
      for (int x = 0; x < source_.width; ++x) {
        Triple t = {};
        for (int c = 0; c < source_.layout.components(); ++c) t[c] = source_.component(c, x, y);
        if (source_.layout.hasAlpha) around_.fourth = source_.component(3, x, y);
        if (target_.layout.hasAlpha) add(3, x, y, fourth(t));
        t = expected(example_.names, t, around_);
        for (int c = 0; c < target_.layout.components(); ++c) add(c, x, y, t[c]);
      }
    for (const Location& at : target_.locations())
      if (!wanted_.contains({at, 0})) untouched_[at] = target_.value(at);
  }

  double fourth(const Triple& source) const {
    if (!source_.layout.hasAlpha) return 7;
    if (example_.entry.extra == "Twist") return twisted(around_.twist[3], source, around_.fourth);
    return example_.entry.extra == "Reduce" ? expected(example_.names, {around_.fourth}, around_)[0]
                                            : around_.fourth;
  }

  void add(int c, int x, int y, double v) {
    const Layout& l = target_.layout;
    const auto at = locate(l, c, x, y, target_.width, target_.height);
    if (!at) return;
    Mean& m = wanted_[{*at, l.bits16[0] ? c : 0}];
    m.sum += l.type == "32f" ? v : std::clamp(v, l.low(), l.high());
    ++m.count;
    m.component = c;
  }

  bool fits(const Location& at, const Mean& mean) const {
    const Layout& l = target_.layout;
    const double got = target_.value(at), wanted = mean.value(), most = tolerance(example_.names);
    if (l.bits16[0]) return fieldFits(l, int(got), at.index, at.row, mean.component, wanted, most);
    if (l.type == "32f") return std::abs(got - wanted) <= most * std::max(1.0, std::abs(wanted));
    return countError(l, mean.component, got, wanted) <= most;
  }

  bool fail(const Location& at, double wanted) const {
    ADD_FAILURE() << example_.name() << " plane " << at.plane << " row " << at.row << " element " << at.index
                  << ": " << target_.value(at) << ", wanted "
                  << (target_.layout.bits16[0] ? "in a field " : "") << wanted;
    return false;
  }

  Example example_;
  const Image &source_ = example_.source, &target_ = example_.target;
  Surroundings around_;
  std::map<std::pair<Location, int>, Mean> wanted_;  // of 16-bit pixels by component too
  std::map<Location, double> untouched_;
};

TEST(Functions, AreFourHundredAndEightyThree) {
  EXPECT_EQ(entries().size(), 483u);
  for (const Entry& e : entries()) EXPECT_FALSE(parse(e.name).base.empty()) << e.name;
}

TEST(Functions, GiveTheReferenceValuesAndTouchNothingElse) {
  for (const Entry& e : entries()) {
    if (e.isMosaic()) continue;
    for (QoriSize size : awkwardSizes())
      if (!Comparison(e, size, 5).run()) return;
    for (QoriSize size : {QoriSize{255, 2}, {1046, 3}, {1047, 3}, {4133, 1}})  // more than a tile
      if (!Comparison(e, size, size.width % 2).run()) return;
  }
}

}  // namespace
