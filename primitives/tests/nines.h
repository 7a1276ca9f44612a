// nines.h: a vector to be filled, and its elements as text.
#ifndef NINES_H
#define NINES_H

#include <gtest/gtest.h>

#include "mokvector.h"

// A vector of n elements, all 9.
struct Nines : mokVector {
  Nines(mokType t, int n) : mokVector(t) { EXPECT_TRUE(createVector(n, modeValue, 9, 9)); }
};

// The elements as text, real parts only.
inline zebString elements(const mokVector& v) {
  zebString text;
  for (int i = 0; i < v.m_length; ++i) text << (i ? " " : "") << v.getIndex(i);
  return text;
}

#endif
