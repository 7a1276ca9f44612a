// The figures and lines that a measurement leaves behind.
#include <gtest/gtest.h>

#include "faketest.h"
#include "zebiterator.h"
#include "zebsession.h"
#include "zebsformat.h"

TEST(Figures, KeepAboutThreeDigits) {
  FakeTest test;
  const std::pair<double, const char*> cases[] = {
      {0, ""},     {100, "100"},         {99.94, "99.9"},        {10, "10.0"},      {9.994, "9.99"},
      {1, "1.00"}, {0.0001, "0.000100"}, {0.00009, "9.000e-05"}, {1e7, "10000000"}, {1.1e7, "1.100e+07"}};
  for (const auto& [x, text] : cases) EXPECT_EQ(test.formatClocks(x), text) << x;
  EXPECT_EQ(sFormat(1234567890, 9) + sFormat(1234567890, 10), " 1.23e+091234567890");
  EXPECT_EQ(sFormat(12345678901LL, 9), " 1.23e+10");
}

TEST(TableLines, TurnTheParametersLikeAnOdometerAndEndWithTheDeprecatedOnes) {
  Capture console(outErr);
  TableFile table(g_cstrm);
  zebTest::m_numParmsColm = 4;
  zebTest::m_numResultColm = 2;
  zebSession::m_nameMode = 1;
  zebIterator<int> size(0, "size", ""), fast(0, "fast", "");
  for (int v : {4, 5}) size.add(v);
  for (int v : {7, 8}) fast.add(v);
  size.m_deprecatedValues.push_back(4);
  size.m_deprecatedNames.push_back("four");
  FakeTest test;
  test.m_startParms.push_back(&size);
  test.m_startParms.push_back(&fast);
  test.m_scripted = true;
  EXPECT_EQ(test.run(), resOk);
  zebSession::m_nameMode = 0;
  EXPECT_EQ(table.text(),
            "fake,size,fast,-,parmNames,-\nfake,4,7,-,-,-\nfake,4,8,-,-,-\nfake,5,7,-,-,-\nfake,5,8,-,-,-\n"
            "fake,four,7,-,deprecated,-\nfake,four,8,-,deprecated,-\n");
}

TEST(RegistrationText, TellsWhichFunctionIsCalled) {
  FakeTest test;
  test.m_funcCall = test.m_funcInit = [] { return 0; };
  test.m_tool.m_method = zebTool::methodStatistic;
  EXPECT_EQ(test.regInfo(),
            "   Test has been registered by FAKE_REG macro with loopMethod, funcCall, funcInit.\n"
            "   loopMethod is called for measuring.");
  test.m_funcStat = [](int*, long long*) { return resOk; };
  EXPECT_TRUE(contains(test.regInfo(), "\n   statMethod is called for measuring."));
  test.m_tool.m_setUse = true;
  EXPECT_TRUE(contains(test.regInfo(), "\n   funcCall with Set&Use is called for measuring."));
}
