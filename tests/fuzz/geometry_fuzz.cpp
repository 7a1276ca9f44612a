// Sizes, points and rectangles. What reads well is written as a text that reads as the same.
#include "fuzz.h"
#include "zebgeometry.h"

namespace {

template <class T>
void tryText(const zebString& text) {
  T first = {};
  zebString source = text;
  first << source;
  if (source.m_failed) return;
  zebString written;
  written << first;
  zebString copy = written;
  T second = {};
  second << copy;
  zebString again;
  again << second;
  require(again == written, "the same text again");
}

}  // namespace

FUZZ_TARGET(bytes, size) {
  const zebString text = textOf(bytes, size);
  tryText<QoriSize>(text);
  tryText<QoriPoint>(text);
  tryText<QoriRect>(text);
  return 0;
}
