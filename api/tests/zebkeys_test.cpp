// What the keys set and tell.
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
  EXPECT_TRUE(run.parse(
      "-YHIGH -YLOW -Yx -HONLY -H -TF1 -TTarn2 -N2 -N3 -na -nb -g -e+ -e- -s- -s -C -da=1 -da=2=3"));
  EXPECT_EQ(zebTool::m_priority, 3);
  EXPECT_EQ(zebTest::m_hot, 1);
  EXPECT_TRUE(zebTest::m_cache);
  EXPECT_EQ(s_cpuType, 35);
  EXPECT_EQ(s_numThreads, 3);
  EXPECT_EQ(run.m_session.m_sglName, run.m_folder.text("bin/b.end"));
  EXPECT_EQ(run.m_session.m_enumMode, -1);
  EXPECT_TRUE(run.m_session.m_quickMode) << "-s must not revoke -s-";
  zebString value;
  EXPECT_TRUE(g_istrm.m_dataList.get("a", value));
  EXPECT_EQ(value, "2") << "a second equal sign ends a value";
}

TEST(Keys, MakeNewFilesUnlessTheyAdd) {
  const char* const cases[][2] = {
      {"-of", "f.txt"}, {"-rf", "f.csv"}, {"-qf", "f_name.csv"}, {"-uf", "f_sum.csv"}};
  for (const auto& [line, name] : cases) {
    KeyRun run;
    const auto path = run.m_folder.path("bin") / name;
    std::ofstream(path) << "old";
    EXPECT_TRUE(run.parse(line));
    std::string word;
    std::ifstream(path) >> word;
    EXPECT_FALSE(word.starts_with("old")) << line;
  }
}

TEST(Keys, OfProcessorAndThreadsNeedALibraryCore) {
  for (QorStatus core : {0, -1, zebNoCore}) {
    KeyRun run(core);
    EXPECT_EQ(run.m_session.getOption('T') == nullptr, core == zebNoCore);
    EXPECT_EQ(run.m_session.getOption('N') == nullptr, core == zebNoCore);
  }
}
