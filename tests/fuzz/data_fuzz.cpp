// Values given by key -d: name=value, a line feed between two of them.
#include "fuzz.h"
#include "zebistream.h"
#include "zebstringlist.h"

FUZZ_TARGET(bytes, size) {
  zebStringList words;
  textOf(bytes, size).parse(words, "\n");
  zebDataList data;
  for (const zebString& word : words) data.set(word);
  require(data.size() <= words.size(), "a value for each key at most");
  for (const zebData& item : data) {
    zebString value;
    require(data.get(item.m_name, value) && value == item.m_value, "one value of a name");
  }
  return 0;
}
