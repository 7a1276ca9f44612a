#include "zebcommand.h"

#include <gtest/gtest.h>

#include "capture.h"

namespace {

// The keys as "f(abc) B() ".
zebString written(const zebCommandList& keys) {
  zebString s;
  for (const zebCommandKey& key : keys) s << key.m_key << "(" << key.m_arg << ") ";
  return s;
}

}  // namespace

TEST(CommandList, PairsEachKeyWithTheRestOfItsWordOrAWordThatIsNoKeyAndDropsOtherWords) {
  const struct {
    const char *line, *keys;
  } cases[] = {{"-f RGB -B -r", "f(RGB) B() r() "},
               {"-fabc lost -B", "f(abc) B() "},
               {"-f+abc -f+ abc -f- abc -f= abc", "f(+abc) f(+abc) f(-abc) f(=abc) "},
               {"-f-=a -f== abc -da=b -? ?", "f(-=a) f(==) d(a=b) ?(?) "},
               {"-o /tmp/x -- + //", "o() t(mp/x) -(+) /() "},
               {"stray other -B one two -v - / -x", "B(one) v(-) x() "},
               {" -f\tRGB  -f+ 8u;/s- \r\n", "f(RGB) f(+8u) s(-) "},
               {" ;\n", ""}};
  for (const auto& c : cases) {
    zebCommandList keys;
    keys.setArgs(c.line);
    EXPECT_EQ(written(keys), c.keys) << c.line;
  }
  const char* const words[] = {"", "-f", "", "-B"};
  zebCommandList keys;
  keys.setArgs(4, const_cast<char**>(words));
  EXPECT_EQ(written(keys), "f() B() ");
}

TEST(CommandList, FindsTheLastOfRepeatedKeys) {
  zebCommandList keys;
  keys.setArgs("-nfirst -B -nlast");
  zebString arg;
  EXPECT_FALSE(keys.getArg('N', arg));
  EXPECT_TRUE(keys.getArg('n', arg));
  EXPECT_EQ(arg, "last");
}
