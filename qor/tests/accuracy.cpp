#include "accuracy.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <thread>

namespace {

constexpr int kSliceColours = 65536, kWideSlices = 64;

// Colours in a row, converted at once. Each fills a block of chroma.
class Slice {
 public:
  Slice(const Subject& s, int step)
      : subject_(s),
        names_(s.names),
        wide_(std::max(names_.source.blockWidth, names_.target.blockWidth)),
        tall_(std::max(names_.source.blockHeight, names_.target.blockHeight)),
        step_(step) {}

  Errors measure(int k) {
    makeColours(k);
    const int count = int(colours_.size());
    Example example(*subject_.entry, {count * wide_, tall_});
    for (int i = 0; i < count * wide_ * tall_; ++i)
      setPixel(example.source, i % (count * wide_), i / (count * wide_));
    for (int i = 0; i < count; ++i)  // what the type made of them
      for (int c = 0; c < names_.source.components(); ++c)
        colours_[i][c] = example.source.component(c, i * wide_, 0);
    Call call = example.call();
    call.dither = qorDitherNone, call.noise = 0;
    around_ = Surroundings(call, example.source);
    if (subject_.entry->run(call) != qorStsNoErr) throw std::runtime_error(subject_.entry->name);
    Errors errors;
    for (int i = 0; i < count; ++i) compare(example.target, i, errors);
    return errors;
  }

 private:
  void setPixel(Image& source, int x, int y) const {
    for (int c = 0; c < names_.source.components(); ++c)
      if (const auto at = locate(names_.source, c, x, y, source.width, source.height))
        source.setValue(*at, colours_[x / wide_][c]);
    if (hasFourth())
      source.setValue(*locate(names_.source, 3, x, y, source.width, 1), colours_[x / wide_][1]);
  }

  // A twist's, here the second's like.
  bool hasFourth() const { return names_.source.hasAlpha && subject_.entry->extra == "Twist"; }

  void makeColours(int k) {
    colours_.clear();
    if (names_.source.elementSize() == 1) return makeBytes(k);
    if (names_.source.bits16[0]) return makeWords();
    random_.seed(unsigned(k));
    for (int i = 0; i < kSliceColours; ++i) colours_.push_back({any(i), any(i), any(i)});
    const double low = names_.source.low(), high = names_.source.high();
    const double ends[] = {low, std::floor((low + high) / 2), high};
    for (int i = 0; i < 27; ++i) colours_[i] = {ends[i % 3], ends[i / 3 % 3], ends[i / 9]};
    // Floats aren't bounded: the LUV of RGB's colours.
    static const Names luv = parse("qoriRGBToLUV_32f_C3R");
    if (names_.source.space != "LUV" || names_.source.type != "32f") return;
    for (Triple& t : colours_) t = expected(luv, t, {});
  }

  void makeBytes(int k) {
    const double low = names_.source.low();
    for (int b = 0; b < 256; b += step_)
      for (int c = 0; c < 256; c += step_) colours_.push_back({low + k * step_, low + b, low + c});
  }

  // All 16-bit pixels; whichever component they stand for.
  void makeWords() {
    for (int i = 0; i < 65536; ++i) colours_.push_back({double(i), double(i), double(i)});
  }

  // Every second colour is near black.
  double any(int i) {
    const double unit = random_() / 4294967296.0, near = i % 2 ? std::ldexp(1, -int(random_() % 16)) : 1;
    const double v = names_.source.low() + unit * near * (names_.source.high() - names_.source.low());
    return names_.source.type == "32f" ? v : std::floor(v + 0.5);
  }

  void compare(const Image& target, int i, Errors& errors) {
    const Layout& l = names_.target;
    if (hasFourth()) around_.fourth = colours_[i][1];
    const Triple wanted = expected(names_, colours_[i], around_);
    Triple terms = {};
    if (l.type == "32f") terms = largestTerms(names_, colours_[i], around_);
    bool isExact = true;
    for (int c = 0; c < l.components(); ++c) {
      const int x = i * wide_;
      const double got = target.value(*locate(l, c, x, 0, target.width, tall_));
      const double error = l.bits16[0]       ? (fieldFits(l, int(got), x, 0, c, wanted[c], 1) ? 0 : 2)
                           : l.type == "32f" ? floatError(got, wanted[c], terms[c])
                                             : countError(l, c, got, wanted[c]);
      const bool differs = l.type == "32f" ? float(got) != float(wanted[c]) : error != 0;
      ++errors.values;
      errors.differing += differs;
      isExact = isExact && !differs;
      if (error > errors.largest) errors.largest = error, errors.worst = colours_[i];
    }
    ++errors.colours;
    errors.differingColours += !isExact;
  }

  static double floatError(double got, double wanted, double term) {
    if (!std::isfinite(got)) return HUGE_VAL;
    const double most = std::max({std::abs(wanted), term, 0x1p-126});
    return std::abs(got - wanted) / std::ldexp(1, std::ilogb(most) - 23);
  }

  const Subject& subject_;
  const Names& names_;
  const int wide_, tall_, step_;
  std::mt19937 random_;
  std::vector<Triple> colours_;
  Surroundings around_;
};

std::string share(long long part, long long all) {
  char text[32];
  if (part > 0 && part * 100000 < all) return "< 0.001 %";
  std::snprintf(text, sizeof text, part == 0 ? "0" : "%.3f %%", 100.0 * double(part) / double(all));
  return text;
}

std::string row(const Subject& s, const Errors& e, bool isFirst) {
  const std::string &from = s.names.source.type, &into = s.names.target.type;
  const std::string types = from == into ? from : from + " to " + into;
  char largest[32];
  std::snprintf(largest, sizeof largest, into == "32f" ? "%.2f ulp" : "%.0f", e.largest);
  std::string text = "| | | ";
  if (isFirst)
    text = std::string("| ") + s.family->name + " | " + s.family->formula + " | " + s.family->source;
  return text + " | " + types + (s.sharesChroma() ? ", shared chroma" : "") + " | " + largest + " | " +
         share(e.differing, e.values) + " | " + share(e.differingColours, e.colours) + " |\n";
}

}  // namespace

void Errors::add(const Errors& e) {
  if (e.largest > largest) largest = e.largest, worst = e.worst;
  values += e.values, differing += e.differing;
  colours += e.colours, differingColours += e.differingColours;
}

Errors measure(const Subject& s, int step) {
  const int slices = s.names.source.bits16[0]            ? 1
                     : s.names.source.elementSize() == 1 ? 255 / step + 1
                                                         : std::max(1, kWideSlices / (step * step));
  Errors halves[2];
  const auto run = [&](int half) {
    Slice slice(s, step);
    for (int k = half; k < slices; k += 2) halves[half].add(slice.measure(k));
  };
  std::thread other(run, 1);
  run(0);
  other.join();
  halves[0].add(halves[1]);
  return halves[0];
}

std::string complaint(const Subject& s, const Errors& e, double share) {
  char text[200] = "";
  const bool isMatrix = s.family->isMatrix && s.names.source.type == "8u" && s.names.target.type == "8u";
  const double limit = s.names.target.type == "32f" ? 4 : 1;  // units in the last place, counts
  if (e.largest > limit)
    std::snprintf(text, sizeof text, "%s is %g off, of %.9g %.9g %.9g", s.entry->name.c_str(), e.largest,
                  e.worst[0], e.worst[1], e.worst[2]);
  else if (isMatrix && double(e.differingColours) > share * double(e.colours))
    std::snprintf(text, sizeof text, "%s differs for %lld of %lld colours", s.entry->name.c_str(),
                  e.differingColours, e.colours);
  return text;
}

namespace {

std::string table(std::vector<std::string>* complaints) {
  std::string text =
      "| Family | Formula | Source | Elements | Largest error | Values that differ | Colours that differ |\n"
      "|---|---|---|---|---|---|---|\n";
  const Family* last = nullptr;
  for (const Subject& s : subjects()) {
    const Errors e = measure(s, 1);
    const std::string bad = complaint(s, e, 0.005);
    if (!bad.empty()) complaints->push_back(bad);
    text += row(s, e, s.family != last);
    last = s.family;
  }
  return text;
}

}  // namespace

std::string fingerprint() {
  uint64_t hash = 0xcbf29ce484222325;  // FNV-1a
  std::mt19937 random(1);
  for (const Entry& e : entries())
    for (QoriSize size : {QoriSize{38, 13}, {2003, 8}}) {
      Example example(e, size);
      example.source.fillRandom(random);
      if (e.run(example.call()) != qorStsNoErr) throw std::runtime_error(e.name);
      for (const auto& plane : example.target.copy())
        for (const uint8_t byte : plane) hash = (hash ^ byte) * 0x100000001b3;
    }
  char text[20];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(hash));
  return text;
}

std::string section(std::vector<std::string>* complaints) {
  return R"(8-bit sources: all 2^24 colours. Wider ones: 64 samples of 65536 colours, every second of them near black,
the corners of the range among them. Errors are counts off the formula in double precision, rounded, draws
up; for floats units in the last place (ulp) of the largest number that the formula adds or subtracts.
Values differ that aren't the formula's result rounded to the type.

)" + table(complaints) +
         R"(
Shared chroma: 4:2:0, 4:2:2 and 4:1:1, of blocks of one colour. The functions of a row differ in their layout
alone; one of them was measured, a test takes every fifth value through all. What only moves samples is exact.
`qor_accuracy --write docs/library.md` measures anew. A test compares this fingerprint of results of all functions,
which is the same for all code paths and builds:
`)" + fingerprint() +
         "`\n";
}
