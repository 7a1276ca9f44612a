// Which tests run, in which order, and how they are counted.
#include "zebtestlist.h"

#include <gtest/gtest.h>

#include "faketest.h"
#include "keyrun.h"
#include "zebconditions.h"
#include "zebdefault.h"
#include "zebregister.h"

namespace {

class TestList : public ::testing::Test {
 protected:
  ~TestList() override { tests.deleteTests(); }

  FakeTest* add(const zebString& name, const zebString& info = "Class") {
    FakeTest* const test = new FakeTest(name, info);
    tests.push_back(test);
    return test;
  }

  zebTestList tests;
  zebConditions all;
};

}  // namespace

TEST(Selection, CombinesTheRulesOfTheKeys) {
  const struct {
    const char *keys, *name;
    bool runs;
  } cases[] = {
      {"-f -t= -f+", "RGB_8u", true},       {"-fRGB -fYUV", "YUV_8u", true},
      {"-fRGB -t+ABC", "RGB_8u", false},    {"-fRGB -f+8u", "RGB_8u", true},
      {"-fRGB -f+8u", "RGB_16u", false},    {"-f-8u", "RGB_16u", true},
      {"-f=RGB_8u -f-8u", "RGB_8u", false}, {"-f=RGB", "RGB_8u", false},
      {"-frgb", "RGB_8u", false},           {"-tTim", "RGB_8u", true},
      {"-t=Tim", "RGB_8u", false},          {"-t=TimXYZ", "RGB_8u", true},
      {"-t-XYZ", "RGB_8u", false},          {"-t+XYZ -fYUV", "RGB_8u", false},
  };
  for (const auto& c : cases) {
    KeyRun run;
    EXPECT_TRUE(run.parse(c.keys));
    FakeTest test(c.name, "TimXYZ//REG");
    EXPECT_EQ(test.tobeRun(*run.m_session.m_pConditions), c.runs) << c.name << " " << c.keys;
  }
}

TEST_F(TestList, SortsStablyMoreTestsThanOneBinHolds) {
  // Each name twice, the class tells who was first.
  for (int i = 0; i < 1000; ++i) {
    zebString name, number;
    add(name << 1000 + i * 7919 % 1000 / 2, number << 1000 + i);
  }
  tests.sortFunc();
  int i = 0;
  zebString before;
  for (zebTest* test : tests) {
    EXPECT_EQ(atoi(test->m_name.c_str()), 1000 + i / 2);
    EXPECT_TRUE(i++ % 2 == 0 || before.compare(test->m_info.m_testName) < 0) << test->m_name.c_str();
    before = test->m_info.m_testName;
  }
  EXPECT_EQ(i, 1000);
}

TEST_F(TestList, RunsOnlyHotFunctionsWhenAskedTo) {
  zebRegHotFunction("hot_8u");
  zebTest::m_hot = 2;
  EXPECT_TRUE(add("hot_8u")->tobeRun(all));
  EXPECT_FALSE(add("hot_8u_C3")->tobeRun(all));
  zebTest::m_hot = 0;
}

TEST_F(TestList, CountsTestsFromTheNameOfTheKeyOnThatHaveASection) {
  Capture console(outErr);
  TempFile ini("[one]\n[two_8u]\n[four]\n");
  for (const char* name : {"one", "two_8u", "three", "four"}) add(name);
  zebTestList::m_startFunc = "two";
  zebTest::m_pressing = g_istrm.setIniFile(ini.name(), false);
  EXPECT_EQ(tests.runTests(all), 0);
  EXPECT_EQ(tests.m_total, 2);
  zebTest::m_pressing = false;
  g_istrm.deleteIniFile();
}

TEST_F(TestList, CountsOutcomesByClassAndAnswersOneAfterAnError) {
  Capture console(outErr);
  add("bad")->m_start = false;
  FakeTest* const good = add("good");
  EXPECT_EQ(tests.runTests(all), 1);
  EXPECT_EQ(good->m_result, resOk);
  for (int r = resNotRun; r <= resError; ++r) tests.plus(static_cast<zebResult>(r));
  tests.plus(static_cast<zebResult>(99));
  EXPECT_EQ(tests.m_total, 15);
  EXPECT_EQ(tests.m_counts[resOk], 2);
  EXPECT_EQ(tests.m_counts[resWarning], 5);
  EXPECT_EQ(tests.m_counts[resDataError], 2);
  EXPECT_EQ(tests.m_counts[resError], 7) << "whatever isn't a result is an error";
}

TEST_F(TestList, KeepsOnlyCommonParametersThatSelectedTestsUse) {
  zebDefault<int> used(1, "used", ""), unused(1, "unused", "");
  FakeTest* const user = add("user");
  user->m_startParms.push_back(&used);
  FakeTest* const other = add("other");
  FakeTest* const late = add("late");
  zebList<zebParameter*> parms;
  parms.push_back(&used);
  tests.selectCommonParms(all, parms);
  EXPECT_EQ(*parms.begin(), &used);
  EXPECT_NE(other->m_calls, "") << "the pass after the last mark ends the search";
  EXPECT_EQ(late->m_calls, "");
  EXPECT_TRUE(user->m_parms.empty());
  parms.push_back(&unused);
  tests.selectCommonParms(all, parms);
  EXPECT_EQ(parms.size(), 1);
  EXPECT_EQ(*parms.begin(), &used);
}
