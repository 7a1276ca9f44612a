#include "suite.h"

Combination::Combination(zebTest& test, const char* imageSizes) : m_test(test), m_ready(false) {
  test.initSettings();
  zebTest::m_vectorNum = zebTest::m_vectorShift = 0;
  mokVector::m_seed = 7;
  if (!test.canStart()) return;
  (*test.m_parms.begin())->translate(imageSizes);
  test.m_first = true;
  m_ready = test.canContinue() && test.initData();
}

bool Combination::next() {
  m_test.flushData();
  m_test.m_first = false;
  m_ready = m_test.canContinue() && m_test.initData();
  return m_ready;
}

mokImage* Combination::image(int n) const {
  void* owner = nullptr;
  for (void* p = zebMallocFirst(nullptr, &owner); p; p = zebMallocNext(nullptr, &owner)) {
    if (owner == MEM_OBJECT_IS_SUBOBJECT) continue;
    if (n-- == 0) return static_cast<mokImage*>(static_cast<zebObject*>(owner));
  }
  return nullptr;
}
