#include "zebcputype.h"

#include <gtest/gtest.h>

#include "capture.h"
#include "scriptedcpu.h"

namespace {

typedef QorCpuRec Rec;

TEST(CpuType, HasALabelForEachCodeOfTheLibrary) {
  for (int code = -1; code < 100; ++code) {
    const zebString label = zebCpuType::cpuLabel(code);
    EXPECT_EQ(zebCpuType::cpuType(label), label == "Undefined" ? -1 : code);
  }
  EXPECT_EQ(zebCpuType::cpuName(97), "Unknown processor");
}

TEST(CpuType, NamesDualAndQuadCoresAndIsListed) {
  for (unsigned int cores : {2, 3, 4}) {
    ScriptedCpu cpu;
    cpu.setVendor("GenuineBrelk", 4);
    cpu.set(4, 0, (cores - 1) << 26 | 1, 0, 0, 0);
    const zebString kind = cores == 2 ? "Duo " : cores == 4 ? "Quad " : "";
    EXPECT_EQ(zebCpuType::cpuName(35), "Brelk(R) Tarn(TM) 2 " + kind + "processor with Brelk(R) SSE4.1");
  }
  const zebString list = zebCpuType::optimizedList();
  EXPECT_EQ(list.find("Unknown  : non optimized code\nF1       : optimized for Brelk(R) Fenn(R) processor\n"),
            0);
  EXPECT_EQ(list.find("Next"), zebString::npos);
}

// As CPUID gives them: the extension of the model stands apart.
Rec record(unsigned int family, unsigned int model) {
  Rec rec = {};
  rec.family = family;
  rec.model = model % 16;
  rec.extModel = model / 16;
  return rec;
}

TEST(CpuType, FollowsFamilyModelAndFeaturesOfAGenuineProcessor) {
  const struct {
    unsigned int family, model, cores;
    unsigned int Rec::*first;
    unsigned int Rec::*second;
    int type;
  } cases[] = {
      {5, 17, 1, &Rec::mmx, &Rec::mt, 1},     {6, 4, 1, &Rec::mmx, &Rec::mt, 0},
      {6, 8, 1, &Rec::mmx, &Rec::mt, 5},      {6, 14, 2, &Rec::sse3, &Rec::sse2, 11},
      {6, 14, 1, &Rec::sse3, &Rec::sse2, 10}, {6, 15, 2, &Rec::ssse3, &Rec::x64, 33},
      {6, 15, 3, &Rec::ssse3, &Rec::x64, 34}, {6, 23, 2, &Rec::sse41, &Rec::ssse3, 35},
      {6, 26, 4, &Rec::avx, &Rec::sse42, 70}, {6, 28, 1, &Rec::ssse3, &Rec::movbe, 36},
      {15, 200, 1, &Rec::x64, &Rec::sse2, 6}, {7, 2, 1, &Rec::mt, &Rec::sse2, 65},
  };
  for (const auto& c : cases) {
    Rec rec = record(c.family, c.model);
    rec.cores = c.cores;
    rec.*c.first = rec.*c.second = 1;
    EXPECT_EQ(zebDecideCpuType(rec, true), c.type) << c.family << " " << c.model << " wants " << c.type;
  }
  int type = 64;  // any other processor is its best instruction set
  Rec other = record(6, 8);
  for (auto flag : {&Rec::sse, &Rec::sse2, &Rec::sse3, &Rec::ssse3, &Rec::sse41, &Rec::sse42, &Rec::avx}) {
    other.*flag = 1;
    EXPECT_EQ(zebDecideCpuType(other, false), type++);
  }
}

}  // namespace
