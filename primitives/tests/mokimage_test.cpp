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

// Whether all bytes behind the pixels of all rows are 0.
bool paddingIsZero(const mokImage& image) {
  int sum = 0;
  for (int row = 0; row < image.getNumRows(); ++row) {
    const char* const p = static_cast<const char*>(image.getRowPointer(row));
    for (int i = image.getRowLen() * mokTypeSize(image.m_type); i < image.m_step; ++i) sum |= p[i];
  }
  return sum == 0;
}

}  // namespace

TEST(Image, LaysItsPixelsOutAsItsNameTells) {
  const struct {
    mokType type;
    int channels;
    bool plane;
    int width, step;
    const char* info;
    int items;  // without alpha, of two rows
  } rows[] = {{mok8u, 4, false, 5, 32, "Image 8u_AC4 size=5x2", 30},
              {mok32f, 3, true, 5, 32, "Image 32f_P3 size=5x2", 30},
              {mok64fc, 1, false, 3, 48, "Image 64fc_C1 size=3x2", 6}};
  for (const auto& row : rows) {
    Made image(row.type, row.channels, row.plane, row.width, 2);
    EXPECT_EQ(image.objectInfo(), row.info);
    EXPECT_EQ(image.size(), row.step * image.getNumRows()) << row.info;
    EXPECT_EQ(image.numActualItems(), row.items) << row.info;
  }
  EXPECT_EQ(mokImage("qoriBGRToHLS_8u_AP4C4R", 2).m_func, "_8u_C4");
}

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
  EXPECT_EQ(image.planes8u, nullptr);
  for (int p = 0; p < 3; ++p) {
    void* owner = nullptr;
    int size = 0;
    ASSERT_TRUE(zebMallocInfo(image.planes32f[p], &size, &owner));
    EXPECT_EQ(owner, p == 0 ? static_cast<zebObject*>(&image) : MEM_OBJECT_IS_SUBOBJECT);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(image.m_plane[p]) % 64, 8u) << "all planes are the first vector";
    EXPECT_EQ(size, 32 * 4 * 4) << "step times height counts elements";
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
    for (mokType t : {mok8u, mok16s, mok32f, mok32fc}) {
      Made image(t, 3, plane, 5, 4);
      EXPECT_EQ(image.getImageAt(4, 3, 2), t & mokFloatFlag ? static_cast<double>(1.00001f) : 2.0);
      image.setRandom();
      image.setJaehne();
      image.setMaxValue();
      image.setSequence(1, 9, 1, true);
      EXPECT_EQ(image.getImageAt(0, 3, 0), 1.0) << "every row starts anew";
      EXPECT_TRUE(paddingIsZero(image));
    }
  }
  Made planes(mok8u, 2, true, 3, 2);
  planes.setSequence(0, 4);
  EXPECT_EQ(planes.getString(), "   0   2   4\n   0   2   4\n\n   0   2   4\n   0   2   4");
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
      EXPECT_EQ(image.getImageAt(4, 3, c), 1.0) << "the sine of 0, plus 1";
      double re = 0, im = 0;
      image.getImageAt(6, 2, c, re, im);
      EXPECT_NEAR(re, 1 + std::sin(0.5 * std::acos(-1.0) * 5 / 7), 1e-12);
      EXPECT_EQ(re, im);
    }
  }
  Made bytes(mok8u, 1, false, 65, 65);
  bytes.setJaehne();
  EXPECT_EQ(bytes.getImageAt(32, 32, 0), 127.0) << "the middle of an integer type";
}
