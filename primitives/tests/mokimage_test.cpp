#include "mokimage.h"

#include <gtest/gtest.h>

#include <cmath>

#include "capture.h"
#include "zebmemory.h"
#include "zebtest.h"

namespace {

// An image of some layout, made with default step and alignment.
struct Made : mokImage {
  Made(mokType t, int channels, bool plane, int width, int height) : mokImage(t, channels, plane) {
    EXPECT_TRUE(createVector(width, height, modeConst, 0, 0));
  }
};

TEST(InterleavedImage, FindsAnElementByRowPixelAndChannel) {
  mokImage image(mok8u, 3, false);
  Capture screen(outErr);
  EXPECT_FALSE(image.createImage({-4, -3}, 13, 5, false));
  ASSERT_TRUE(image.createImage({4, 3}, 13, 5, false));
  image.setImageAt(1, 2, 1, 77, 0);
  EXPECT_EQ(image.p8u[2 * 13 + 4], 77);
  EXPECT_EQ(image.getIndex(1, 2, 1), 77.0);
}

TEST(PlanarImage, HoldsEachPlaneInABlockOfItsOwnUntilItBecomesInterleaved) {
  zebSetVectorAlign(8);
  zebTest::m_vectorNum = 0;
  Made image(mok32f, 3, true, 5, 4);
  zebSetVectorAlign(0);
  ASSERT_TRUE(image.planes32f);
  for (int p = 0; p < 3; ++p) {
    EXPECT_TRUE(zebMallocInfo(image.planes32f[p], nullptr, nullptr));
    EXPECT_EQ(reinterpret_cast<uintptr_t>(image.m_plane[p]) % 64, 8u) << "all planes are the first vector";
    EXPECT_EQ(image.getRowPointer(4 * p + 3), image.planes32f[p] + 3 * 8);
  }
  EXPECT_EQ(image.getPointerAt(2, 1, 1), image.planes32f[1] + 8 + 2);
  image.init("qoriX_16s_C1R", mokArgSrc);
  EXPECT_EQ(zebMallocFirst(nullptr, nullptr), nullptr) << "an interleaved one";
}

TEST(Image, RestoresItsReservedCopy) {
  for (bool plane : {false, true}) {
    Made image(mok16s, 3, plane, 5, 4);
    image.setRandom();
    const zebString before = image.getString();
    EXPECT_FALSE(image.setReservedCopy());
    EXPECT_EQ(zebReserveAllVectors(), 1);
    image.setConst(0, 0);
    EXPECT_EQ(zebResetAllVectors(), 1);
    EXPECT_EQ(image.getString(), before);
  }
}

TEST(Image, FillsPixelsRowByRowAndLeavesThePaddingZero) {
  for (bool plane : {false, true}) {
    for (mokType t : {mok8u, mok16sc}) {
      Made image(t, 3, plane, 5, 4);
      image.setRandom();
      image.setJaehne();
      image.setMaxValue();
      image.setSequence(1, image.getRowLen());
      EXPECT_EQ(image.getImageAt(0, 3, 0), 1.0) << "every row starts anew";
      EXPECT_EQ(image.getImageAt(4, 3, 2), image.getRowLen());
      const char* const row = static_cast<char*>(image.getRowPointer(2));
      EXPECT_EQ(row[image.getRowLen() * mokTypeSize(t)], 0) << "behind the last pixel";
    }
  }
  Made bytes(mok8u, 1, true, 8, 2);
  mokVector::m_seed = 7;
  bytes.setRandom(0, 255);
  // A new row starts from the seed that the row before left. Eight elements and a line feed, then four more.
  EXPECT_EQ(bytes.getString().substr(0, 49), "  57  33 111  45 147  74  70 143\n 227 204  79  47");
}

TEST(Image, DrawsRingsAroundTheCentreOfEachChannelAndPart) {
  for (bool plane : {false, true}) {
    Made image(mok64fc, 3, plane, 9, 7);
    image.setJaehne();
    for (int c = 0; c < 3; ++c) {
      double re = 0, im = 0;
      image.getImageAt(6, 2, c, re, im);
      EXPECT_NEAR(re, 1 + std::sin(0.5 * std::acos(-1.0) * 5 / 7), 1e-12);
      EXPECT_EQ(re, im);
    }
  }
  Made bytes(mok8u, 1, false, 65, 65);
  bytes.setJaehne();
  EXPECT_EQ(bytes.getImageAt(32, 32, 0), 127.0) << "the sine of 0, in the middle of an integer type";
}

}  // namespace
