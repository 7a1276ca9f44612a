// zebenumiterator.h: an iterator that can hold its user to a set of valid values.
//
// While m_validating is set, a text may name only values of m_valid. Defaults
// added before initValidation are that set.
#ifndef ZEBENUMITERATOR_H
#define ZEBENUMITERATOR_H

#include "zebgeometry.h"
#include "zebiterator.h"

template <class T>
class zebEnumIterator_NCS : public zebIterator_NSC<T> {
 public:
  using zebIterator_NSC<T>::zebIterator_NSC;

  void add(T value) override;
  zebString validString() const override;

  virtual void initValidation();  // what is listed now is valid from here on
  virtual void resetValidation();
  virtual bool addValidation(T value);  // starts validation if need be; false if already valid
  virtual void addValidation(const zebList<T>* list);

  bool isValid(T value) const;

  zebList<T> m_valid;  // no repetitions
  bool m_validating = false;
};

template <class T>
void zebEnumIterator_NCS<T>::add(T value) {
  zebIterator_NSC<T>::add(value);
  if (m_validating) addValidation(value);
}

template <class T>
zebString zebEnumIterator_NCS<T>::validString() const {
  return m_validating ? this->listDescr(m_valid, "|") : zebString();
}

template <class T>
void zebEnumIterator_NCS<T>::initValidation() {
  resetValidation();
  m_validating = true;
  addValidation(static_cast<const zebList<T>*>(this));
}

template <class T>
void zebEnumIterator_NCS<T>::resetValidation() {
  m_validating = false;
  m_valid.clear();
}

template <class T>
bool zebEnumIterator_NCS<T>::addValidation(T value) {
  if (!m_validating) initValidation();
  if (isValid(value)) return false;
  m_valid.push_back(value);
  return true;
}

template <class T>
void zebEnumIterator_NCS<T>::addValidation(const zebList<T>* list) {
  for (const T& v : *list) addValidation(v);
}

template <class T>
bool zebEnumIterator_NCS<T>::isValid(T value) const {
  for (const T& v : m_valid) {
    if (v == value) return true;
  }
  return false;
}

template <class T>
class zebEnumIterator : public zebTextForm<T, zebEnumIterator_NCS<T>> {
 public:
  using zebTextForm<T, zebEnumIterator_NCS<T>>::zebTextForm;

  T stringToValue(zebString& text) const override {
    const T value = zebTextForm<T, zebEnumIterator_NCS<T>>::stringToValue(text);
    if (this->m_validating && !this->isValid(value)) text.m_failed = true;
    return text.m_failed ? T() : value;
  }
};

#endif
