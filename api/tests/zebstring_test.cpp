#include "zebstring.h"

#include <gtest/gtest.h>

#include "capture.h"

TEST(String, KeepsABlockOfStepsOfSixteenBytesWithZerosBehindItsText) {
  EXPECT_EQ(zebString().bufSize(), 16);
  zebString s = "012345678901234";
  EXPECT_EQ(s.bufSize(), 16);
  s += '5';
  EXPECT_EQ(s.bufSize(), 32);
  s.resize(3, ' ');
  EXPECT_EQ(s.bufSize(), 16);
  s.growBy(2);
  EXPECT_EQ(s.length(), 5);
  EXPECT_EQ(s, "012");
  s.resize(7, '!');
  EXPECT_EQ(s.substr(5), "!!");
  s.growBy(-1);
  s.growBy(1);
  EXPECT_EQ(s[6], 0);
}

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
  EXPECT_EQ(s.rfind("abcabcabc"), zebString::npos);
  EXPECT_EQ(s.substr(9), "");
  EXPECT_EQ(s.substr(4, 9), "bc");
  EXPECT_EQ(s.substr(1, 0), "");
  EXPECT_EQ(zebString("").compare(s), -6);
  EXPECT_EQ(zebString("abd").compare(s), 1);
  EXPECT_EQ(zebString("\x80").compare(s), -1) << "characters are signed";
  zebString blanks = " \t\rab c\n \r";
  blanks.trim();
  EXPECT_EQ(blanks, "ab c\n") << "a line feed stays";
}

TEST(String, SplitsPaths) {
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
  } cases[] = {
      {"0X1f", 31, false, false, true}, {"12abc", 12, false, false, true}, {" -3", -3, false, false, true},
      {"1", 1, false, true, false},     {"abc", 99, true, false, true},    {"  ", 99, false, false, true},
      {" Yes", 99, true, true, false},  {"true!", 99, true, true, false},  {" no", 99, true, false, false}};
  for (const auto& c : cases) {
    zebString s = c.text;
    int number = 99;
    EXPECT_EQ(number << s, c.number) << c.text;
    EXPECT_EQ(s.m_failed, c.isNone) << c.text;
    bool b = !c.yes;
    EXPECT_EQ(b << s, c.yes) << c.text;
    EXPECT_EQ(s.m_failed, c.isNeither) << c.text;
  }
  zebString s = "-9000000000";
  long long wide = 0;
  EXPECT_EQ(wide << s, -9000000000LL);
  s = "2.5e1x";
  float f = 0;
  EXPECT_EQ(f << s, 25.0f);
  EXPECT_FALSE(s.m_failed);
}

TEST(FitString, TakesAnyBeginningWithOrWithoutThePrefix) {
  EXPECT_TRUE(fitString("gb", "RGB", 1));
  EXPECT_FALSE(fitString("gb", "RGB", 0));
  EXPECT_TRUE(fitString("Rg", "RGB", 1));
  EXPECT_TRUE(fitString("", "RGB", 0));
  EXPECT_FALSE(fitString("RGBA", "RGB", 0));
}

TEST(NamedValues, TranslateBothWays) {
  const int values[] = {1, 2, 4};
  const zebString names[] = {"modeOne", "modeTwo", "modeFour"};
  EXPECT_EQ(zebString::flagString(5, values, names, 3), "modeOne|modeFour");
  EXPECT_EQ(zebString::enumString(2, values, names, 3), "modeTwo");
  const struct {
    const char* text;
    int value;
    bool failed;
  } cases[] = {{"one, TWO;modeF", 7, false}, {"one|nine", 1, true}, {"", 0, false}};
  for (const auto& c : cases) {
    zebString text = c.text;
    EXPECT_EQ(zebString::flagValue(text, values, names, 3, 4), c.value);
    EXPECT_EQ(text.m_failed, c.failed);
  }
}
