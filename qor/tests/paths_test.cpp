// Every code path, any number of threads, any floating-point state: the same bits.
#include "paths.h"

#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <filesystem>

#include "calls.h"

namespace {

using Bytes = std::vector<std::vector<uint8_t>>;

// Sources whose results may be denormal, infinite or not a number among them.
void spoilFloats(Image& image, std::mt19937& random) {
  if (image.layout.type != "32f") return;
  const float odd[] = {0.0f, -0.0f, 1e-39f, -1e-42f, 3e-38f, 1.5f, -2.0f, 1e30f};
  for (int y = 0; y < image.height; ++y)
    for (int x = 0; x < image.width; x += 7) image.setValue({0, y, x}, odd[random() % std::size(odd)]);
}

// What a call must not depend on.
struct Circumstances {
  int path, threads;
  unsigned floatState;
};

constexpr unsigned kDefault = 0x1f80, kFlushToZero = 0x9fc0, kRoundDown = 0x3f80;

class FloatState {
 public:
  explicit FloatState(unsigned bits) : before_(_mm_getcsr()) { _mm_setcsr(bits); }
  ~FloatState() { _mm_setcsr(before_); }

 private:
  const unsigned before_;
};

// One function's arguments. The source is made beforehand: its own arithmetic is that of the test.
class Sample {
 public:
  Sample(const Entry& e, QoriSize size)
      : entry_(e), names_(parse(e.name)), source_(imageOf(sourceSize(e, size), 3)), size_(size) {
    std::mt19937 random(11);
    source_.fillRandom(random);
    spoilFloats(source_, random);
    wanted_ = run(kDefault);
  }

  bool isSameIn(unsigned floatState) const { return run(floatState) == wanted_; }
  std::string name() const { return entry_.name + " " + std::to_string(size_.width); }

 private:
  Image imageOf(QoriSize size, int padding) const {
    const bool tight = entry_.sourcePart.ends_with("Tight");
    return Image(names_.source, size.width, size.height, tight ? 0 : padding);
  }

  Bytes run(unsigned floatState) const {
    const bool tight = entry_.targetPart.ends_with("Tight");
    Image target(names_.target, size_.width, size_.height, tight ? 0 : 1);
    const Call call = callOf(entry_, source_, target);
    const FloatState state(floatState);
    EXPECT_EQ(entry_.run(call), qorStsNoErr) << name();
    return target.copy();
  }

  const Entry& entry_;
  const Names names_;
  Image source_;
  const QoriSize size_;
  Bytes wanted_;
};

// Path and threads change seldom: asking the processor and starting threads take long.
TEST(Circumstances, OfACallChangeNoBitOfItsResult) {
  std::vector<std::unique_ptr<Sample>> samples;
  {
    const OnPath floor(65);
    for (const Entry& e : entries())
      for (int width : {1, 7, 38, 64, 300})  // all five kinds of dither
        samples.push_back(std::make_unique<Sample>(e, QoriSize{width, 11}));
  }
  std::vector<Circumstances> all;
  for (int path : pathCodes()) all.insert(all.end(), {{path, 1, kDefault}, {path, 1, kRoundDown}});
  for (int threads : {2, 3, 7})
    for (int path : pathCodes()) all.push_back({path, threads, threads == 3 ? kFlushToZero : kDefault});
  for (const Circumstances& now : all) {
    const OnPath path(now.path);
    const WithThreads with(now.threads);
    for (const auto& sample : samples)
      ASSERT_TRUE(sample->isSameIn(now.floatState))
          << sample->name() << "x11, path " << now.path << ", " << now.threads
          << " threads, floating-point state " << std::hex << now.floatState;
  }
}

TEST(FloatingPoint, StateOfTheCallerStays) {
  const FloatState flush(kFlushToZero);
  const float pixel[3] = {0.5f, 0.25f, 1};
  float out[3];
  EXPECT_EQ(qoriRGBToXYZ_32f_C3R(pixel, 12, out, 12, {1, 1}), qorStsNoErr);
  EXPECT_EQ(_mm_getcsr() & 0xffc0u, kFlushToZero);
}

size_t threadsOfThisProcess() {
  size_t n = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator("/proc/self/task")) ++n;
  return n;
}

// In processes of their own: OpenMP keeps threads that it has started.
TEST(Threads, OneStartsNone) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto convert = [](int threads) {
    const WithThreads with(threads);
    std::vector<Qor8u> in(64 * 64 * 3), out(in.size());
    qoriRGBToYCbCr_8u_C3R(in.data(), 192, out.data(), 192, {64, 64});
    return threadsOfThisProcess();
  };
  EXPECT_EXIT(std::exit(convert(1) == threadsOfThisProcess() && threadsOfThisProcess() == 1 ? 0 : 1),
              testing::ExitedWithCode(0), "");
  EXPECT_EXIT(std::exit(convert(3) == 3 ? 0 : 1), testing::ExitedWithCode(0), "");
}

}  // namespace
