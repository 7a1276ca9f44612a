// Arguments of the program, a line feed between two of them: what each key tells in the echo.
#include "fuzz.h"
#include "zebcommand.h"
#include "zeboption.h"
#include "zebsession.h"
#include "zebstringlist.h"

namespace {

// The table of keys changes nothing by being asked.
class Keys : public zebSession {
 public:
  Keys() { initSession(); }
};

}  // namespace

FUZZ_TARGET(bytes, size) {
  static Keys keys;
  zebStringList words;
  textOf(bytes, size).parse(words, "\n");
  zebCommandList list;
  list.setArgs(words);
  for (zebCommandKey& key : list) {
    for (zebOption* option : keys.m_options) {
      zebString arg;
      if (key.getArg(option->m_key, arg)) option->m_info(arg);
    }
  }
  return 0;
}
