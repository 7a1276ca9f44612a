// The catalogue is the one list of what the suite tests. Whatever else names functions is compared with it.
#include <gtest/gtest.h>

#include <cstdio>

#include "suite.h"

namespace {

struct Entry {
  zebString testClass, macro, form, function;
};

const zebList<Entry>& catalogue() {
  static zebList<Entry> entries;
  if (!entries.empty()) return entries;
  FILE* file = fopen(SUITE_CATALOGUE, "r");
  if (!file) return entries;
  char line[256];
  while (fgets(line, sizeof line, file)) {
    zebStringList words;
    if (line[0] == '#' || zebString(line).parse(words, " \n") != 4) continue;
    auto word = words.begin();
    Entry entry;
    for (zebString* part : {&entry.testClass, &entry.macro, &entry.form, &entry.function}) *part = *word++;
    entries.push_back(entry);
  }
  fclose(file);
  return entries;
}

int registrations(const Entry& e) {
  int n = 0;
  for (const zebTest* test : *pTestList) {
    n += test->m_name == e.function && test->m_info.m_testName == e.testClass &&
         test->m_info.m_macro == e.macro && test->m_info.m_description.empty();
  }
  return n;
}

TEST(Catalogue, IsTheListOfRegisteredTests) {
  EXPECT_EQ(catalogue().size(), pTestList->size());
  for (const Entry& e : catalogue()) {
    EXPECT_EQ(registrations(e), 1) << e.testClass.c_str() << " " << e.function.c_str();
  }
}

TEST(Catalogue, HasTheHotFunctions) {
  EXPECT_EQ(g_pHotList->size(), 7);
  for (const zebString& name : *g_pHotList) EXPECT_TRUE(findTest(name.c_str())) << name.c_str();
}

// The digits that the catalogue uses for a part as the library's own list names it.
zebString digitsOf(const char* part) {
  const char* const table[][2] = {{"Packed", "1"}, {"Planes", "2"},      {"PlanesSteps", "3"},
                                  {"Pair", "45"},  {"PackedTight", "6"}, {"PlanesTight", "6"}};
  for (const auto& row : table) {
    if (zebString(part) == row[0]) return row[1];
  }
  return "";
}

void expectForm(const char* function, const char* source, const char* destination, const zebString& extra) {
  bool found = false;
  for (const Entry& e : catalogue()) {
    if (!(e.function == function)) continue;
    found = true;
    EXPECT_NE(digitsOf(source).find(e.form.substr(0, 1)), zebString::npos) << function;
    EXPECT_NE(digitsOf(destination).find(e.form.substr(2, 1)), zebString::npos) << function;
    EXPECT_EQ(e.form.substr(3), extra) << function;
  }
  EXPECT_TRUE(found) << function;
}

// With this the compiler checks each line of the suite: a call that doesn't fit the declaration fails there.
TEST(Catalogue, HasTheArgumentFormsThatTheLibraryDeclares) {
  enum { None, Alpha, Coeffs, Layout };
  const char* const letters[] = {"", "a", "c", "l"};
#define QORCC_FUNCTION(name, source, destination, extra, ...) \
  expectForm(#name, #source, #destination, letters[extra]);
#include "qorccfunctions.def"
#undef QORCC_FUNCTION
#define QORCC_POINTWISE(name, ...) EXPECT_TRUE(findTest(#name)) << #name;
#define QORCC_REDUCE(name, ...) EXPECT_TRUE(findTest(#name)) << #name;
#include "qorccparameters.def"
}

}  // namespace
