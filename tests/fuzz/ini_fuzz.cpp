// An ini file. What is read and written is read again as the same values.
#include "fuzz.h"
#include "zebini.h"

FUZZ_TARGET(bytes, size) {
  FuzzFile file(bytes, size);
  zebIniFile first;
  if (!first.open(file.name(), true)) return 0;
  first.write("Zeb", "Method", "Auto", "a comment");
  first.updateFile();
  zebIniFile second;
  require(second.open(file.name(), false), "a written file opens");
  require(second.read("Zeb", "Method", "") == "Auto", "the value of this run");
  first.close();
  return 0;
}
