#include "mokvector.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>

#include "capture.h"
#include "zebmemory.h"
#include "zebtest.h"

namespace {

// The typed views that are set, as text, if they point to the data.
zebString viewsOf(const mokVector& v) {
  zebString text;
#define MOK_VIEW(name, T)                                     \
  if (v.p##name) {                                            \
    EXPECT_EQ(static_cast<const void*>(v.p##name), v.m_data); \
    text << #name;                                            \
  }
  MOK_ELEMENTS(MOK_VIEW)
#undef MOK_VIEW
  return text;
}

TEST(Vector, SetsTheOneViewOfItsTypeAndPrintsEachElementInItsWidth) {
  const struct {
    mokType type;
    const char* text;
  } rows[] = {
      {mok8u, "   5   5"},
      {mok16u, "     5     5"},
      {mok32s, "           5           5"},
      {mok16sc, " (      5,     -2) (      5,     -2)"},
      {mok64sc,
       " (                       5,                      -2) (                       5,                      "
       "-2)"},
      {mok64fc, " (                 5.5,                  -2) (                 5.5,                  -2)"},
  };
  for (const auto& row : rows) {
    mokVector v(row.type);
    ASSERT_TRUE(v.createVector(2, modeValue, 5.5, -2));
    EXPECT_EQ(v.getString(), row.text);
    EXPECT_EQ(viewsOf(v), mokFunc::typeToString(row.type));
  }
  EXPECT_EQ(mokVector::getByteString("\0\n\xff", 3), " 00 0A FF");
}

TEST(Vector, TakesTypeAndChannelsOfAnArgumentFromAName) {
  const mokFunc f = "qoriRGB565ToYUV420_16u8u_C3P3R";
  EXPECT_EQ(mokVector(f, 1).m_func, "_16u_C3");
  EXPECT_EQ(mokVector(f, mokArgDst).m_func, "_8u_P3");
  mokVector v(f, 2);
  v.init(v.m_func, 1);
  EXPECT_EQ(v.m_func, "_8u_P3");
}

TEST(Vector, IsTheOwnerOfItsBlockAndGivesItBack) {
  auto* const v = new mokVector(mok16s);
  ASSERT_TRUE(v->createVector(10, -1));
  void* const data = v->m_data;
  void* object = nullptr;
  ASSERT_TRUE(zebMallocInfo(data, nullptr, &object));
  EXPECT_EQ(static_cast<zebObject*>(object)->objectInfo(), "Vector 16s len=10");
  delete v;
  EXPECT_FALSE(zebMallocInfo(data, nullptr, nullptr));
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
