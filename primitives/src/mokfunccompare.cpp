// The sort order of the tested functions.
#include "mokfunc.h"
#include "mokfuncgrammar.h"

namespace {

bool begins(const zebString& s, const char* start) {
  return s.find(start) == 0;
}

// Complex types stand directly behind the real type that they extend.
int compareTs(const zebString& a, const zebString& b) {
  if (a.empty() || b.empty()) return a.length() - b.length();
  const mokType ta = mokFunc::stringToType(a);
  const mokType tb = mokFunc::stringToType(b);
  const int real = mokRealForm(ta) - mokRealForm(tb);
  return real ? real : ta - tb;
}

}  // namespace

int mokFunc::compare(const mokFunc& other) const {
  zebString base, type, descr, otherBase, otherType, otherDescr;
  parseFunction(base, type, descr);
  other.parseFunction(otherBase, otherType, otherDescr);
  if (const int order = (prefix() + base).compare(other.prefix() + otherBase)) return order;
  if (const int order = compareTypes(type, otherType)) return order;
  return compareDescr(descr, otherDescr);
}

int mokFunc::compareTypes(zebString a, zebString b) {
  constexpr int maxTokens = 3;
  for (int i = 0; i < maxTokens; ++i) {
    const zebString ta = takeType(a);
    if (const int order = compareTs(ta, takeType(b))) return order;
  }
  return 0;
}

int mokFunc::compareDescr(const zebString& a, const zebString& b) {
  const bool inplaceA = contains(a, "I");
  const bool inplaceB = contains(b, "I");
  if (inplaceA != inplaceB) return inplaceA ? 1 : -1;
  if (begins(a, "AC4") && begins(b, "C")) return 1;
  if (begins(a, "C") && begins(b, "AC4")) return -1;
  return a.compare(b);
}
