// zebstepiterator.h: an iterator whose default values lie a fixed step apart.
//
// Only the making of the defaults differs from zebIterator: the user gives a
// list like any other.
#ifndef ZEBSTEPITERATOR_H
#define ZEBSTEPITERATOR_H

#include "zebiterator.h"

template <class T>
class zebStepIterator : public zebIterator<T> {
 public:
  using zebIterator<T>::zebIterator;

  // Appends first, first + step and so on as far as last. A step of 0 or less stops after the first.
  void addSteps(T first, T last, T step) {
    for (T v = first; v <= last; v += step) {
      this->add(v);
      if (step <= T() || v > last - step) break;
    }
  }
};

#endif
