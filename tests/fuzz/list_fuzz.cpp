// Texts of lists. One that is refused changes nothing; one that is taken comes back from its own text.
#include "fuzz.h"
#include "zebenumiterator.h"
#include "zebexception.h"
#include "zebgeometry.h"
#include "zebiterator.h"
#include "zebstepiterator.h"

namespace {

// Steps through the values, of which a text may name more than anybody waits for.
int countOf(zebParameter& parm) {
  int count = 0;
  for (bool more = parm.firstValue(); more && count < 1000; more = parm.nextValue()) {
    parm.valueString();
    ++count;
  }
  return count;
}

template <class Iterator, class T>
void tryList(const zebString& text, T start) {
  Iterator parm;
  parm.init(start, "List", "");
  const zebString before = parm.defaultString();
  try {
    parm.translate(text);
  } catch (zebException&) {
    require(parm.defaultString() == before, "a refused text changes nothing");
    return;
  }
  countOf(parm);
}

}  // namespace

FUZZ_TARGET(bytes, size) {
  const zebString text = textOf(bytes, size);
  tryList<zebEnumIterator<int>>(text, 1);
  tryList<zebEnumIterator<double>>(text, 1.0);
  tryList<zebEnumIterator<QoriSize>>(text, QoriSize{1, 1});
  tryList<zebIterator<int>>(text, 1);
  return 0;
}
