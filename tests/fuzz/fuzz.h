// fuzz.h: what do the targets share? Each is one LLVMFuzzerTestOneInput; a broken promise ends the process.
#ifndef FUZZ_H
#define FUZZ_H

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "zebostream.h"
#include "zebstring.h"

#define FUZZ_TARGET(bytes, size) extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)

inline void require(bool promise, const char* text) {
  if (promise) return;
  fprintf(stderr, "broken promise: %s\n", text);
  abort();
}

// The bytes up to the first zero.
inline zebString textOf(const uint8_t* bytes, size_t size) {
  zebString text;
  for (size_t i = 0; i < size && bytes[i]; ++i) text += static_cast<char>(bytes[i]);
  return text;
}

// A file that holds the bytes and never touches a disk.
class FuzzFile {
 public:
  FuzzFile(const uint8_t* bytes, size_t size) : m_file(memfd_create("fuzz", 0)) {
    require(m_file >= 0 && write(m_file, bytes, size) == static_cast<ssize_t>(size), "room for the file");
    snprintf(m_name, sizeof m_name, "/proc/self/fd/%d", m_file);
  }
  FuzzFile(const FuzzFile&) = delete;
  FuzzFile& operator=(const FuzzFile&) = delete;
  ~FuzzFile() { close(m_file); }
  const char* name() const { return m_name; }

 private:
  int m_file;
  char m_name[32];
};

#endif
