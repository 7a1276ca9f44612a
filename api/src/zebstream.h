// zebstream.h: one text file each, for reading or for writing.
#ifndef ZEBSTREAM_H
#define ZEBSTREAM_H

#include <cstdio>

#include "zebstring.h"

// Bits of the open flags. Without streamFullName the name counts from the session's input or output
// directory.
constexpr int streamRead = 1;
constexpr int streamWrite = 2;
constexpr int streamAppend = 4;
constexpr int streamBinary = 8;
constexpr int streamFullName = 256;

class io_stream {
 public:
  // A failed open leaves m_file null and, with report, tells it on g_ostrm.
  io_stream(const zebString& name, int flags, bool report);
  io_stream(FILE* file, const zebString& name) : m_file(file), m_name(name) {}
  io_stream(const io_stream&) = delete;
  io_stream& operator=(const io_stream&) = delete;
  virtual ~io_stream();  // closes the file unless it is standard input or output

  void flush();
  void close();  // fclose, unless it is standard input or output

  FILE* m_file;      // null when the open failed
  zebString m_name;  // complete

 protected:
  void note(bool failed);  // keeps errno of the first failure

  int m_error = 0;
};

class o_stream : public io_stream {
 public:
  using io_stream::io_stream;

  void write(const zebString& text);

  // Flushes and closes. A write that failed since the open is told on standard error, where the text can't be
  // lost with the file; nothing if the reader of standard output has gone. Behind a failed write a file gets
  // nothing more and ends on a whole line.
  void finish();

 private:
  friend o_stream* createOStream(const zebString& name, bool append);
  void cutHalfLine();

  long m_start = 0;  // bytes that the file had when it was opened to append
};

// Text for a file that couldn't be opened goes to standard output, so that it isn't lost.
o_stream& operator<<(o_stream& out, const zebString& text);

class i_stream : public io_stream {
 public:
  using io_stream::io_stream;

  // Reads a line of any length without its line feed; false at the end of the file.
  bool getline(zebString& line);
};

// One step of getline: true when the line is complete, false when buf is full and the line goes on.
bool getlinebuf(FILE* f, char* buf, int size, bool& eof);

// The system's text for the last failed file operation; this platform gives none.
zebString getLastErrorMessage();

// A new stream on a complete name, for the caller to own; null when it can't be opened, which has been told.
o_stream* createOStream(const zebString& name, bool append);

extern i_stream& c_in;   // standard input
extern o_stream& c_out;  // standard output

#endif
