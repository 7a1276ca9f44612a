// Every function but mosaics against the reference: values, bytes that must stay, sources.
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

// How far a result may lie from the rounded reference, in counts of an integer,
// or as a share of the value (of 1, if that is more) for floats.
double tolerance(const Names& n) {
  const bool isCurve = n.base.starts_with("ToneMap") || n.base.starts_with("Gamma");
  const bool moves = n.source.space == n.target.space && !isCurve && !n.base.starts_with("ColorTwist");
  if (moves || n.target.space == "YCoCg" || n.source.space == "YCoCg") return 0;
  return n.target.type == "32f" ? 1e-6 : 1;
}

double rounded(double v, const Layout& l) {
  if (l.type == "32f") return v;
  return std::clamp(std::floor(v + 0.5), l.low(), l.high());
}

double distance(const Layout& l, int component, double got, double wanted) {
  double d = std::abs(got - wanted);
  // Both ends of the range are the same hue.
  if (component == 0 && (l.space == "HLS" || l.space == "HSV")) d = std::min(d, l.high() - l.low() - d);
  return l.type == "32f" ? d / std::max(1.0, std::abs(wanted)) : d;
}

class Comparison {
 public:
  Comparison(const Entry& e, int width, int height, int padding, unsigned seed)
      : entry_(e),
        names_(parse(e.name)),
        source_(names_.source, width, height, isTight(e.sourcePart) ? 0 : padding),
        target_(names_.target, width, height, isTight(e.targetPart) ? 0 : padding + 2) {
    std::mt19937 random(seed);
    source_.fillRandom(random);
  }

  // False after the first failure.
  bool run() {
    const auto before = source_.copy();
    Call call = callOf(entry_, source_, target_);
    call.dither = qorDitherNone, call.noise = 0;
    untouched_ = target_.copy();
    around_ = Surroundings(call);
    EXPECT_EQ(entry_.run(call), qorStsNoErr) << where();
    EXPECT_TRUE(before == source_.copy()) << where() << ": source changed";
    measureSource();
    collect();
    return compare() && compareRest() && !testing::Test::HasFailure();
  }

 private:
  static bool isTight(const std::string& part) { return part.ends_with("Tight"); }

  std::string where() const {
    return entry_.name + " " + std::to_string(source_.width) + "x" + std::to_string(source_.height);
  }

  void measureSource() {
    around_.least = 1e30, around_.most = -1e30, around_.mean = 0;
    for (int y = 0; y < source_.height; ++y)
      for (int x = 0; x < source_.width; ++x) {
        const double v = source_.component(0, x, y);
        around_.least = std::min(around_.least, v);
        around_.most = std::max(around_.most, v);
        around_.mean += v / source_.width / source_.height;
      }
  }

  int sourceComponents() const { return source_.layout.channels == 1 && !source_.layout.bits16[0] ? 1 : 3; }
  int targetComponents() const { return target_.layout.channels == 1 && !target_.layout.bits16[0] ? 1 : 3; }

  void collect() {
    for (int y = 0; y < source_.height; ++y)
      for (int x = 0; x < source_.width; ++x) {
        Triple t = {};
        for (int c = 0; c < sourceComponents(); ++c) t[c] = source_.component(c, x, y);
        if (source_.layout.hasAlpha) around_.fourth = source_.component(3, x, y);
        if (target_.layout.hasAlpha) add(3, x, y, fourth(t));
        t = expected(names_, t, around_);
        for (int c = 0; c < targetComponents(); ++c) add(c, x, y, t[c]);
      }
  }

  double fourth(const Triple& source) const {
    if (!source_.layout.hasAlpha) return 7;
    if (entry_.extra == "Twist") return twisted(around_.twist[3], source, around_.fourth);
    return entry_.extra == "Reduce" ? expected(names_, {around_.fourth}, around_)[0] : around_.fourth;
  }

  void add(int c, int x, int y, double v) {
    const auto at = locate(target_.layout, c, x, y, target_.width, target_.height);
    if (!at) return;
    Mean& m = wanted_[{*at, target_.layout.bits16[0] ? c : 0}];
    m.sum += target_.layout.type == "32f" ? v : std::clamp(v, target_.layout.low(), target_.layout.high());
    ++m.count;
    m.component = c;
  }

  bool compare() {
    for (const auto& [key, mean] : wanted_) {
      const Location at = key.first;
      const Layout& l = target_.layout;
      const bool good = l.bits16[0] ? fieldFits(l, int(target_.value(at)), at.index, at.row, mean.component,
                                                mean.value(), tolerance(names_))
                                    : valueFits(at, mean);
      if (good) continue;
      ADD_FAILURE() << where() << " plane " << at.plane << " row " << at.row << " element " << at.index
                    << ": " << target_.value(at) << ", wanted "
                    << (target_.layout.bits16[0] ? "in a field " : "") << mean.value();
      return false;
    }
    return true;
  }

  bool valueFits(const Location& at, const Mean& mean) const {
    const double got = target_.value(at), wanted = rounded(mean.value(), target_.layout);
    return distance(target_.layout, mean.component, got, wanted) <= tolerance(names_);
  }

  // Bytes that hold no sample are as they were.
  bool compareRest() const {
    for (int p = 0; p < target_.planeCount(); ++p) {
      std::vector<bool> written = target_.mask(p);
      for (const auto& [key, mean] : wanted_)
        if (key.first.plane == p)
          for (int i = 0; i < target_.layout.elementSize(); ++i)
            written[target_.offset(key.first) + i] = true;
      for (size_t i = 0; i < written.size(); ++i)
        if (!written[i] && target_.plane(p)[i] != untouched_[p][i]) {
          ADD_FAILURE() << where() << " plane " << p << " byte " << i << " written, of a step of "
                        << target_.step(p);
          return false;
        }
    }
    return true;
  }

  const Entry& entry_;
  const Names names_;
  Image source_, target_;
  std::vector<std::vector<uint8_t>> untouched_;
  Surroundings around_;
  std::map<std::pair<Location, int>, Mean> wanted_;
};

TEST(Functions, AreFourHundredAndEightyThree) {
  EXPECT_EQ(conversions().size(), 380u);
  EXPECT_EQ(entries().size(), 483u);
  for (const Entry& e : entries()) EXPECT_FALSE(parse(e.name).base.empty()) << e.name;
}

bool isRight(const Entry& e, QoriSize size, int padding) {
  return Comparison(e, size.width, size.height, padding, unsigned(size.width * 100 + size.height)).run();
}

TEST(Functions, GiveTheReferenceValuesAndTouchNothingElse) {
  for (const Entry& e : entries()) {
    if (e.isMosaic()) continue;
    for (int width = 1; width <= 70; ++width)
      if (!isRight(e, {width, 1 + width % 8}, 5)) return;
    for (int height = 1; height <= 8; ++height)  // groups of two and four lines with every remainder
      for (int width : {1, 2, 3, 5, 18})
        if (!isRight(e, {width, height}, 5)) return;
  }
}

TEST(Functions, AreTheSameAcrossTiles) {
  for (const Entry& e : entries())
    for (QoriSize size : {QoriSize{255, 2}, {1046, 3}, {1047, 3}, {4133, 1}})  // even ones without padding
      if (!e.isMosaic() && !isRight(e, size, size.width % 2)) return;
}

}  // namespace
