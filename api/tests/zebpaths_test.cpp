#include "zebpaths.h"

#include <gtest/gtest.h>

#include "capture.h"

TEST(Paths, CountFromTheProgramsDirectoryAndGetWhatTheyLack) {
  zebPaths::m_exePath = "/prog/dir/tool.exe";
  zebPaths::setOutDir("");
  zebPaths::setDefName("");
  EXPECT_EQ(zebPaths::genDirName(""), "/prog/dir/");
  EXPECT_EQ(zebPaths::genDirName("out"), "/prog/dir/out/");
  EXPECT_EQ(zebPaths::genDirName("/abs\\"), "/abs\\");
  EXPECT_EQ(zebPaths::genOutPath("", ".csv"), "/prog/dir/tool.csv");
  EXPECT_EQ(zebPaths::genOutPath("name", "_name.csv"), "/prog/dir/name_name.csv");
  EXPECT_EQ(zebPaths::genOutPath("a.b", ".csv"), "/prog/dir/a.b");
  EXPECT_EQ(zebPaths::getOutPath("/prog/dir/x.txt"), "/prog/dir/x.txt");
  zebPaths::m_exePath = "tool";
  zebPaths::setOutDir("");
  EXPECT_EQ(zebPaths::getOutPath("x.txt"), "x.txt") << "names are left to the working directory";
  zebPaths::m_exePath = "";
  zebPaths::setDefName("");
}
