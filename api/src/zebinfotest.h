// zebinfotest.h: base of the tests that tell something instead of measuring.
#ifndef ZEBINFOTEST_H
#define ZEBINFOTEST_H

#include "zebtest.h"

class __zebInfoTest : public zebTest {
 public:
  __zebInfoTest(const zebString& name, const zebString& file, const zebString& info);

  virtual void printInformation();  // to g_ostrm, at the level in force
  void outputRegInfo() override;
  void loopData() override;
};

#endif
