#include "zebcstream.h"

#include <gtest/gtest.h>

#include "capture.h"
#include "tablefile.h"

namespace {

// A stream with a file.
struct CStream : testing::Test {
  void line(const char* a, const char* b, const char* c, int width = 0) {
    stream << a << b << c;
    stream.lineOut(width);
  }

  zebCStream stream;
  TableFile file{stream};
};

TEST_F(CStream, PadsAndCutsALineToItsWidthAndForgetsItsCells) {
  line("", "b,c", "\n");  // a cell of a line feed ends a line, too
  line("a", "b", "c", 2);
  stream.setColm(2, "x");
  stream.m_numColm = 3;
  line("y", "", "", 4);
  EXPECT_EQ(file.text(), "-,b,c\n\na,b\n-,-,x,y\n");
  for (int i = 0; i < 33; ++i) stream << (i < 32 ? "c" : "dropped");
  stream.lineOut(40);
  EXPECT_EQ(file.text().length(), 19 + 64);
}

}  // namespace
