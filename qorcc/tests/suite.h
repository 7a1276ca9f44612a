// suite.h: how do our tests take hold of a registered test of the suite?
#ifndef SUITE_H
#define SUITE_H

#include "capture.h"
#include "mok.h"
#include "zebtestlist.h"

// Null when no test of that name is registered; the first one of two.
inline zebTest* findTest(const char* name) {
  for (zebTest* test : *pTestList) {
    if (test->m_name == name) return test;
  }
  return nullptr;
}

// One parameter combination of one test after the other, without the measurement.
class Combination {
 public:
  Combination(zebTest& test, const char* imageSizes);  // the first one
  Combination(const Combination&) = delete;
  Combination& operator=(const Combination&) = delete;
  ~Combination() { m_test.flushData(); }

  bool next();                            // false behind the last one
  bool ready() const { return m_ready; }  // initData succeeded
  zebTest* operator->() const { return &m_test; }
  // The images in the order in which the test made them, null behind the last.
  mokImage* image(int n) const;

 private:
  zebTest& m_test;
  bool m_ready;
};

#endif
