// zebiterator.h: a parameter that a test runs over, with its list of values.
//
// The value list is the object itself. Values come in the order of add or of
// the text, repetitions included. The text form is the values' own, separated
// by ";". zebIterator_NSC<T> has no text form of its values; zebIterator<T> has
// that of T.
#ifndef ZEBITERATOR_H
#define ZEBITERATOR_H

#include "zebdefault.h"
#include "zebexception.h"
#include "zebstringlist.h"
#include "zebvaluenames.h"

template <class T>
class zebIterator_NSC : public zebDefault_NSC<T>, public zebList<T> {
 public:
  explicit zebIterator_NSC(T value = T(), const zebString& name = "", const zebString& prompt = "")
      : zebDefault_NSC<T>(value, name, prompt), m_current(this->end()) {}

  // The position is one in the object's own list, so no copy can share it.
  zebIterator_NSC(const zebIterator_NSC&) = delete;
  zebIterator_NSC& operator=(const zebIterator_NSC&) = delete;

  void reset() override;
  zebString defaultString() const override { return listDescr(*this, "; "); }
  bool nextValue() override;
  void translate(zebString text) override;

  virtual void add(T value) { this->push_back(value); }

  zebString listDescr(const zebList<T>& list, const zebString& separator) const;

  typename zebList<T>::iterator m_current;  // valid while m_done is set
};

template <class T>
void zebIterator_NSC<T>::reset() {
  zebDefault_NSC<T>::reset();
  this->clear();
  m_current = this->end();
}

template <class T>
bool zebIterator_NSC<T>::nextValue() {
  if (this->m_done) {
    ++m_current;
  } else {
    m_current = this->begin();
  }
  this->m_done = !(m_current == this->end());
  this->m_value = this->m_done ? *m_current : T();
  return this->m_done;
}

template <class T>
void zebIterator_NSC<T>::translate(zebString text) {
  zebStringList words;
  if (text.parse(words, ";") == 0) throw zebException("Empty iterator definition");
  zebList<T> values;
  for (zebString& word : words) {
    word.trim();
    word.m_failed = false;
    values.push_back(this->stringToValue(word));
    if (word.m_failed) this->refuse(word);
  }
  this->swap(values);
  // The old position went with the old list: the next step starts over.
  this->m_done = false;
  m_current = this->end();
}

template <class T>
zebString zebIterator_NSC<T>::listDescr(const zebList<T>& list, const zebString& separator) const {
  zebStringList texts;
  for (const T& v : list) texts.push_back(this->valueToString(v));
  return zebJoinNames(texts, separator);
}

template <class T>
class zebIterator : public zebTextForm<T, zebIterator_NSC<T>> {
 public:
  using zebTextForm<T, zebIterator_NSC<T>>::zebTextForm;
};

#endif
