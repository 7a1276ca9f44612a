#include "mokscaleiterator.h"

#include "zebtest.h"

mokScaleIterator::mokScaleIterator() : zebIterator<int>(0, "", "") {}

mokScaleIterator::~mokScaleIterator() = default;

bool mokScaleIterator::isScaled(mokFunc func) {
  const zebString descr = func.descrName();
  return descr.find("Sfs") != zebString::npos || descr.find("Fix") != zebString::npos;
}

void mokScaleIterator::init(zebString funcName) {
  m_scaled = isScaled(mokFunc(funcName));
  reset();
  zebDefault_NSC<int>::init(0, m_scaled ? "ScaleFactor" : "", "");
  add(0);
  if (!m_scaled) return;
  add(1);
  add(2);
  add(-1);
}

void mokScaleIterator::replaceFactors(zebString funcName, const int* factors, int count) {
  init(funcName);
  if (!m_scaled) return;
  clear();
  for (int i = 0; i < count; ++i) add(factors[i]);
}

int mokScaleIterator::colmIndex() const {
  return zebTest::m_numParmsColm - 1;
}
