// zebbrelkcpu.h: a test that measures nothing and tells what the processor is.
#ifndef ZEBBRELKCPU_H
#define ZEBBRELKCPU_H

#include "zebinfotest.h"

class __zebBrelkCpuTest : public __zebInfoTest {
 public:
  using __zebInfoTest::__zebInfoTest;
  void printInformation() override;  // to g_ostrm
};

#endif
