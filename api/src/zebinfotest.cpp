#include "zebinfotest.h"

__zebInfoTest::__zebInfoTest(const zebString& name, const zebString& file, const zebString& info)
    : zebTest(static_cast<TestFuncOld>(nullptr), name, file, info) {}

void __zebInfoTest::printInformation() {}

void __zebInfoTest::outputRegInfo() {}

void __zebInfoTest::loopData() {
  g_ostrm << msgErr;
  printInformation();
  g_ostrm << msgEndFlush;
  m_currentResult = resOk;
}
