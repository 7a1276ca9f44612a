// The keys of a command line, and where it comes from.
#include "zebcommand.h"

#include <gtest/gtest.h>

#include "keyrun.h"

namespace {

// The keys as "f(abc) B() ".
zebString written(const zebCommandList& keys) {
  zebString s;
  for (const zebCommandKey& key : keys) s << key.m_key << "(" << key.m_arg << ") ";
  return s;
}

}  // namespace

TEST(CommandList, PairsEachKeyWithTheRestOfItsWordOrAWordThatIsNoKeyAndDropsOtherWords) {
  const char* const cases[][2] = {{"-f RGB -B -r", "f(RGB) B() r() "},
                                  {"-f+abc -f+ abc -f- abc -f= abc", "f(+abc) f(+abc) f(-abc) f(=abc) "},
                                  {"-f-=a -f== abc -da=b -? ?", "f(-=a) f(==) d(a=b) ?(?) "},
                                  {"-o /tmp/x -- + //", "o() t(mp/x) -(+) /() "},
                                  {"stray other -B one two -v - / -x", "B(one) v(-) x() "},
                                  {" -f\tRGB  -f+ 8u;/s- \r\n", "f(RGB) f(+8u) s(-) "}};
  for (const auto& [line, pairs] : cases) {
    zebCommandList keys;
    keys.setArgs(line);
    EXPECT_EQ(written(keys), pairs) << line;
  }
}

TEST(CommandLine, IsTheArgumentsOrAFileHereOrBesideTheProgramOrBuiltIn) {
  const auto write = [](const std::filesystem::path& path, const char* text) { std::ofstream(path) << text; };
  zebRegCmdLine("-s-");
  zebRegCmdLine("-FbuiltIn");
  KeyRun run;
  const auto startsAt = [&](const char* arguments) {
    zebTestList::m_startFunc = "nowhere";
    EXPECT_TRUE(run.parse(arguments));
    return zebTestList::m_startFunc;
  };
  EXPECT_EQ(startsAt(""), "builtIn");
  EXPECT_TRUE(run.m_session.m_quickMode);
  EXPECT_TRUE(contains(run.m_capture.text(),
                       "Command line options: set by _FORCE_CMDLINE preprocessor definition\n-s-: "));
  write(run.m_folder.path("bin/prog.cfg"), "-Fbeside");
  EXPECT_EQ(startsAt(""), "beside");
  EXPECT_FALSE(run.m_session.m_quickMode);
  write("prog.cfg", "-Fhere");
  EXPECT_EQ(startsAt(""), "here");
  EXPECT_EQ(startsAt("-Fargument"), "argument");
  write("prog.cfg", "");
  EXPECT_EQ(startsAt(""), "nowhere") << "an empty file counts as found";
}
