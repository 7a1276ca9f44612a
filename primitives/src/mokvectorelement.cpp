// Single elements of a vector.
#include "mokvector.h"

void mokVector::setIndex(int i, SetMode mode, double re, double im) {
  void* const p = getPointerAt(i);
  if (!p) return;
  switch (mode) {
    case modeConst:
      return setDataConst(p, 1, defaultConst(), defaultConst());
    case modeZero:
      return setDataConst(p, 1, 0.0, 0.0);
    case modeOne:
      return setDataConst(p, 1, 1.0, 0.0);
    case modeMax:
      return setDataConst(p, 1, getMaxValue(m_type), 0.0);
    case modeMin:
      return setDataConst(p, 1, getMinValue(m_type), 0.0);
    case modeValue:
      return setDataConst(p, 1, re, im);
    case modeRandom:
      return re == im ? setDataRandom(p, 1, getMinValue(m_type), getMaxValue(m_type))
                      : setDataRandom(p, 1, re, im);
    case modeSequence:
      return setDataConst(p, 1, re, 0.0);
  }
}

void* mokVector::getPointerAt(int i) {
  return m_data ? static_cast<char*>(m_data) + static_cast<long long>(i) * mokTypeSize(m_type) : nullptr;
}

const void* mokVector::getPointerAt(int i) const {
  return const_cast<mokVector*>(this)->getPointerAt(i);
}

void mokVector::getElement(const void* p, double& re, double& im) const {
  mokWithComponent(m_type, [&](auto zero) {
    auto* const element = static_cast<const decltype(zero)*>(p);
    re = static_cast<double>(mokLoad(element));
    if (mokIsComplex(m_type)) im = static_cast<double>(mokLoad(element + 1));
  });
}

double mokVector::getElement(const void* p) const {
  double re = 0.0;
  double im = 0.0;
  getElement(p, re, im);
  return re;
}

double mokVector::getIndex(int i) const {
  const void* const p = getPointerAt(i);
  return p ? getElement(p) : 0.0;
}

void mokVector::getIndex(int i, double& re, double& im) const {
  const void* const p = getPointerAt(i);
  if (p) getElement(p, re, im);
}
