#include "zebinirewrite.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "zebostream.h"

// Makes an empty file beside an existing one, with its permissions. Empty if the file can't be replaced by
// it.
static zebString makeNewFile(const zebString& name) {
  struct stat old;
  if (lstat(name.c_str(), &old) != 0 || !S_ISREG(old.st_mode)) return zebString();
  if (old.st_nlink != 1 || old.st_uid != geteuid() || access(name.c_str(), W_OK) != 0) return zebString();
  char newName[4096];
  if (snprintf(newName, sizeof newName, "%s.XXXXXX", name.c_str()) >= static_cast<int>(sizeof newName)) {
    return zebString();
  }
  int file = mkstemp(newName);
  if (file < 0) return zebString();
  bool good = fchmod(file, old.st_mode & 07777) == 0;
  ::close(file);
  if (!good) unlink(newName);
  return good ? newName : "";
}

zebIniRewrite::zebIniRewrite(const zebString& name) : m_name(name), m_newName(makeNewFile(name)) {
  m_stream = new o_stream(m_newName.empty() ? m_name : m_newName, streamWrite | streamFullName, true);
}

zebIniRewrite::~zebIniRewrite() {
  delete m_stream;
  if (!m_newName.empty()) unlink(m_newName.c_str());
}

void zebIniRewrite::finish() {
  FILE* file = m_stream->m_file;
  bool good = fflush(file) == 0 && !ferror(file);
  if (good && !m_newName.empty()) {
    good = rename(m_newName.c_str(), m_name.c_str()) == 0;
    if (good) m_newName = "";
  }
  if (!good) g_ostrm << msgErr << "-- Can't write file " << m_name << "\n" << msgEnd;
}
