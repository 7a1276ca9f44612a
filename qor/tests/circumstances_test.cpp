// A call's result depends on its arguments alone, wherever and however it is made. Nothing else
// changes: no byte beside a row, not the source, not the caller's floating-point state.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <csetjmp>
#include <csignal>
#include <filesystem>

#include "calls.h"
#include "paths.h"

namespace {

sigjmp_buf beforeCall;
void leaveCall(int) {
  siglongjmp(beforeCall, 1);
}

// Whether it ends in a forbidden page.
template <class F>
bool isCaught(F call) {
  struct sigaction leave = {}, before;
  leave.sa_handler = leaveCall;
  leave.sa_flags = SA_NODEFER;
  sigaction(SIGSEGV, &leave, &before);
  const bool caught = sigsetjmp(beforeCall, 0) != 0;
  if (!caught) call();
  sigaction(SIGSEGV, &before, nullptr);
  return caught;
}

TEST(Guards, CatchOneByteBeforeOrBehindARow) {
  const Layout gray = parse("qoriGammaFwd_8u_C1R").source;
  const Image first(gray, 3, 2, {0, Rows::atPageStart}), last(gray, 3, 2, {0, Rows::atPageEnd});
  for (int y : {0, 1}) {
    volatile uint8_t *start = first.row(0, y), *end = last.row(0, y) + 3;
    EXPECT_TRUE(isCaught([&] { start[-1] = 0; }));
    EXPECT_TRUE(isCaught([&] { end[0] = 0; }));
    EXPECT_FALSE(isCaught([&] { start[0] = 0; }));
    EXPECT_FALSE(isCaught([&] { end[-1] = 0; }));
  }
}

constexpr unsigned kDefault = 0x1f80, kFlushToZero = 0x9fc0, kRoundDown = 0x3f80;
constexpr unsigned kInexact = 0x20, kAnyFlag = 0x3f;

struct Circumstances {
  int path, threads = 1;
  unsigned floatState = kDefault;
  unsigned mayRaise = kInexact;
};

std::ostream& operator<<(std::ostream& out, const Circumstances& now) {
  return out << ", path " << now.path << ", " << now.threads << " threads, floating-point state "
             << now.floatState;
}

// The target's pixels.
Bytes resultOf(Example& x, const Circumstances& now) {
  const Bytes source = x.source.copy();
  const Call call = x.call();
  _mm_setcsr(now.floatState);
  EXPECT_FALSE(isCaught([&] { EXPECT_EQ(x.entry.run(call), qorStsNoErr) << x.name(); }))
      << x.name() << now << " touches what lies beside a row";
  EXPECT_EQ(_mm_getcsr() & ~now.mayRaise, now.floatState) << x.name() << now;
  _mm_setcsr(kDefault);
  EXPECT_TRUE(source == x.source.copy()) << x.name() << now << " changes its source";
  return x.target.copy();
}

// Twice each: at the start of pages, at their end.
std::vector<std::unique_ptr<Example>> fencedExamples(const Entry& e) {
  std::vector<QoriSize> sizes = awkwardSizes();
  for (int width : {127, 128, 255, 257, 515, 1030}) sizes.push_back({width, 3});
  std::vector<std::unique_ptr<Example>> all;
  for (QoriSize size : sizes)
    for (Rows rows : {Rows::atPageStart, Rows::atPageEnd}) {
      all.push_back(std::make_unique<Example>(e, size, 0, rows));
      std::mt19937 random(1);
      all.back()->source.fillRandom(random);
      if (size.width % 8 == 0) all.back()->source.fillBytes(0);
    }
  return all;
}

// The tool that measures the library takes any flag but "inexact" for a disturbed state.
TEST(Guards, AreTouchedByNoFunctionAndPlaceAndPathChangeNoBitAndOrdinaryPicturesRaiseNoFlag) {
  const std::vector<int> paths = pathCodes();
  for (const Entry& e : entries()) {
    const auto examples = fencedExamples(e);
    std::vector<Bytes> wanted;
    for (int path : paths) {
      const OnPath on(path);
      for (size_t i = 0; i < examples.size(); ++i) {
        const Bytes got = resultOf(*examples[i], {path});
        if (wanted.size() == i / 2) wanted.push_back(got);
        ASSERT_TRUE(got == wanted[i / 2] && !HasFailure())
            << examples[i]->name() << ", path " << path << ", rows at " << (i % 2 ? "ends" : "starts")
            << " of pages";
      }
    }
  }
}

// Sources whose results may be denormal, infinite or not a number among them.
void spoilFloats(Image& image, std::mt19937& random) {
  if (image.layout.type != "32f") return;
  const float odd[] = {0.0f, -0.0f, 1e-39f, -1e-42f, 3e-38f, 1.5f, -2.0f, 1e30f};
  for (const Location& at : image.locations())
    if (random() % 7 == 0) image.setValue(at, odd[random() % std::size(odd)]);
}

// Path and threads change seldom: asking the processor and starting threads take long.
TEST(Threads, AnyNumberAnyPathAndAnyFloatingPointStateGiveTheSameBits) {
  std::vector<std::unique_ptr<Example>> examples;
  std::mt19937 random(11);
  for (const Entry& e : entries())
    for (int width : {1, 7, 38, 64, 300}) {  // all five kinds of dither
      examples.push_back(std::make_unique<Example>(e, QoriSize{width, 11}, 1));
      examples.back()->source.fillRandom(random);
      spoilFloats(examples.back()->source, random);
    }
  std::vector<Circumstances> all;
  for (int path : pathCodes()) all.insert(all.end(), {{path}, {path, 1, kRoundDown}});
  for (int threads : {2, 3, 7})
    for (int path : pathCodes()) all.push_back({path, threads, threads == 3 ? kFlushToZero : kDefault});
  std::vector<Bytes> wanted;
  for (Circumstances now : all) {
    const OnPath path(now.path, now.threads);
    now.mayRaise = kAnyFlag;
    for (size_t i = 0; i < examples.size(); ++i) {
      const Bytes got = resultOf(*examples[i], now);
      if (wanted.size() == i) wanted.push_back(got);
      ASSERT_TRUE(got == wanted[i] && !HasFailure()) << examples[i]->name() << now;
    }
  }
}

// In processes of their own: OpenMP keeps threads that it has started.
TEST(Threads, AreStartedAsManyAsAreAskedFor) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto convert = [](int threads) {
    const OnPath best(pathCodes().back(), threads);
    Example x(entryOf("qoriRGBToYCbCr_8u_C3R"), {64, 64});
    x.entry.run(x.call());
    const std::filesystem::directory_iterator running("/proc/self/task");
    std::exit(int(std::distance(begin(running), end(running))));
  };
  EXPECT_EXIT(convert(1), testing::ExitedWithCode(1), "");
  EXPECT_EXIT(convert(3), testing::ExitedWithCode(3), "");
}

}  // namespace
