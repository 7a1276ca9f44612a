#include "zeblist.h"

#include <gtest/gtest.h>

#include "capture.h"
#include "zebparse.h"

namespace {

template <class T>
zebString joined(const zebList<T>& list) {
  zebString text;
  for (const T& value : list) text << value << "|";
  return text;
}

}  // namespace

TEST(List, KeepsOrderThroughInsertAndEraseAndCopiesItsValues) {
  zebList<int> list;
  EXPECT_EQ(*list.end(), 0) << "the end holds a default value";
  list.push_back(3);
  list.insert(list.begin(), 1);
  EXPECT_EQ(*list.insert(--list.end(), 2), 2);
  EXPECT_EQ(joined(list), "1|2|3|");
  zebList<int> copy = list;
  EXPECT_EQ(*list.erase(list.begin()), 2);
  EXPECT_EQ(list.size(), 2);
  EXPECT_TRUE(list.erase(list.begin(), list.end()) == list.end());
  EXPECT_TRUE(list.empty());
  *copy.begin() = 5;
  list = copy;
  copy.clear();
  EXPECT_EQ(joined(list), "5|2|3|");
}

TEST(List, MergesStably) {
  zebList<int> older, newer;
  for (int v : {10, 20}) older.push_back(v);
  for (int v : {5, 11, 21, 30}) newer.push_back(v);
  older.merge(newer, [](const int& a, const int& b) { return a / 10 < b / 10; });
  EXPECT_TRUE(newer.empty());
  EXPECT_EQ(joined(older), "5|10|11|20|21|30|");
}

TEST(Parse, CutsWordsAtAnySeparator) {
  const struct {
    const char *text, *separators, *words;
  } cases[] = {{",,a,, b,", " ,", "a|b|"},   {"x\"a b\"", " ", "x\"a b\"|"},
               {"\"a b\"", " ", "\"a|b\"|"}, {"x\"\"a b\" c", " ", "x\"a b\"|c|"},
               {"a\"b", "\"", "a|b|"},       {"", " ", ""}};
  for (const auto& c : cases) {
    zebStringList words;
    const int count = zebString(c.text).parse(words, c.separators);
    EXPECT_EQ(joined<zebString>(words), c.words) << c.text;
    EXPECT_EQ(count, words.size());
  }
}
