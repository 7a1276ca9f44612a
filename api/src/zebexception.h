// zebexception.h: the only exception of the system; it ends a step of a test by force.
#ifndef ZEBEXCEPTION_H
#define ZEBEXCEPTION_H

#include <exception>

#include "zebstring.h"

class zebException : public std::exception {
 public:
  explicit zebException(const zebString& text);  // a bad value: msg() tells it, info() is the bare text
  explicit zebException(const char* text);       // a signal or a fixed text: info() is empty

  // Zero-terminated, cut to 255 characters.
  char* msg() { return m_msg; }
  char* info() { return m_info; }

 private:
  char m_msg[256];
  char m_info[256];
};

#endif
