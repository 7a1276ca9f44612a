// What the keys set.
#include <gtest/gtest.h>

#include "keyrun.h"

TEST(Keys, AddUpWhatIsAskedAndWhatIsShown) {
  const struct {
    const char* line;
    int asked, shown;
  } cases[] = {{"-v", 3, 1},    {"-AAll -LI -LT", 15, 31},  {"-AM -AT -LDATA", 5, 87},
               {"-B -A", 0, 1}, {"-A -B -LERR -LM", 0, 39}, {"-Lperf -L", 3, 1}};
  for (const auto& c : cases) {
    KeyRun run;
    EXPECT_TRUE(run.parse(c.line));
    EXPECT_EQ(run.m_session.m_askMode, c.asked) << c.line;
    EXPECT_EQ(run.m_session.m_levelMode, c.shown) << c.line;
  }
}

TEST(Keys, TakeTheLastValueWhereOnlyOneCanHold) {
  KeyRun run;
  EXPECT_TRUE(run.parse("-Fone -Ftwo -YHIGH -YLOW -Yx -HO -H -TF1 -TTarn2 -N2 -N3 -ga -gb -e+ -e- -dC -d"));
  EXPECT_EQ(zebTestList::m_startFunc, "two");
  EXPECT_EQ(zebTool::m_priority, 3);
  EXPECT_EQ(zebTest::m_hot, 1);
  EXPECT_EQ(s_cpuType, 35);
  EXPECT_EQ(s_numThreads, 3);
  EXPECT_EQ(run.m_session.m_sglName, run.m_folder.text("bin/b.end"));
  EXPECT_EQ(run.m_session.m_enumMode, -1);
  EXPECT_TRUE(g_istrm.m_dataList.empty());
}

TEST(Keys, SetTheirFlagsAndLeaveWhatTheyCannotHonour) {
  KeyRun run;
  EXPECT_TRUE(run.parse("-P -Q -HONLY -SU -C -s- -s -v -e -Tnone -Nnone -Y"));
  EXPECT_TRUE(zebTest::m_pressing && zebSession::m_nameExit && g_tool.m_setUse && zebTest::m_cache &&
              s_version);
  EXPECT_TRUE(run.m_session.m_quickMode) << "-s must not revoke -s-";
  EXPECT_EQ(zebTest::m_hot, 2);
  EXPECT_EQ(run.m_session.m_enumMode, 0);
  EXPECT_EQ(s_cpuType, -1);
  EXPECT_EQ(s_numThreads, 0);
  EXPECT_EQ(zebTool::m_priority, 0);
}

TEST(FileKeys, KeepWhatAFileHoldsOnlyWhenTheyAdd) {
  const struct {
    const char *line, *name;
    bool kept;
  } cases[] = {{"-of", "f.txt", false},   {"-Of", "f.txt", true},       {"-rf", "f.csv", false},
               {"-Rf", "f.csv", true},    {"-qf", "f_name.csv", false}, {"-uf", "f_sum.csv", false},
               {"-Uf", "f_sum.csv", true}};
  for (const auto& c : cases) {
    KeyRun run;
    const auto path = run.m_folder.path("bin") / c.name;
    std::ofstream(path) << "old";
    EXPECT_TRUE(run.parse(c.line));
    std::string word;
    std::ifstream(path) >> word;
    EXPECT_EQ(word.starts_with("old"), c.kept) << c.line;
  }
}
