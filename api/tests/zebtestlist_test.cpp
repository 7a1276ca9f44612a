// Which tests run, in which order, and which parameters they need.
#include "zebtestlist.h"

#include <gtest/gtest.h>

#include "faketest.h"
#include "keyrun.h"
#include "zebconditions.h"
#include "zebdefault.h"
#include "zebregister.h"

namespace {

struct TestList : testing::Test {
  ~TestList() override { tests.deleteTests(); }

  FakeTest* add(const zebString& name, const zebString& info = "Class") {
    FakeTest* const test = new FakeTest(name, info);
    tests.push_back(test);
    return test;
  }

  zebTestList tests;
  zebConditions all;
};

TEST_F(TestList, RunsWhatTheRulesOfTheKeysSelect) {
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
      {"-HONLY", "RGB_8u", true},           {"-HONLY", "RGB_8u_C3", false},
  };
  zebRegHotFunction("RGB_8u");
  for (const auto& c : cases) {
    KeyRun run;
    EXPECT_TRUE(run.parse(c.keys));
    EXPECT_EQ(add(c.name, "TimXYZ//REG")->tobeRun(*run.m_session.m_pConditions), c.runs)
        << c.name << " " << c.keys;
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

TEST_F(TestList, RunsAllFromTheFirstThatHoldsTheNameOfTheKey) {
  Capture console(outErr);
  for (const char* name : {"one", "two_8u", "three"}) add(name);
  zebTestList::m_startFunc = "two";
  EXPECT_EQ(tests.runTests(all), 0);
  EXPECT_EQ(tests.m_total, 2);
}

TEST(Session, AsksOnlyForCommonParametersThatSelectedTestsUse) {
  zebDefault<int> used(1, "used", ""), unused(1, "unused", "");
  FakeTest *const user = new FakeTest("user"), *const other = new FakeTest("other");
  user->m_startParms.push_back(&used);
  other->m_startParms.push_back(&unused);
  for (FakeTest* test : {user, other}) zebRegTest(test);
  for (zebParameter* parm : {&used, &unused}) zebRegParm(*parm);
  KeyRun run;
  EXPECT_TRUE(run.parse("-B -s- -fuser"));
  run.m_session.prepareRun();
  EXPECT_TRUE(contains(run.m_capture.text(), "\n used = 1\n"));
  EXPECT_FALSE(contains(run.m_capture.text(), "unused"));
  EXPECT_TRUE(user->m_parms.empty()) << "as if never started";
  run.m_session.deleteTestList();
  g_pParmList->clear();
}

}  // namespace
