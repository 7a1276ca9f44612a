// zebdefault.h: a parameter with one value.
//
// zebDefault_NSC<T> has no text form; zebDefault<T> has that of T.
#ifndef ZEBDEFAULT_H
#define ZEBDEFAULT_H

#include "zeblist.h"
#include "zebparameter.h"

template <class T>
class zebDefault_NSC : public zebParameter {
 public:
  explicit zebDefault_NSC(T value = T(), const zebString& name = "", const zebString& prompt = "")
      : zebParameter(name, prompt), m_value(value) {}

  void init(T value, const zebString& name, const zebString& prompt) {
    zebParameter::init(name, prompt);
    m_value = value;
  }

  void reset() override {
    m_done = false;
    m_value = T();
  }
  zebString valueString() const override { return valueToString(value()); }
  bool isDeprecatedParm() override { return !m_deprecatedValues.empty(); }
  bool setDeprecatedFlag(bool f) override;
  void translate(zebString text) override { m_value = validItem(text); }

  virtual T value() const { return m_value; }
  virtual zebString valueToString(T) const { return zebString(); }
  virtual T stringToValue(zebString&) const { return T(); }  // sets m_failed of a text that doesn't convert
  virtual T validItem(zebString text);                       // throws zebException instead

  T m_value;
  zebList<T> m_deprecatedValues;
  zebList<zebString> m_deprecatedNames;  // at the same positions
};

template <class T>
bool zebDefault_NSC<T>::setDeprecatedFlag(bool f) {
  m_deprecated = false;
  if (!f) return false;
  zebString present = valueToString(m_value);
  auto name = m_deprecatedNames.begin();
  for (const T& old : m_deprecatedValues) {
    if (name == m_deprecatedNames.end()) break;
    if (valueToString(old) == present) {
      m_deprecated = true;
      m_deprecatedText = *name;
      break;
    }
    ++name;
  }
  return m_deprecated;
}

template <class T>
T zebDefault_NSC<T>::validItem(zebString text) {
  text.m_failed = false;
  T v = stringToValue(text);
  if (text.m_failed) refuse(text);
  return v;
}

// Base, a parameter of T, with the text form that T has.
template <class T, class Base>
class zebTextForm : public Base {
 public:
  using Base::Base;

  zebString valueToString(T value) const override {
    zebString s;
    return s << value;
  }
  T stringToValue(zebString& text) const override {
    T value{};
    return value << text;
  }
};

template <class T>
class zebDefault : public zebTextForm<T, zebDefault_NSC<T>> {
 public:
  using zebTextForm<T, zebDefault_NSC<T>>::zebTextForm;
};

#endif
