// tablefile.h: what does a stream write to its files?
#ifndef TABLEFILE_H
#define TABLEFILE_H

#include "tempfile.h"
#include "zebcstream.h"

// A temporary file in place of the files of a stream, until destroyed; then files added meanwhile go too.
template <class Stream>
class StreamFile {
 public:
  explicit StreamFile(Stream& stream) : m_stream(stream) {
    m_old.swap(stream);
    stream.addStream(m_file.name(), false);
  }
  StreamFile(const StreamFile&) = delete;
  StreamFile& operator=(const StreamFile&) = delete;
  ~StreamFile() {
    for (o_stream* file : m_stream) delete file;
    m_stream.clear();
    m_old.swap(m_stream);
  }

  zebString text() const {
    m_stream.flush();
    return m_file.text();
  }

 private:
  Stream& m_stream;
  TempFile m_file;
  zebList<o_stream*> m_old;
};

using TableFile = StreamFile<zebCStream>;

#endif
