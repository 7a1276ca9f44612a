// console.h: what does the user see and answer while a test of ours looks?
#ifndef CONSOLE_H
#define CONSOLE_H

#include "tempfile.h"
#include "zebistream.h"
#include "zebstream.h"

// Answers stand in for standard input, and what goes straight to the console is kept, until destroyed.
class Console {
 public:
  explicit Console(const char* answers) : m_answers(answers), m_in(c_in.m_file), m_out(c_out.m_file) {
    c_in.m_file = fopen(m_answers.name().c_str(), "r");
    c_out.m_file = fopen(m_shown.name().c_str(), "w");
  }
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;
  ~Console() {
    g_istrm.setIStream(nullptr);
    fclose(c_in.m_file);
    fclose(c_out.m_file);
    c_in.m_file = m_in;
    c_out.m_file = m_out;
  }

  // All that has been written so far.
  zebString text() const {
    c_out.flush();
    return m_shown.text();
  }

 private:
  TempFile m_answers, m_shown;
  FILE *m_in, *m_out;
};

#endif
