// zebmapiterator.h: an iterator over values that have names.
//
// Names are given by assignment: grid[qoriBayerRGGB] = "RGGB". The first name of
// a value stays. Only named values are valid, whatever is added to the list
// before.
#ifndef ZEBMAPITERATOR_H
#define ZEBMAPITERATOR_H

#include "zebenumiterator.h"

template <class T>
class zebMapIterator : public zebEnumIterator_NCS<T> {
 public:
  using zebEnumIterator_NCS<T>::zebEnumIterator_NCS;

  zebString valueToString(T value) const override { return zebNameOf(value, this->m_valid, m_names); }
  T stringToValue(zebString& text) const override { return zebValueOf(text, this->m_valid, m_names); }

  void initValidation() override {
    resetValidation();
    this->m_validating = true;
  }
  void resetValidation() override {
    zebEnumIterator_NCS<T>::resetValidation();
    m_names.clear();
  }
  virtual void resetMap() {
    this->reset();
    resetValidation();
  }

  // The name of a new value, to be assigned to. That of a known value can't be changed.
  zebString& operator[](T value);

  zebList<zebString> m_names;  // of the elements of m_valid, at the same positions
  zebString m_noName;          // takes what is assigned to a known value
};

template <class T>
zebString& zebMapIterator<T>::operator[](T value) {
  if (!this->addValidation(value)) return m_noName;
  // Values that joined m_valid through add have no name yet and still need a place.
  while (m_names.size() < this->m_valid.size()) m_names.push_back(zebString());
  return *--m_names.end();
}

#endif
