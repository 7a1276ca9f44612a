// How values become text and text becomes values.
#include <cstdint>
#include <cstdio>

#include "zebstring.h"
#include "zebstringlist.h"

namespace {

template <class T>
zebString& print(zebString& s, const char* format, T value) {
  char text[64];
  snprintf(text, sizeof text, format, value);
  return s += text;
}

zebString format64(char conversion) {
  return zebString("%") + zebString::prefixI64() + conversion;
}

// A field that meets the end of the text before anything else isn't a failure: the target just stays.
template <class T>
T& scan(T& value, zebString& s, const char* format) {
  s.m_failed = sscanf(s.c_str(), format, &value) == 0;
  return value;
}

// 'x' or 'X' for a hexadecimal text, else 'd'.
char integerConversion(const zebString& s) {
  const bool hex = s.length() > 1 && s[0] == '0' && (s[1] == 'x' || s[1] == 'X');
  return hex ? s[1] : 'd';
}

}  // namespace

zebString& operator<<(zebString& s, const zebString& value) {
  return s += value;
}

zebString& operator<<(zebString& s, const char* value) {
  return s += value;
}

zebString& operator<<(zebString& s, char value) {
  return s += value;
}

zebString& operator<<(zebString& s, const void* value) {
  if (!value) return s += "NULL";
  return print(s, format64('X').c_str(), static_cast<unsigned long long>(reinterpret_cast<uintptr_t>(value)));
}

zebString& operator<<(zebString& s, bool value) {
  return s += value ? "yes" : "no";
}

zebString& operator<<(zebString& s, int value) {
  return print(s, "%d", value);
}

zebString& operator<<(zebString& s, unsigned int value) {
  return s << static_cast<long long>(value);
}

zebString& operator<<(zebString& s, unsigned char value) {
  return s << static_cast<int>(value);
}

zebString& operator<<(zebString& s, long long value) {
  return print(s, format64('d').c_str(), value);
}

zebString& operator<<(zebString& s, double value) {
  return print(s, "%.3g", value);
}

zebString& operator<<(zebString& s, float value) {
  return s << static_cast<double>(value);
}

bool& operator<<(bool& value, zebString& s) {
  zebString word = s.toLower();
  word.trim();
  const char first = word[0];
  const bool yes = first == 'y' || first == 't' || word == "1";
  const bool no = first == 'n' || first == 'f' || word == "0";
  s.m_failed = !yes && !no;
  return value = yes;
}

int& operator<<(int& value, zebString& s) {
  const char format[] = {'%', integerConversion(s), 0};
  return scan(value, s, format);
}

long long& operator<<(long long& value, zebString& s) {
  return scan(value, s, format64(integerConversion(s)).c_str());
}

double& operator<<(double& value, zebString& s) {
  return scan(value, s, "%lf");
}

float& operator<<(float& value, zebString& s) {
  double wide = value;
  wide << s;
  return value = static_cast<float>(wide);
}

bool fitString(const zebString& word, const zebString& name, int skip) {
  const zebString w = word.toLower();
  const zebString n = name.toLower();
  return n.substr(0, w.length()) == w || n.substr(skip).substr(0, w.length()) == w;
}

zebString zebString::flagString(int value, const int* values, const zebString* names, int count) {
  zebString text;
  for (int i = 0; i < count; ++i) {
    if (!(values[i] & value)) continue;
    if (!text.empty()) text += "|";
    text += names[i];
  }
  if (text.empty()) text << value;
  return text;
}

int zebString::flagValue(zebString& text, const int* values, const zebString* names, int count, int skip) {
  zebStringList words;
  text.parse(words, "|,; ");
  text.m_failed = false;
  int value = 0;
  bool failed = false;
  for (zebString& word : words) {
    value |= enumValue(word, values, names, count, skip);
    failed = failed || word.m_failed;
  }
  text.m_failed = failed;
  return value;
}

zebString zebString::enumString(int value, const int* values, const zebString* names, int count) {
  for (int i = 0; i < count; ++i) {
    if (values[i] == value) return names[i];
  }
  zebString text;
  text << value;
  return text;
}

int zebString::enumValue(zebString& text, const int* values, const zebString* names, int count, int skip) {
  text.m_failed = false;
  for (int i = 0; i < count; ++i) {
    if (fitString(text, names[i], skip)) return values[i];
  }
  text.m_failed = true;
  return 0;
}
