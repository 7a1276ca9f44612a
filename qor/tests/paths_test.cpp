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

class Sample {
 public:
  Sample(const Entry& e, int width, int height)
      : entry_(e), names_(parse(e.name)), width_(width), height_(height) {}

  // The source is made beforehand: its own arithmetic is that of the test.
  template <class Circumstances, class Value>
  Bytes run(Value value) const {
    std::mt19937 random(11);
    const bool tightSource = entry_.sourcePart.ends_with("Tight");
    const bool tightTarget = entry_.targetPart.ends_with("Tight");
    Image source(names_.source, width_, height_, tightSource ? 0 : 3);
    Image target(names_.target, width_, height_, tightTarget ? 0 : 1);
    source.fillRandom(random);
    spoilFloats(source, random);
    const Call call = callOf(source, target);
    const Circumstances now(value);
    EXPECT_EQ(entry_.run(call), qorStsNoErr) << entry_.name;
    return target.copy();
  }

 private:
  const Entry& entry_;
  const Names names_;
  const int width_, height_;
};

// What must be the same under each of the circumstances.
template <class Circumstances, class Values>
void sameUnder(const Values& values) {
  for (const Entry& e : entries())
    for (int width : {1, 6, 37, 300}) {
      const Sample sample(e, width, 11);
      const Bytes first = sample.run<OnPath>(65);
      for (const auto& value : values)
        ASSERT_TRUE(first == sample.run<Circumstances>(value))
            << e.name << " " << width << "x11, code or number " << value;
    }
}

TEST(Paths, AllGiveTheSameBits) {
  sameUnder<OnPath>(pathCodes());
}

TEST(Threads, AnyNumberGivesTheSameBits) {
  sameUnder<WithThreads>(std::vector<int>{1, 2, 3, 7});
}

class FloatState {
 public:
  explicit FloatState(unsigned bits) : before_(_mm_getcsr()) { _mm_setcsr(bits); }
  ~FloatState() { _mm_setcsr(before_); }

 private:
  const unsigned before_;
};

TEST(FloatingPoint, StateOfTheCallerChangesNoBitAndStays) {
  // Flush to zero with denormals as zero; all roundings down.
  sameUnder<FloatState>(std::vector<unsigned>{0x9fc0, 0x3f80});
  const FloatState flush(0x9fc0);
  const float pixel[3] = {0.5f, 0.25f, 1};
  float out[3];
  EXPECT_EQ(qoriRGBToXYZ_32f_C3R(pixel, 12, out, 12, {1, 1}), qorStsNoErr);
  EXPECT_EQ(_mm_getcsr() & 0xffc0u, 0x9fc0u);
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
