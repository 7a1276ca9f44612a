// Where a command line comes from, and what it leaves of the one before.
#include <gtest/gtest.h>

#include "keyrun.h"

namespace {

void write(const std::filesystem::path& path, const char* text) {
  std::ofstream(path) << text;
}

}  // namespace

TEST(CommandLine, IsTheArgumentsOrAFileHereOrBesideTheProgramOrBuiltIn) {
  zebString& builtIn = const_cast<zebString&>(builtInCommandLine());
  const zebString old = builtIn;
  builtIn = "";
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
  EXPECT_TRUE(contains(run.m_capture.text(), "Command line options: read from prog.cfg file\n-Fhere: "));
  EXPECT_EQ(startsAt("-Fargument"), "argument");
  write("prog.cfg", "");
  EXPECT_EQ(startsAt(""), "nowhere") << "an empty file counts as found";
  builtIn = old;
}
