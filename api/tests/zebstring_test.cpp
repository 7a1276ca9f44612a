#include "zebstring.h"

#include <gtest/gtest.h>

#include "capture.h"
#include "zebparse.h"
#include "zebvaluenames.h"

TEST(String, AppendsAndAssignsPartsOfItself) {
  zebString s = "0123456789";
  s += s;
  EXPECT_EQ(s, "01234567890123456789");
  s = s.c_str() + 15;
  EXPECT_EQ(s, "56789");
}

TEST(String, FindsCutsAndComparesText) {
  const zebString s = "abcabc";
  EXPECT_EQ(s.find("bc", 2), 4);
  EXPECT_EQ(s.find("a", 7), zebString::npos);
  EXPECT_EQ(s.rfind("abc"), 3);
  EXPECT_EQ(s.substr(9) + s.substr(4, 9) + s.substr(1, 0), "bc");
  EXPECT_EQ(zebString("abd").compare(s), 1);
  EXPECT_EQ(zebString("\x80").compare(s), -1) << "characters are signed";
  zebString blanks = " \t\rab c\n \r";
  blanks.trim();
  EXPECT_EQ(blanks, "ab c\n") << "a line feed stays";
  const zebString path = "c:\\d/e\\a.b.c";
  EXPECT_EQ(path.getFileName() + " " + path.getFileDir() + " " + path.getFileTitle(), "a.b.c c:\\d/e\\ a.b");
  EXPECT_EQ(zebString("plain").getFileDir() + zebString(".cfg").getFileTitle(), "");
}

TEST(Conversion, WritesEachTypeInItsForm) {
  zebString s;
  s << "a" << 'b' << zebString("c") << true << false << -7 << 5000000000LL << 0.000123456 << 2.5f;
  s << static_cast<void*>(nullptr) << "," << reinterpret_cast<void*>(0xAbc);
  EXPECT_EQ(s, "abcyesno-750000000000.0001232.5NULL,ABC");
}

TEST(Conversion, ReadsValuesAndMarksWhatIsNone) {
  const struct {
    const char* text;
    int number;
    bool isNone, yes, isNeither;
  } cases[] = {{"0X1f", 31, false, false, true}, {" -3abc", -3, false, false, true},
               {"  ", 99, false, false, true},   {"1", 1, false, true, false},
               {" Yes", 99, true, true, false},  {"true", 99, true, true, false},
               {"no", 99, true, false, false}};
  for (const auto& c : cases) {
    zebString s = c.text;
    int number = 99;
    EXPECT_EQ(number << s, c.number) << c.text;
    EXPECT_EQ(s.m_failed, c.isNone) << c.text;
    bool b = !c.yes;
    EXPECT_EQ(b << s, c.yes) << c.text;
    EXPECT_EQ(s.m_failed, c.isNeither) << c.text;
  }
  zebString wideText = "-9000000000", floatText = "2.5e1x";
  long long wide = 0;
  EXPECT_EQ(wide << wideText, -9000000000LL);
  float f = 0;
  EXPECT_EQ(f << floatText, 25.0f);
}

TEST(Parse, CutsWordsAtAnySeparator) {
  const char* const cases[][3] = {{",,a,, b,", " ,", "a|b"},   {"x\"a b\"", " ", "x\"a b\""},
                                  {"\"a b\"", " ", "\"a|b\""}, {"x\"\"a b\" c", " ", "x\"a b\"|c"},
                                  {"a\"b", "\"", "a|b"},       {"", " ", ""}};
  for (const auto& [text, separators, wanted] : cases) {
    zebStringList words;
    zebString(text).parse(words, separators);
    EXPECT_EQ(zebJoinNames(words, "|"), wanted) << text;
  }
}
