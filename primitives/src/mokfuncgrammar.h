// mokfuncgrammar.h: what do the readers of a function name have in common?
#ifndef MOKFUNCGRAMMAR_H
#define MOKFUNCGRAMMAR_H

#include "moktype.h"
#include "zebstring.h"

// Length of the type token at the beginning of s, 0 if there is none.
int lenOfType(const zebString& s);

// Cuts the type token off the beginning of s.
zebString takeType(zebString& s);

inline bool contains(const zebString& s, const char* part) {
  return s.find(part) != zebString::npos;
}

inline bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// The letter at i is followed by a number of channels.
inline bool isChannelIndex(int i, const zebString& s) {
  if (i < 0 || i + 1 >= s.length()) return false;
  return s[i + 1] >= '1' && s[i + 1] <= '4';
}

// Of a channel token.
inline bool alphaChannel(const zebString& token) {
  return token[0] == 'A';
}

// 1 for the source side, 2 for the destination side, 0 for neither.
inline int sideOf(mokArg arg) {
  switch (arg) {
    case mokArgSrc:
    case mokArgSrc2:
      return 1;
    case mokArgDst:
    case mokArgDst2:
      return 2;
  }
  return 0;
}

#endif
