// zebhost.h: on which machine and system does the program run?
#ifndef ZEBHOST_H
#define ZEBHOST_H

// The computer's name; empty if the system doesn't tell.
class zebHost {
 public:
  zebHost();
  const char* text() const { return m_text; }

 private:
  char m_text[1024];
};

// System (release, machine): "Linux (6.1.0, i686)".
class zebOS {
 public:
  zebOS();
  const char* text() const { return m_text; }

 private:
  char m_text[1024];
};

extern zebHost host;
extern zebOS os;

int zebGetNumOfProcessors();  // those online, at least 1

#endif
