#include "zebini.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "capture.h"

namespace {

// The file as a run that changes nothing leaves it.
zebString rewritten(const zebString& text) {
  TempFile file(text);
  zebIniFile ini;
  EXPECT_TRUE(ini.open(file.name(), true));
  ini.close();
  return file.text();
}

TEST(IniFile, ReadsEachLineAsSectionKeyOrNothing) {
  const char* const cases[][2] = {
      {"[s]\nkey = value // comment\n", "\n[s]\nkey=value\n"},
      {"[s]\na=b=c\nk=\n", "\n[s]\na=b=c\nk=\n"},
      {"[s]\nu=http://x\n", "\n[s]\nu=http:\n"},
      {"xx[ name ]yy\n", "\n[name]\n"},
      {"[s]\n[name\n]k[\n", "\n[s]\n[name\n]k[\n"},
      {"[a]\nx=1\n[b]\n[a]\ny=2\nx=3\n", "\n[a]\nx=3\ny=2\n\n[b]\n"},
      {"[S]\nK=1\nk=2\n[s]\n", "\n[S]\nK=1\nk=2\n\n[s]\n"},
      {"[s]\r\nk = v \r\nlast=1", "\n[s]\nk=v\nlast=1\n"},
      {"[s]\n\xff\xfe=\x80\n", "\n[s]\n\xff\xfe=\x80\n"},
  };
  for (const auto& [text, written] : cases) {
    EXPECT_EQ(rewritten(text), written) << text;
    EXPECT_EQ(rewritten(written), written) << text;
  }
}

TEST(IniFile, IsNotWrittenWhenOpenedForReading) {
  TempFile file("[s]\nk=v // kept\n");
  zebIniFile ini;
  ASSERT_TRUE(ini.open(file.name(), false));
  ini.write("s", "k", "2", "");
  ini.close();
  EXPECT_EQ(file.text(), "[s]\nk=v // kept\n");
}

TEST(IniFile, GetsWhatTheRunAddedAndLosesWhatItErasedAndKeepsPermissionsAndLinks) {
  TempFile file("[s]\nold=1 // gone\nflag\n[t]\n");
  chmod(file.name().c_str(), 0640);
  TempFolder elsewhere;
  const zebString link = elsewhere.text("link.ini");
  ASSERT_EQ(symlink(file.name().c_str(), link.c_str()), 0);
  zebIniFile ini;
  ASSERT_TRUE(ini.open(file.name(), true));
  ini.write("s", "old", "2", "not for an old key");
  ini.deleteKey("s", "flag");
  ini.deleteKey("s", "unknown");
  ini.eraseSection("t");
  ini.close();
  struct stat now;
  ASSERT_EQ(stat(file.name().c_str(), &now), 0);
  EXPECT_EQ(now.st_mode & 07777, 0640u);
  ASSERT_TRUE(ini.open(link, true));
  ini.write("s", " new ", "3", "a|b");
  ini.write("u");
  ini.close();
  EXPECT_EQ(file.text(), "\n[s]\nold=2\nnew=3\t// a|b\n\n[u]\n");
  ASSERT_EQ(lstat(link.c_str(), &now), 0);
  EXPECT_TRUE(S_ISLNK(now.st_mode));
}

}  // namespace
