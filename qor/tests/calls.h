// calls.h: how can a test call every function in the same way?
#ifndef QOR_TESTS_CALLS_H
#define QOR_TESTS_CALLS_H

#include <string>
#include <vector>

#include "images.h"
#include "qorcc.h"

struct Call {
  const void* source[4] = {};
  void* target[4] = {};
  int sourceStep[4] = {}, targetStep[4] = {};
  QoriSize size = {0, 0};
  int alpha = 7;
  const float* coeffs = nullptr;
  int layout = qoriSliceWhole;
  // Pass null in place of an array.
  bool noSourcePlanes = false, noTargetPlanes = false, noSourceSteps = false, noTargetSteps = false;
};

struct Entry {
  std::string name;
  std::string sourcePart, targetPart, extra;  // as in the list
  QorStatus (*run)(const Call&);
};

const std::vector<Entry>& entries();

// A call that is right in every argument.
Call callOf(const Image& source, const Image& target);

#endif
