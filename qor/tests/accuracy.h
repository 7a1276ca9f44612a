// accuracy.h: how far do the library's results lie from the published formulas?
//
// One row of the table for each family of transforms, pair of element types and kind of
// chroma, of which one function speaks for all: the others differ in their layout alone.
#ifndef QOR_TESTS_ACCURACY_H
#define QOR_TESTS_ACCURACY_H

#include <string>
#include <vector>

#include "calls.h"
#include "reference.h"

struct Family {
  const char *from, *into, *variant;  // as Names has them; "Gamma" also as a variant
  const char *name, *formula, *source;
  bool isMatrix;
};

struct Subject {
  const Family* family;
  const Entry* entry;
  Names names;

  bool sharesChroma() const { return names.source.subsampled() || names.target.subsampled(); }
};

// All functions that have a formula; of each family and pair of types one with and one
// without shared chroma, in the order of the families' list. Throws if a conversion
// has no family.
const std::vector<Subject>& functions();
const std::vector<Subject>& subjects();

// Of counts of an integer or of units in the last place of a float's largest term.
struct Errors {
  double largest = 0;
  Triple worst = {};  // the colour that has it
  long long values = 0, differing = 0, colours = 0, differingColours = 0;

  void add(const Errors&);
};

// Eight bits: every step-th value of each component; 255 is a multiple of step. Wider:
// samples, of which fewer are taken too. Takes up to two threads.
Errors measure(const Subject&, int step);

// What is wrong with them: empty, or a text of one line. Of 8-bit matrices that share of
// the colours may differ.
std::string complaint(const Subject&, const Errors&, double share);

// What the documentation says of accuracy: figures over all colours, which take some
// minutes, and a fingerprint of the library's results, which takes seconds. Complaints are added to the list.
std::string section(std::vector<std::string>* complaints);
std::string fingerprint();

#endif
