#include "zebstream.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "zebostream.h"
#include "zebpaths.h"

namespace {

zebString openMode(int flags) {
  zebString mode = flags & streamRead ? "r" : flags & streamAppend ? "a" : "w";
  if (flags & streamBinary) mode += "b";
  return mode;
}

zebString completeName(const zebString& name, int flags) {
  if (flags & streamFullName) return name;
  return flags & streamRead ? zebPaths::getInPath(name) : zebPaths::getOutPath(name);
}

void reportOpenFailure(const zebString& name, int flags) {
  const char* const purpose = flags & streamRead ? " to read" : flags & streamWrite ? " to write" : "";
  g_ostrm << msgErr << "-- Can't open file " << name << purpose << ": " << getLastErrorMessage() << "\n"
          << msgEnd;
}

}  // namespace

zebString getLastErrorMessage() {
  return zebString();
}

io_stream::io_stream(const zebString& name, int flags, bool report)
    : m_file(nullptr), m_name(completeName(name, flags)) {
  if (flags & (streamRead | streamWrite)) m_file = fopen(m_name.c_str(), openMode(flags).c_str());
  if (!m_file && report) reportOpenFailure(m_name, flags);
}

io_stream::~io_stream() {
  close();
}

void io_stream::flush() {
  if (m_file) note(fflush(m_file) != 0);
}

void io_stream::close() {
  if (m_file && m_file != stdin && m_file != stdout) {
    note(fclose(m_file) != 0);
    m_file = nullptr;
  }
}

void io_stream::note(bool failed) {
  if (failed && m_error == 0) m_error = errno;
}

void o_stream::write(const zebString& text) {
  if (m_error != 0 && m_file != stdout) return;  // half a line may stand at the end
  const bool good = fputs(text.c_str(), m_file ? m_file : stdout) >= 0;
  if (m_file) note(!good);
}

void o_stream::finish() {
  flush();
  const bool readerLeft = m_error == EPIPE && m_file == stdout;
  if (m_error != 0 && m_file && m_file != stdout) cutHalfLine();
  close();
  if (m_error != 0 && !readerLeft) {
    fprintf(stderr, "zeb: %s: not written to its end (%s)\n", m_name.c_str(), strerror(m_error));
  }
  m_error = 0;
}

void o_stream::cutHalfLine() {
  const int file = fileno(m_file);
  struct stat state;
  if (fstat(file, &state) != 0 || !S_ISREG(state.st_mode)) return;
  zebString name;
  name << "/proc/self/fd/" << file;  // which is open for writing alone
  const int text = open(name.c_str(), O_RDONLY | O_CLOEXEC);
  char last = 0;
  off_t end = state.st_size;
  while (end > m_start && pread(text, &last, 1, end - 1) == 1 && last != '\n') --end;
  ::close(text);
  if (end < state.st_size) note(ftruncate(file, end) != 0);
}

o_stream& operator<<(o_stream& out, const zebString& text) {
  out.write(text);
  return out;
}

bool getlinebuf(FILE* f, char* buf, int size, bool& eof) {
  eof = false;
  buf[0] = 0;
  if (!f || !fgets(buf, size, f)) {
    eof = true;
    return true;
  }
  const int length = static_cast<int>(strlen(buf));
  if (length > 0 && buf[length - 1] == '\n') {
    buf[length - 1] = 0;
    return true;
  }
  return length != size - 1;
}

bool i_stream::getline(zebString& line) {
  line = "";
  if (!m_file) return false;
  char piece[512];
  bool eof = false;
  bool complete = false;
  while (!complete) {
    complete = getlinebuf(m_file, piece, sizeof piece, eof);
    line += piece;
  }
  return !line.empty() || !eof;
}

o_stream* createOStream(const zebString& name, bool append) {
  const int flags = streamWrite | streamFullName | (append ? streamAppend : 0);
  o_stream* const stream = new o_stream(name, flags, true);
  if (stream->m_file) {
    // A run that is killed has written its last line, and no half of one.
    setvbuf(stream->m_file, nullptr, _IOLBF, BUFSIZ);
    stream->m_start = ftello(stream->m_file);
    return stream;
  }
  delete stream;
  return nullptr;
}
