// Where the parts of a function name begin and end.
#include "mokfuncgrammar.h"

#include "mokfunc.h"

namespace {

bool isTypeLetter(char c) {
  return c == 'u' || c == 's' || c == 'f';
}

// Position of the underscore in front of the type string, npos if there is none.
int endOfBase(const zebString& name) {
  int pos = name.find("_", 0);
  while (pos != zebString::npos && lenOfType(name.substr(pos + 1)) == 0) pos = name.find("_", pos + 1);
  return pos;
}

}  // namespace

int lenOfType(const zebString& s) {
  int n = 0;
  while (isDigit(s[n])) ++n;
  if (n == 0 || !isTypeLetter(s[n])) return 0;
  ++n;
  return s[n] == 'c' ? n + 1 : n;
}

zebString takeType(zebString& s) {
  const int n = lenOfType(s);
  const zebString token = s.substr(0, n);
  s = s.substr(n);
  return token;
}

zebString mokFunc::prefix() const {
  const zebString start = substr(0, 4);
  return start == "qors" || start == "qori" ? start : zebString();
}

void mokFunc::parseFunction(zebString& base, zebString& type, zebString& descr) const {
  type = "";
  descr = "";
  const int begin = prefix().length();
  const int end = endOfBase(*this);
  base = end == npos ? substr(begin) : substr(begin, end - begin);
  if (end == npos) return;

  const int next = find("_", end + 1);
  type = next == npos ? substr(end + 1) : substr(end + 1, next - end - 1);
  if (next != npos) descr = substr(next + 1);
}

void mokFunc::parseFunction(zebString& base, zebString& t1, zebString& t2, zebString& t3,
                            zebString& descr) const {
  zebString rest;
  parseFunction(base, rest, descr);
  t1 = takeType(rest);
  t2 = rest.empty() ? t1 : takeType(rest);
  t3 = rest.empty() ? t2 : takeType(rest);
}

zebString mokFunc::baseName() const {
  zebString base, type, descr;
  parseFunction(base, type, descr);
  return base;
}

zebString mokFunc::typeName() const {
  zebString base, type, descr;
  parseFunction(base, type, descr);
  return type;
}

zebString mokFunc::descrName() const {
  zebString base, type, descr;
  parseFunction(base, type, descr);
  return descr;
}
