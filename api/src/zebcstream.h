// zebcstream.h: how does a comma-separated table come about?
//
// A line is built cell by cell and then goes to all files of the stream, never
// to the console. There is no quoting: a comma in a cell makes two cells of it.
// Lines can wait until the end of a test (postponing), and the lines of a test
// can be searched for two with the same parameters (the duplicate check).
#ifndef ZEBCSTREAM_H
#define ZEBCSTREAM_H

#include "qordefs.h"
#include "zebcolumnstore.h"
#include "zebstream.h"

class zebCStream : public zebList<o_stream*> {
 public:
  zebCStream();
  zebCStream(const zebCStream&) = delete;
  zebCStream& operator=(const zebCStream&) = delete;
  ~zebCStream() override;  // closes the files and leaves the objects

  bool addStream(const zebString& name, bool append);  // a complete name; false when it can't be opened
  void flush();
  void close();  // tells files that weren't written to their end

  void tableFlush();  // forgets the line being built
  void setColm(int i, const zebString& s);
  bool getColm(int i, zebString& s) const;

  // n is the width of the line in cells; 0 stands for m_numColm. A cell that
  // is empty, or at or past m_numColm, is written as "-".
  void tableOut(int n);  // writes the line and keeps it
  void lineOut(int n);   // writes the line, counts it and begins a new one
  void linePostpone();
  void linePostponeOut(int n);

  void identicalLinesStart(int n);  // n leading columns will be compared; 0: no check
  bool identicalLinesStop();        // true when two lines had the same parameters, which has been told
  bool identicalLinesCheck();
  static bool identicalColms(const zebString* a, const zebString* b, int n);

  int m_numColm = 0;    // cells set so far in sequence; a test moves it to where its result cells begin
  int m_lineCount = 0;  // lines written since the stream's creation, with or without files

 private:
  zebString m_colm[columnCount];
  int m_identColm = 0;                         // leading columns that the check compares; 0: no check
  zebStringList m_identStore[columnCount];     // the lines of the present test
  zebStringList m_postponeStore[columnCount];  // in the order in which they came
};

// The next cell, or, for "\n", the end of the line. Cells past the last column are dropped.
zebCStream& operator<<(zebCStream& out, const zebString& s);

template <class T>
zebCStream& tmOutTpl(zebCStream& out, const T& value) {
  zebString s;
  s << value;
  return out << s;
}

zebCStream& operator<<(zebCStream& out, const char* value);
zebCStream& operator<<(zebCStream& out, QoriSize value);

extern zebCStream g_cstrm;  // performance results
extern zebCStream g_qstrm;  // parameter names
extern zebCStream g_ustrm;  // summary
extern zebCStream g_mstrm;  // memory

#endif
