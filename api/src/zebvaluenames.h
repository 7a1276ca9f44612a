// zebvaluenames.h: which word names a value, and which value does a word mean?
//
// A table is two lists with the values and their names at the same positions;
// values behind the last name have none.
#ifndef ZEBVALUENAMES_H
#define ZEBVALUENAMES_H

#include "zeblist.h"
#include "zebstring.h"

// Empty if the value has no name.
template <class T>
zebString zebNameOf(T value, const zebList<T>& values, const zebList<zebString>& names) {
  auto v = values.begin();
  for (const zebString& name : names) {
    if (v == values.end()) break;
    if (*v == value) return name;
    ++v;
  }
  return zebString();
}

// The first value whose name begins with the text, in any case. None: zero, and m_failed of the text is set.
template <class T>
T zebValueOf(zebString& text, const zebList<T>& values, const zebList<zebString>& names) {
  text.m_failed = false;
  auto v = values.begin();
  for (const zebString& name : names) {
    if (v == values.end()) break;
    if (fitString(text, name, 0)) return *v;
    ++v;
  }
  text.m_failed = true;
  return T();
}

inline zebString zebJoinNames(const zebList<zebString>& names, const zebString& separator) {
  zebString joined;
  bool first = true;
  for (const zebString& name : names) {
    if (!first) joined += separator;
    joined += name;
    first = false;
  }
  return joined;
}

#endif
