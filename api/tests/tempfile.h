// tempfile.h: a file of a test's own, in a folder of its own.
#ifndef TEMPFILE_H
#define TEMPFILE_H

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "zebstring.h"

class TempFolder {
 public:
  TempFolder() {
    char name[] = "/tmp/zeb_test_XXXXXX";
    m_path = mkdtemp(name);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() { remove_all(m_path); }

  std::filesystem::path path(const char* name) const { return m_path / name; }
  zebString text(const char* name) const { return path(name).c_str(); }

 private:
  std::filesystem::path m_path;
};

class TempFile {
 public:
  TempFile() = default;
  explicit TempFile(const zebString& text) { std::ofstream(name().c_str()) << text.c_str(); }

  zebString name() const { return m_folder.text("file.ini"); }

  // "<none>" if there is no file.
  zebString text() const {
    std::ifstream in(name().c_str());
    std::ostringstream all;
    all << in.rdbuf();
    return in ? all.str().c_str() : "<none>";
  }

 private:
  TempFolder m_folder;
};

#endif
