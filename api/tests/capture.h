// capture.h: what does g_ostrm print while a test of ours looks?
#ifndef CAPTURE_H
#define CAPTURE_H

#include <ostream>

#include "tablefile.h"
#include "zebostream.h"

class Capture : public StreamFile<zebOStream> {
 public:
  explicit Capture(int level) : StreamFile(g_ostrm), m_oldLevel(g_ostrm.outLevel()) {
    g_ostrm.setOutLevel(static_cast<OutputLevel>(level));
  }
  ~Capture() { g_ostrm.setOutLevel(m_oldLevel); }

 private:
  OutputLevel m_oldLevel;
};

inline bool contains(const zebString& text, const zebString& part) {
  return text.find(part) != zebString::npos;
}

// So that a failing comparison shows the texts.
inline void PrintTo(const zebString& s, std::ostream* os) {
  *os << '"' << s.c_str() << '"';
}

#endif
