// zebinirewrite.h: how is a file rewritten without losing the old text to a failure half-way?
//
// The new text goes to a file beside the old one, which takes its place only
// when it is complete. Where that can't be done without a change of owner, link
// or directory (a symbolic link, a device, a foreign or write-protected file or
// directory), the file itself is truncated and written.
#ifndef ZEBINIREWRITE_H
#define ZEBINIREWRITE_H

#include "zebstream.h"

class zebIniRewrite {
 public:
  explicit zebIniRewrite(const zebString& name);  // a failed open has been told
  ~zebIniRewrite();                               // without finish the old text stays
  zebIniRewrite(const zebIniRewrite&) = delete;
  zebIniRewrite& operator=(const zebIniRewrite&) = delete;

  o_stream& stream() { return *m_stream; }
  void finish();  // tells a failure

 private:
  zebString m_name;
  zebString m_newName;  // empty: written in place
  o_stream* m_stream;   // owned
};

#endif
