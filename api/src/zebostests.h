// zebostests.h: tests that measure nothing and tell the system and the computer.
#ifndef ZEBOSTESTS_H
#define ZEBOSTESTS_H

#include "zebinfotest.h"

class __zebOSTest : public __zebInfoTest {
 public:
  using __zebInfoTest::__zebInfoTest;
  void printInformation() override;
};

class __zebHostTest : public __zebInfoTest {
 public:
  using __zebInfoTest::__zebInfoTest;
  void printInformation() override;
};

#endif
