// The text of data.
#include <cstdio>

#include "mokvector.h"

namespace {

zebString Format(Qor8u*) {
  return "%4u";
}
zebString Format(Qor16u*) {
  return "%6u";
}
zebString Format(Qor32u*) {
  return "%11u";
}
zebString Format(unsigned long long*) {
  return zebString("%24") + zebString::prefixI64() + "u";
}
zebString Format(Qor8s*) {
  return "%5d";
}
zebString Format(Qor16s*) {
  return "%7d";
}
zebString Format(Qor32s*) {
  return "%12d";
}
zebString Format(long long*) {
  return zebString("%24") + zebString::prefixI64() + "d";
}
zebString Format(Qor32f*) {
  return "%14.6g";
}
zebString Format(double*) {
  return "%20.12g";
}

constexpr int s_maxText = 64;  // the longest is a complex element of 64 bits, 52 characters

template <class T>
zebString vectorStringReal(const T* data, int length) {
  const zebString format = Format(static_cast<T*>(nullptr));
  zebString text;
  char element[s_maxText];
  for (int i = 0; i < length; ++i) {
    snprintf(element, sizeof element, format.c_str(), mokLoad(data + i));
    text += element;
  }
  return text;
}

template <class T>
zebString vectorStringCplx(const T* data, int length) {
  const zebString part = Format(static_cast<T*>(nullptr));
  const zebString format = zebString(" (") + part + "," + part + ")";
  zebString text;
  char element[s_maxText];
  for (int i = 0; i < length; ++i) {
    snprintf(element, sizeof element, format.c_str(), mokLoad(data + 2 * i), mokLoad(data + 2 * i + 1));
    text += element;
  }
  return text;
}

}  // namespace

zebString mokVector::getDataString(mokType t, const void* data, int length) {
  zebString text;
  if (!data || length < 1) return text;
  mokWithComponent(t, [&](auto zero) {
    auto* const p = static_cast<const decltype(zero)*>(data);
    text = mokIsComplex(t) ? vectorStringCplx(p, length) : vectorStringReal(p, length);
  });
  return text;
}

zebString mokVector::getByteString(const void* data, int bytes) {
  zebString text;
  if (!data || bytes < 1) return text;
  const unsigned char* const p = static_cast<const unsigned char*>(data);
  char element[s_maxText];
  for (int i = 0; i < bytes; ++i) {
    snprintf(element, sizeof element, " %02X", p[i]);
    text += element;
  }
  return text;
}
