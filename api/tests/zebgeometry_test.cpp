#include "zebgeometry.h"

#include <gtest/gtest.h>

#include "capture.h"

namespace {

// What a text reads as, written again; marked if the reading failed.
template <class T>
zebString reread(const char* text) {
  zebString s(text), result;
  s.m_failed = true;  // an old mark doesn't count
  T value{};
  value << s;
  result << value;
  return s.m_failed ? result + " failed" : result;
}

TEST(GeometryText, ReadsWithAnyBracketsAndSeparatorsAndMarksWhatIsNone) {
  const char* const sizes[][2] = {{"{(640, 480)}", "640x480"},
                                  {"640", "640x0 failed"},
                                  {"0x480", "0x480 failed"},
                                  {"640x-1", "640x-1 failed"}};
  for (const auto& [text, wanted] : sizes) EXPECT_EQ(reread<QoriSize>(text), wanted) << text;
  EXPECT_EQ(reread<QoriPoint>("1,b"), "(1,0) failed");
  EXPECT_EQ(reread<QoriRect>("(-3,4)640x480"), "(-3,4)640x480");
  EXPECT_EQ(reread<QoriRect>("(0,0)0x5"), "(0,0)0x5 failed");
}

}  // namespace
