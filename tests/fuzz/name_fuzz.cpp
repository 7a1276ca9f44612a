// Names of functions, two with a line feed between them: every query answers, and the order is symmetric.
#include <initializer_list>

#include "fuzz.h"
#include "mokfunc.h"
#include "zebstringlist.h"

FUZZ_TARGET(bytes, size) {
  zebStringList words;
  textOf(bytes, size).parse(words, "\n");
  for (const zebString& word : words) {
    const mokFunc name(word);
    zebString all = name.prefix() + name.baseName() + name.typeName() + name.descrName();
    require(all.length() <= name.length(), "the parts of a name are in it");
    mokType types[4];
    name.getTypes(types[0], types[1], types[2], types[3]);
    for (int i = -1; i < 5; ++i) {
      name.type(i), name.channels(i), name.plane(i), name.alpha(i), name.qorChannels(i);
      require(name.channels(i) >= 0 && name.channels(i) <= 4, "channels");
    }
    for (mokArg arg : {mokArgSrc, mokArgSrc2, mokArgDst, mokArgDst2}) {
      name.type(arg), name.channels(arg), name.plane(arg), name.alpha(arg);
    }
    name.inplace(), name.mask(), name.scale(), name.roi(), name.coi();
  }
  if (words.size() < 2) return 0;
  const mokFunc a(*words.begin()), b(*++words.begin());
  const int ab = a.compare(b), ba = b.compare(a);
  require((ab > 0) == (ba < 0) && (ab < 0) == (ba > 0), "the same order from both sides");
  return 0;
}
