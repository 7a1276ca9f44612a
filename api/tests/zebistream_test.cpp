#include "zebistream.h"

#include <gtest/gtest.h>

#include "capture.h"
#include "console.h"

namespace {

TEST(DataList, CutsAtTheFirstEqualSignsAndKeepsTheLastValueOfAName) {
  zebDataList list;
  zebString value("untouched");
  EXPECT_FALSE(list.get("a", value));
  EXPECT_EQ(value, "untouched");
  list.set(" ", "nameless");
  for (const char* text : {"b=5", " a = 1 ", "a=2=3"}) list.set(text);
  EXPECT_TRUE(list.get("a", value));
  EXPECT_EQ(value, "2");
  list.set("a");
  EXPECT_TRUE(list.get("a", value));
  EXPECT_EQ(value, "");
  EXPECT_EQ(list.size(), 2);
}

TEST(ItemValue, ComesFromTheFirstPlaceThatHasIt) {
  const struct {
    const char *data, *ini, *answer;  // null: not there
    const char* value;
    int source;
  } cases[] = {
      {nullptr, nullptr, nullptr, "default", fromDefault},
      {"data", "ini", "console\n", "data", fromData},
      {nullptr, "ini", "console\n", "ini", fromIniFile},
      {nullptr, nullptr, "console\n", "console", fromConsole},
      {nullptr, "", "console\n", "console", fromConsole},
      {nullptr, "", nullptr, "default", fromDefault},
      {"", "ini", "console\n", "", fromData},
      {nullptr, nullptr, "\n", "default", fromDefault},
      {nullptr, nullptr, "", "default", fromDefault},
  };
  for (const auto& c : cases) {
    TempFile file(c.ini ? zebString("[f]\nx=") + c.ini + "\n[Zeb]\nx=1" : "[f]\n");
    Console console(c.answer ? c.answer : "unread\n");
    zebIStream in;
    ASSERT_TRUE(in.setIniFile(file.name(), false));
    EXPECT_EQ(in.setIniSection("f"), "Zeb");
    if (c.data) in.m_dataList.set("x", c.data);
    if (c.answer) in.setIStream(&c_in);
    EXPECT_EQ(in.getItemValue("x", "default", "", ""), c.value);
    EXPECT_EQ(in.m_source, c.source) << c.value;
    const bool asked = c.answer && !c.data && !(c.ini && *c.ini);
    EXPECT_EQ(console.text(), asked ? "\n x [default] = " : "") << c.value;
  }
}

}  // namespace
