// The values of a vector: limits and fills.
#include "mokfill.h"
#include "mokvector.h"

unsigned int mokVector::m_seed = 7;

double mokVector::getMinValue(mokType t) {
  double value = 0.0;
  mokWithComponent(t, [&](auto zero) { value = getMin<decltype(zero)>(); });
  return value;
}

double mokVector::getMaxValue(mokType t) {
  double value = 1.0;
  mokWithComponent(t, [&](auto zero) { value = getMax<decltype(zero)>(); });
  return value;
}

double mokVector::getMinAbsValue(mokType t) {
  double value = 0.0;
  mokWithComponent(t, [&](auto zero) { value = getMinAbs<decltype(zero)>(); });
  return value;
}

double mokVector::minValue() const {
  const mokType real = mokRealForm(m_type);
  return real == mokUndef ? 1.0 : getMinValue(real);
}

double mokVector::maxValue() const {
  const mokType real = mokRealForm(m_type);
  return real == mokUndef ? 0.0 : getMaxValue(real);
}

void mokVector::setDataConst(void* data, int n, double re, double im) const {
  mokWithComponent(m_type, [&](auto zero) {
    auto* const dst = static_cast<decltype(zero)*>(data);
    mokIsComplex(m_type) ? setCplxConst(dst, n, re, im) : setRealConst(dst, n, re);
  });
}

void mokVector::setDataRandom(void* data, int n, double low, double high) const {
  const int components = mokIsComplex(m_type) ? 2 * n : n;
  mokWithComponent(m_type, [&](auto zero) {
    setRandUniform(static_cast<decltype(zero)*>(data), components, low, high, &m_seed);
  });
}

void mokVector::setDataSequence(void* data, int n, double first, double last, double step, bool wrap) const {
  const int parts = mokIsComplex(m_type) ? 2 : 1;
  mokWithComponent(m_type, [&](auto zero) {
    setSeq(static_cast<decltype(zero)*>(data), n, parts, first, last, step, wrap);
  });
}

void mokVector::setVectorJaehne(void* data, int n, double magnitude) const {
  double offset = 0.0;
  if (!updateJaehneMagn(magnitude, offset)) return;
  const int parts = mokIsComplex(m_type) ? 2 : 1;
  mokWithComponent(m_type, [&](auto zero) {
    ::setJaehne(static_cast<decltype(zero)*>(data), n, parts, magnitude, offset);
  });
}

bool mokVector::updateJaehneMagn(double& magnitude, double& offset) const {
  if (magnitude < 0) return false;
  const double min = getMinValue(m_type);
  const double max = getMaxValue(m_type);
  const double half = (max - min) * 0.5;
  if (magnitude > half) magnitude = half;
  offset = m_type & (mokSignedFlag | mokFloatFlag) ? 0.0 : (max + min) * 0.5;
  return true;
}

void mokVector::setConst() {
  setConst(defaultConst(), defaultConst());
}

void mokVector::setConst(double re, double im) {
  if (m_data) setDataConst(m_data, m_length, re, im);
}

void mokVector::setMinValue() {
  setConst(getMinValue(m_type), getMinValue(m_type));
}
void mokVector::setMaxValue() {
  setConst(getMaxValue(m_type), getMaxValue(m_type));
}

void mokVector::setJaehne() {
  setJaehne(mokIsFloat(m_type) ? 1.0 : (getMaxValue(m_type) - getMinValue(m_type)) * 0.5);
}

void mokVector::setJaehne(double magnitude) {
  if (m_data) setVectorJaehne(m_data, m_length, magnitude);
}

void mokVector::setSequence(double first, double last) {
  if (m_length == 1) return setConst(first, 0.0);
  setSequence(first, last, (last - first) / (m_length - 1), true);
}

void mokVector::setSequence(double first, double last, double step, bool wrap) {
  if (m_data) setDataSequence(m_data, m_length, first, last, step, wrap);
}

void mokVector::setRandom() {
  if (mokIsFloat(m_type)) return setRandom(-1.0, 1.0);
  setRandom(getMinValue(m_type), getMaxValue(m_type));
}

void mokVector::setRandom(double low, double high) {
  if (m_data) setDataRandom(m_data, m_length, low, high);
}

void mokVector::setRandom(double low, double high, unsigned int seed) {
  m_seed = seed;
  setRandom(low, high);
}

void mokVector::setVector(SetMode mode, double re, double im) {
  switch (mode) {
    case modeConst:
      return setConst();
    case modeZero:
      return setConst(0.0, 0.0);
    case modeOne:
      return setConst(1.0, 0.0);
    case modeMax:
      return setMaxValue();
    case modeMin:
      return setMinValue();
    case modeValue:
      return setConst(re, im);
    case modeRandom:
      return re == im ? setRandom() : setRandom(re, im);
    case modeSequence:
      break;
    default:
      return;
  }
  const int n = m_length > 0 ? m_length : 256;
  double step = (im - re) / n;
  if (!mokIsFloat(m_type) && step < 1.0) step = 1.0;
  setSequence(re, im, step, true);
}
