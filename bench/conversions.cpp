// conversions.cpp: how fast is the bundled library beside libyuv and beside memcpy?
//
// conversions [PROCESSOR CODE]: on the code path of that code (qorcore.h), or the
// best. Each case first shows that both libraries compute the same picture, within
// the accuracy that libyuv's 6- to 8-bit coefficients allow; then ours, theirs and
// a memcpy of as many bytes as a call reads or writes, whichever is more, take
// turns in one process. A ratio is their least time over ours. Last, one thread's time
// over that of two.
#include <benchmark/benchmark.h>
#include <libyuv.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "qorcc.h"
#include "qorcore.h"

namespace {

// Pictures of one size in every format that a case needs; 4 bytes per pixel
// are room for each.
struct Pictures {
  int w, h;
  std::vector<uint8_t> in, ours, theirs;
  std::vector<float> floats, floatsOut;

  Pictures(int width, int height)
      : w(width),
        h(height),
        in(4 * w * h),
        ours(in.size()),
        theirs(in.size()),
        floats(3 * w * h),
        floatsOut(floats.size()) {
    unsigned v = 1;
    for (uint8_t& b : in) b = static_cast<uint8_t>((v = v * 1664525 + 1013904223) >> 24);
    for (size_t i = 0; i < floats.size(); ++i) floats[i] = static_cast<float>(in[i]) / 255;
  }

  // Planes one behind the other.
  template <class Byte>
  struct Planes {
    Byte* p[3];
    int step[3];
  };
  template <class Byte>
  Planes<Byte> planes(Byte* at, int chromaWidth, int chromaHeight) const {
    return {{at, at + w * h, at + w * h + chromaWidth * chromaHeight}, {w, chromaWidth, chromaWidth}};
  }
  template <class Byte>
  Planes<Byte> p420(Byte* at) const {
    return planes(at, w / 2, h / 2);
  }
  template <class Byte>
  Planes<Byte> p422(Byte* at) const {
    return planes(at, w / 2, h);
  }
  template <class Byte>
  Planes<Byte> p444(Byte* at) const {
    return planes(at, w, h);
  }
};

struct Case {
  const char* name;
  int tolerance;               // greatest difference of a byte
  double readsPer, writesPer;  // bytes per pixel
  std::function<void(Pictures&)> ours, theirs;
};

QoriSize size(const Pictures& p) {
  return {p.w, p.h};
}

const std::vector<Case> kCases = {
    {"RGB to YUV420", 3, 3, 1.5,
     [](Pictures& p) {
       auto d = p.p420(p.ours.data());
       qoriRGBToYCbCr420_8u_C3P3R(p.in.data(), 3 * p.w, d.p, d.step, size(p));
     },
     [](Pictures& p) {
       auto d = p.p420(p.theirs.data());
       libyuv::RAWToI420(p.in.data(), 3 * p.w, d.p[0], d.step[0], d.p[1], d.step[1], d.p[2], d.step[2], p.w,
                         p.h);
     }},
    {"YUV420 to RGB", 3, 1.5, 3,
     [](Pictures& p) {
       auto s = p.p420<const uint8_t>(p.in.data());
       qoriYCbCr420ToRGB_8u_P3C3R(s.p, s.step, p.ours.data(), 3 * p.w, size(p));
     },
     [](Pictures& p) {
       auto s = p.p420<const uint8_t>(p.in.data());
       libyuv::I420ToRAW(s.p[0], s.step[0], s.p[1], s.step[1], s.p[2], s.step[2], p.theirs.data(), 3 * p.w,
                         p.w, p.h);
     }},
    {"packed 422 to RGB", 3, 2, 4,
     [](Pictures& p) {
       qoriYCbCr422ToBGR_8u_C2C4R(p.in.data(), 2 * p.w, p.ours.data(), 4 * p.w, size(p), 255);
     },
     [](Pictures& p) { libyuv::YUY2ToARGB(p.in.data(), 2 * p.w, p.theirs.data(), 4 * p.w, p.w, p.h); }},
    {"gray", 1, 3, 1,
     [](Pictures& p) { qoriRGBToGray_8u_C3C1R(p.in.data(), 3 * p.w, p.ours.data(), p.w, size(p)); },
     [](Pictures& p) { libyuv::RAWToJ400(p.in.data(), 3 * p.w, p.theirs.data(), p.w, p.w, p.h); }},
    {"full YCbCr to RGB", 3, 3, 3,
     [](Pictures& p) {
       auto s = p.p444<const uint8_t>(p.in.data());
       qoriYCbCrToRGB_8u_P3C3R(s.p, p.w, p.ours.data(), 3 * p.w, size(p));
     },
     [](Pictures& p) {
       auto s = p.p444<const uint8_t>(p.in.data());
       libyuv::I444ToRAW(s.p[0], p.w, s.p[1], p.w, s.p[2], p.w, p.theirs.data(), 3 * p.w, p.w, p.h);
     }},
    {"full RGB to YCbCr (memcpy only)", -1, 3, 3,
     [](Pictures& p) { qoriRGBToYCbCr_8u_C3R(p.in.data(), 3 * p.w, p.ours.data(), 3 * p.w, size(p)); },
     nullptr},
    {"565 unpack (memcpy only)", -1, 2, 3,
     [](Pictures& p) {
       qoriBGR565ToBGR_16u8u_C3R(reinterpret_cast<const Qor16u*>(p.in.data()), 2 * p.w, p.ours.data(),
                                 3 * p.w, size(p));
     },
     nullptr},
    // Theirs has four channels to read, there being no other.
    {"565 pack", -1, 3, 2,
     [](Pictures& p) {
       qoriBGRToBGR565_8u16u_C3R(p.in.data(), 3 * p.w, reinterpret_cast<Qor16u*>(p.ours.data()), 2 * p.w,
                                 size(p));
     },
     [](Pictures& p) { libyuv::ARGBToRGB565(p.in.data(), 4 * p.w, p.theirs.data(), 2 * p.w, p.w, p.h); }},
    {"plane split", 0, 1.5, 1.5,
     [](Pictures& p) {
       auto d = p.p420(p.ours.data());
       qoriYCbCr420_8u_P2P3R(p.in.data(), p.w, p.in.data() + p.w * p.h, p.w, d.p, d.step, size(p));
     },
     [](Pictures& p) {
       auto d = p.p420(p.theirs.data());
       libyuv::NV12ToI420(p.in.data(), p.w, p.in.data() + p.w * p.h, p.w, d.p[0], d.step[0], d.p[1],
                          d.step[1], d.p[2], d.step[2], p.w, p.h);
     }},
    {"plane merge", 0, 1.5, 1.5,
     [](Pictures& p) {
       auto s = p.p420<const uint8_t>(p.in.data());
       qoriYCbCr420_8u_P3P2R(s.p, s.step, p.ours.data(), p.w, p.ours.data() + p.w * p.h, p.w, size(p));
     },
     [](Pictures& p) {
       auto s = p.p420<const uint8_t>(p.in.data());
       libyuv::I420ToNV12(s.p[0], s.step[0], s.p[1], s.step[1], s.p[2], s.step[2], p.theirs.data(), p.w,
                          p.theirs.data() + p.w * p.h, p.w, p.w, p.h);
     }},
    {"packed 422 split", 0, 2, 2,
     [](Pictures& p) {
       auto d = p.p422(p.ours.data());
       qoriYCbCr422_8u_C2P3R(p.in.data(), 2 * p.w, d.p, d.step, size(p));
     },
     [](Pictures& p) {
       auto d = p.p422(p.theirs.data());
       libyuv::YUY2ToI422(p.in.data(), 2 * p.w, d.p[0], d.step[0], d.p[1], d.step[1], d.p[2], d.step[2], p.w,
                          p.h);
     }},
    // Nobody else's: bytes change places, as chroma and luma do here.
    {"channel swap (memcpy only)", -1, 2, 2,
     [](Pictures& p) {
       qoriYCbCr422ToCbYCr422_8u_C2R(p.in.data(), 2 * p.w, p.ours.data(), 2 * p.w, size(p));
     },
     nullptr},
    {"chroma swap (memcpy only)", -1, 2, 2,
     [](Pictures& p) {
       qoriYCbCr422ToYCrCb422_8u_C2R(p.in.data(), 2 * p.w, p.ours.data(), 2 * p.w, size(p));
     },
     nullptr},
    {"float twist (memcpy only)", -1, 12, 12,
     [](Pictures& p) {
       constexpr float kTwist[3][4] = {{0.5f, 0.25f, 0, 0}, {0, 1, 0.125f, 0}, {0, 0.5f, 0.5f, 0}};
       qoriColorTwist_32f_C3R(p.floats.data(), 12 * p.w, p.floatsOut.data(), 12 * p.w, size(p), kTwist);
     },
     nullptr},
    {"float gray (memcpy only)", -1, 12, 4,
     [](Pictures& p) {
       qoriRGBToGray_32f_C3C1R(p.floats.data(), 12 * p.w, p.floatsOut.data(), 4 * p.w, size(p));
     },
     nullptr},
    {"float gamma (memcpy only)", -1, 12, 12,
     [](Pictures& p) {
       qoriGammaFwd_32f_C3R(p.floats.data(), 12 * p.w, p.floatsOut.data(), 12 * p.w, size(p), 0, 1);
     },
     nullptr},
    {"RGB to HLS (memcpy only)", -1, 3, 3,
     [](Pictures& p) { qoriRGBToHLS_8u_C3R(p.in.data(), 3 * p.w, p.ours.data(), 3 * p.w, size(p)); },
     nullptr},
    {"HLS to RGB (memcpy only)", -1, 3, 3,
     [](Pictures& p) { qoriHLSToRGB_8u_C3R(p.in.data(), 3 * p.w, p.ours.data(), 3 * p.w, size(p)); },
     nullptr},
};

// Of all 483 the kinds of arithmetic, on a picture large enough for threads.
const char* const kThreadCases[] = {"RGB to YUV420",
                                    "YUV420 to RGB",
                                    "gray",
                                    "full YCbCr to RGB",
                                    "RGB to HLS (memcpy only)",
                                    "HLS to RGB (memcpy only)",
                                    "float gamma (memcpy only)"};

// The greatest difference of a byte.
int difference(const Case& c, Pictures& p) {
  std::fill(p.ours.begin(), p.ours.end(), 0);
  std::fill(p.theirs.begin(), p.theirs.end(), 0);
  c.ours(p);
  c.theirs(p);
  int most = 0;
  for (size_t i = 0; i < p.ours.size(); ++i) most = std::max(most, std::abs(p.ours[i] - p.theirs[i]));
  return most;
}

// Least time of each benchmark, by name.
class LeastTimes : public benchmark::ConsoleReporter {
 public:
  std::map<std::string, double> least;

  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& r : runs) {
      if (r.run_type != Run::RT_Iteration) continue;
      double& time = least.try_emplace(r.run_name.function_name, 1e300).first->second;
      time = std::min(time, r.GetAdjustedRealTime());
    }
  }
};

void add(const std::string& name, std::function<void()> call) {
  benchmark::RegisterBenchmark(name.c_str(),
                               [call](benchmark::State& state) {
                                 for (auto _ : state) call();
                                 benchmark::ClobberMemory();
                               })
      ->UseRealTime()
      ->Repetitions(12)
      ->MinTime(0.004);
}

std::string sizeText(const Pictures& p) {
  return std::to_string(p.w) + "x" + std::to_string(p.h);
}

bool addAll(Pictures& p) {
  bool same = true;
  for (const Case& c : kCases) {
    if (c.theirs && c.tolerance >= 0 && difference(c, p) > c.tolerance) {
      std::fprintf(stderr, "%s: the pictures differ by %d, allowed are %d\n", c.name, difference(c, p),
                   c.tolerance);
      same = false;
    }
    const std::string prefix = sizeText(p) + c.name;
    add(prefix + ":ours", [&] { c.ours(p); });
    if (c.theirs) add(prefix + ":theirs", [&] { c.theirs(p); });
    const size_t bytes = static_cast<size_t>(std::max(c.readsPer, c.writesPer) * p.w * p.h);
    const bool isFloat = bytes > p.in.size();
    add(prefix + ":memcpy", [&p, bytes, isFloat] {
      isFloat ? std::memcpy(p.floatsOut.data(), p.floats.data(), bytes)
              : std::memcpy(p.ours.data(), p.in.data(), bytes);
    });
  }
  return same;
}

void print(const Pictures& p, std::map<std::string, double>& least) {
  std::printf("\n%s, path %d\n%-34s %9s %9s %9s\n", sizeText(p).c_str(), qorGetCpuType(), "", "ns/pixel",
              "theirs", "memcpy");
  for (const Case& c : kCases) {
    const std::string prefix = sizeText(p) + c.name;
    const double ours = least[prefix + ":ours"];
    std::printf("%-34s %9.3f ", c.name, ours / p.w / p.h);
    c.theirs ? std::printf("%9.2f", least[prefix + ":theirs"] / ours) : std::printf("%9s", "-");
    std::printf(" %9.2f\n", least[prefix + ":memcpy"] / ours);
  }
}

std::string threadName(const char* name, int threads) {
  return std::string(name) + " on " + std::to_string(threads);
}

void addThreads(Pictures& p) {
  for (const char* name : kThreadCases)
    for (int threads : {1, 2}) {
      const Case& c = *std::find_if(kCases.begin(), kCases.end(),
                                    [&](const Case& one) { return one.name == std::string(name); });
      add(threadName(name, threads), [&p, &c, threads] {
        qorSetNumThreads(threads);
        c.ours(p);
        qorSetNumThreads(1);
      });
    }
}

void printThreads(const Pictures& p, std::map<std::string, double>& least) {
  std::printf("\n%s, path %d\n%-34s %9s %9s\n", sizeText(p).c_str(), qorGetCpuType(), "", "ns/pixel",
              "2 threads");
  for (const char* name : kThreadCases) {
    const double one = least[threadName(name, 1)];
    std::printf("%-34s %9.3f %9.2f\n", name, one / p.w / p.h, one / least[threadName(name, 2)]);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1 && qorInitCpu(std::atoi(argv[1])) != qorStsNoErr) {
    std::fprintf(stderr, "conversions: this processor has no path for code %s\n", argv[1]);
    return 2;
  }
  std::string program = argv[0], interleave = "--benchmark_enable_random_interleaving=true";
  char* arguments[] = {program.data(), interleave.data()};
  int count = 2;
  benchmark::Initialize(&count, arguments);
  std::vector<Pictures> all;
  for (auto [w, h] : {std::pair{256, 256}, {720, 480}}) all.emplace_back(w, h);
  for (Pictures& p : all)
    if (!addAll(p)) return 1;
  Pictures large(1920, 1080);
  addThreads(large);
  LeastTimes reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  for (const Pictures& p : all) print(p, reporter.least);
  printThreads(large, reporter.least);
}
