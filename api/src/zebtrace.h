// zebtrace.h: in which named step is the program?
//
// Steps are entered and left by name; leaving an outer step leaves all inner
// ones. Entries and exits print at level msgTrace.
#ifndef ZEBTRACE_H
#define ZEBTRACE_H

#include "zeblist.h"
#include "zebstring.h"

class zebTrace : public zebList<zebString> {
 public:
  void traceIn(const zebString& name);
  void traceOut(const zebString& name);
  zebString getCurName() const;  // the innermost step, empty when none is entered
  void flush();

  zebString m_indent;  // one "*" per nesting level

 private:
  void print(const zebString& label, const zebString& name);
};

extern zebTrace g_trace;

#endif
