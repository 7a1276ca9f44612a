#include "zebcputype.h"

#include <gtest/gtest.h>

namespace {

typedef QorCpuRec Rec;

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
    Rec rec = {};
    rec.family = c.family;
    rec.model = c.model % 16;
    rec.extModel = c.model / 16;
    rec.cores = c.cores;
    rec.*c.first = rec.*c.second = 1;
    EXPECT_EQ(zebDecideCpuType(rec, true), c.type) << c.family << " " << c.model << " wants " << c.type;
  }
  int type = 64;  // any other processor is its best instruction set
  Rec other = {};
  for (auto flag : {&Rec::sse, &Rec::sse2, &Rec::sse3, &Rec::ssse3, &Rec::sse41, &Rec::sse42, &Rec::avx}) {
    other.*flag = 1;
    EXPECT_EQ(zebDecideCpuType(other, false), type++);
  }
}

}  // namespace
