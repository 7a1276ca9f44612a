// The line of a configuration file: every key that comes out is one that was written there.
#include "fuzz.h"
#include "zebcommand.h"

FUZZ_TARGET(bytes, size) {
  const zebString line = textOf(bytes, size);
  zebCommandList list;
  list.setArgs(line.c_str());
  for (int key = 1; key < 128; ++key) {
    zebString arg;
    if (!list.getArg(static_cast<char>(key), arg)) continue;
    require(line.find(static_cast<char>(key)) != zebString::npos, "a key of the line");
    require(arg.length() < line.length(), "an argument of the line");
  }
  return 0;
}
