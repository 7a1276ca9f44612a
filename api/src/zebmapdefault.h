// zebmapdefault.h: a parameter whose values are named by the words of a small table.
//
// The table is filled by assignment: parm[true] = "yes". Any beginning of a word
// stands for it, in any case; the first word of the table that fits counts.
#ifndef ZEBMAPDEFAULT_H
#define ZEBMAPDEFAULT_H

#include "zebdefault.h"
#include "zebvaluenames.h"

template <class T>
class zebMapDefault : public zebDefault_NSC<T> {
 public:
  using zebDefault_NSC<T>::zebDefault_NSC;

  zebString validString() const override { return zebJoinNames(m_names, "|"); }
  zebString valueToString(T value) const override { return zebNameOf(value, m_keys, m_names); }
  T stringToValue(zebString& text) const override { return zebValueOf(text, m_keys, m_names); }

  // The name of the value, which joins the table if it is new.
  zebString& operator[](T value) {
    auto name = m_names.begin();
    for (const T& key : m_keys) {
      if (key == value) return *name;
      ++name;
    }
    m_keys.push_back(value);
    return *m_names.insert(m_names.end(), zebString());
  }

  zebList<T> m_keys;
  zebList<zebString> m_names;  // at the same positions
};

#endif
