#include "mokvector.h"

#include <gtest/gtest.h>

#include <climits>

#include "capture.h"

namespace {

TEST(Vector, PrintsEachElementInTheWidthOfItsType) {
  const struct {
    mokType type;
    const char *info, *text;
  } rows[] = {
      {mok8u, "8u", "   5"},
      {mok16u, "16u", "     5"},
      {mok32s, "32s", "           5"},
      {mok64sc, "64sc", " (                       5,                      -2)"},
      {mok64fc, "64fc", " (                 5.5,                  -2)"},
  };
  for (const auto& row : rows) {
    mokVector v(row.type);
    ASSERT_TRUE(v.createVector(1, modeValue, 5.5, -2));
    EXPECT_EQ(v.getString(), row.text);
    EXPECT_EQ(v.objectInfo(), zebString("Vector ") + row.info + " len=1");
  }
}

TEST(Vector, TakesTypeAndChannelsOfAnArgumentFromANameItsOwnToo) {
  const mokFunc f = "qoriRGB565ToYUV420_16u8u_C3P3R";
  EXPECT_EQ(mokVector(f, 1).m_func, "_16u_C3");
  mokVector v(f, mokArgDst);
  v.init(v.m_func, 1);
  EXPECT_EQ(v.m_func, "_8u_P3");
}

TEST(Vector, FailsWithAMessageAndIsThenWithoutData) {
  Capture capture(outErr);
  mokVector v(mok64f);
  ASSERT_TRUE(v.createVector(3, -1));
  EXPECT_FALSE(v.createVector(INT_MAX, -1));
  EXPECT_EQ(capture.text(), "-- Memory error: can't allocate 2147483647 bytes\n");
  v.setRandom();
  v.setIndex(3, modeOne, 0, 0);
  EXPECT_EQ(v.getIndex(3), 0.0);
  EXPECT_FALSE(v.reserveCopy());
}

}  // namespace
