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

  Capture screen{outWarn};
  zebCStream stream;
  TableFile file{stream};
};

TEST_F(CStream, JoinsCellsByCommasFillsEmptyOnesAndEndsTheLineAtALineFeedCell) {
  stream << QoriSize{640, 480};
  line("", "b,c", "\n");
  EXPECT_EQ(file.text(), "640x480,-,b,c\n\n");
}

TEST_F(CStream, PadsAndCutsALineToItsWidthAndForgetsItsCells) {
  line("a", "b", "c", 2);
  stream.lineOut(3);
  stream.setColm(2, "x");
  stream.tableOut(4);
  stream.m_numColm = 3;
  stream << "y";
  stream.lineOut(0);
  EXPECT_EQ(file.text(), "a,b\n-,-,-\n-,-,-,-\n-,-,x,y\n");
  for (int i = 0; i < 33; ++i) stream << (i < 32 ? "c" : "dropped");
  stream.lineOut(40);
  EXPECT_EQ(file.text().length(), 26 + 64);
}

TEST_F(CStream, WritesPostponedLinesBehindTheOthersInTheirOrderOnce) {
  for (const char* postponed : {"1", "2"}) {
    stream << "p";
    stream << postponed;
    stream.linePostpone();
    line("a", "b", "c");
  }
  stream.linePostponeOut(4);
  stream.linePostponeOut(4);
  EXPECT_EQ(file.text(), "a,b,c\na,b,c\np,1,-,-\np,2,-,-\n");
  EXPECT_EQ(stream.m_lineCount, 4);
}

TEST_F(CStream, TellsTheFirstTwoLinesWithTheSameParametersPostponedOnesToo) {
  line("head", "", "");
  stream.identicalLinesStart(2);
  EXPECT_FALSE(stream.identicalLinesStop()) << "stays armed until a line came";
  for (const char* parameter : {"1", "2", "3", "2", "2"}) line("f", parameter, "100");
  EXPECT_TRUE(stream.identicalLinesStop());
  stream.identicalLinesStart(2);
  stream << "f";
  stream.linePostpone();
  line("f", "", "new");
  stream.linePostponeOut(3);
  EXPECT_TRUE(stream.identicalLinesStop());
  EXPECT_EQ(screen.text(),
            " Performance table warning:\n Lines 3 & 5 have identical parameters\n"
            " Performance table warning:\n Lines 7 & 8 have identical parameters\n");
}

TEST_F(CStream, FindsNoPairWhereThereIsNone) {
  for (int columns : {0, 40, 2}) {  // none, all with the results, and but one line of this test
    stream.identicalLinesStart(columns);
    line("f", "1", "a");
    if (columns != 2) line("f", "1", columns ? "b" : "a");
    EXPECT_FALSE(stream.identicalLinesStop());
  }
  EXPECT_EQ(screen.text(), "");
}

}  // namespace
