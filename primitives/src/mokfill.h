// mokfill.h: how do elements get their values?
//
// n counts elements. parts is 1 for real elements and 2 for complex ones, whose
// re and im get the same value; T is the type of a component.
#ifndef MOKFILL_H
#define MOKFILL_H

#include <cmath>

#include "mokelement.h"

constexpr double mokHalfPi = 1.5707963267948966;
constexpr double mokTwoPi = 6.283185307179586;

template <class T>
void setRealConst(T* dst, int n, double value) {
  const T element = toElement<T>(value);
  for (int i = 0; i < n; ++i) mokStore(dst + i, element);
}

template <class T>
void setCplxConst(T* dst, int n, double re, double im) {
  const T parts[2] = {toElement<T>(re), toElement<T>(im)};
  for (int i = 0; i < n; ++i) {
    mokStore(dst++, parts[0]);
    mokStore(dst++, parts[1]);
  }
}

// The sum of a subtract-with-borrow and a linear congruential sequence, both of 32 bits and wrapping.
class mokUniform {
 public:
  explicit mokUniform(unsigned int seed) : m_c(seed), m_b(congruential(m_c)), m_a(congruential(m_b)) {}

  int next() {
    m_lcg = congruential(m_lcg);
    unsigned int d = m_b - m_a + m_borrow;
    const bool negative = static_cast<int>(d) < 0;
    m_borrow = negative ? -1 : 0;
    if (negative) d -= 18;
    m_a = m_b;
    m_b = m_c;
    m_c = d;
    return static_cast<int>(m_lcg + d);
  }

  unsigned int seed() const { return m_c; }  // for the next generator

 private:
  static unsigned int congruential(unsigned int x) { return x * 69069u + 1013904243u; }

  unsigned int m_c;
  unsigned int m_b;
  unsigned int m_a;
  unsigned int m_borrow = -1;
  unsigned int m_lcg = 1131199209u;
};

// n components between low and high, which are cut to the limits of the type. *seed changes.
template <class T>
void setRandUniform(T* dst, int n, double low, double high, unsigned int* seed) {
  // This decimal number and not exactly 2 to the -32nd: the data of all tests are defined by it.
  constexpr double unit = 2.3283064365387e-10;
  if (low < getMin<T>()) low = getMin<T>();
  if (high > getMax<T>()) high = getMax<T>();
  const double mid = (high + low) * 0.5;
  const double scale = (high - low) * unit;
  mokUniform uniform(*seed);
  for (int i = 0; i < n; ++i) mokStore(dst + i, toElement<T>(uniform.next() * scale + mid));
  *seed = uniform.seed();
}

// From first on by step; having risen above last, back to first or, without wrap, to last.
template <class T>
void setSeq(T* dst, int n, int parts, double first, double last, double step, bool wrap) {
  if (first < getMin<T>()) first = getMin<T>();
  if (last > getMax<T>()) last = getMax<T>();
  double x = first;
  for (int i = 0; i < n; ++i) {
    for (int part = 0; part < parts; ++part) mokStore(dst++, toElement<T>(x));
    x += step;
    if (step >= 0 && x > last) x = wrap ? first : last;
  }
}

// Jaehne's test signal, a sine whose frequency rises from 0 to the highest that n samples can show.
template <class T>
void setJaehne(T* dst, int n, int parts, double magnitude, double offset) {
  const double k = mokHalfPi / n;
  for (int i = 0; i < n; ++i) {
    const T element = toElement<T>(magnitude * std::sin(k * i * i) + offset);
    for (int part = 0; part < parts; ++part) mokStore(dst++, element);
  }
}

// The same signal as rings around the centre of one channel. pixelStep in components, rowStep in bytes.
template <class T>
void setRealJaehne(T* dst, int width, int height, int pixelStep, int rowStep, double magnitude,
                   double offset) {
  const double cx = (width - 1) * 0.5;
  const double cy = (height - 1) * 0.5;
  for (int y = 0; y < height; ++y) {
    T* const row = reinterpret_cast<T*>(reinterpret_cast<char*>(dst) + static_cast<long long>(y) * rowStep);
    for (int x = 0; x < width; ++x) {
      const double squares = (x - cx) * (x - cx) + (y - cy) * (y - cy);
      const double wave = std::sin(mokTwoPi * squares / (4.0 * height)) + 1.0;
      mokStore(row + static_cast<long long>(x) * pixelStep, toElement<T>(wave * magnitude + offset));
    }
  }
}

#endif
