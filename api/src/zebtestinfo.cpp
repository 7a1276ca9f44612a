#include "zebtestinfo.h"

namespace {

// Takes the part before the first "/" off the text.
zebString takePart(zebString& text) {
  const int slash = text.find("/");
  const zebString part = slash == zebString::npos ? text : text.substr(0, slash);
  text = slash == zebString::npos ? zebString() : text.substr(slash + 1);
  return part;
}

}  // namespace

zebTestInfo::zebTestInfo(const zebString& info) {
  zebString rest = info;
  m_testName = takePart(rest);
  m_description = takePart(rest);
  m_macro = rest;
}
