#include "zebparse.h"

#include <cstring>

namespace {

constexpr int s_outside = -1;
constexpr int s_quotingOff = -100;

}  // namespace

zebParse::zebParse(const zebString& text) : m_text(text), m_position(0), m_quote(s_outside) {}

void zebParse::initParse(const zebString& separators) {
  m_separators = separators;
  m_position = 0;
  m_quote = separators.find("\"") == zebString::npos ? s_outside : s_quotingOff;
}

bool zebParse::isSeparator(int i) {
  const char c = m_text[i];
  if (m_quote >= 0) {
    const bool doubled = m_quote == i - 1;
    if (c == '"') m_quote = doubled ? 0 : s_outside;
    return false;
  }
  if (m_quote == s_outside && c == '"') {
    m_quote = i;
    return false;
  }
  return c && strchr(m_separators.c_str(), c);
}

// The first character of a word is looked at twice, which closes a quote that opens there.
bool zebParse::nextWord(zebString& word) {
  word = "";
  int first = m_position;
  while (first < m_text.length() && isSeparator(first)) ++first;
  if (first >= m_text.length()) return false;
  int last = first;
  while (last < m_text.length() && !isSeparator(last)) ++last;
  word = m_text.substr(first, last - first);
  removeQuote(word);
  m_position = last;
  return true;
}

void zebParse::removeQuote(zebString& word) {
  if (m_quote == s_quotingOff) return;
  for (int i = word.find("\"\""); i != zebString::npos; i = word.find("\"\"")) {
    word = word.substr(0, i) + word.substr(i + 1, word.length());
  }
}

int zebParse::parse(zebStringList& out, const zebString& separators) {
  initParse(separators);
  out.clear();
  zebString word;
  int count = 0;
  for (; nextWord(word); ++count) out.push_back(word);
  return count;
}

int zebParse::parse(zebString** targets, int count, const zebString& separators) {
  zebStringList words;
  const int found = parse(words, separators);
  zebStringList::iterator word = words.begin();
  for (int i = 0; i < count; ++i) {
    *targets[i] = "";
    if (i < found) *targets[i] = *word++;
  }
  return found;
}

int zebParse::parse(zebString& a, zebString& b, const zebString& separators) {
  zebString* targets[] = {&a, &b};
  return parse(targets, 2, separators);
}

int zebParse::parse(zebString& a, zebString& b, zebString& c, const zebString& separators) {
  zebString* targets[] = {&a, &b, &c};
  return parse(targets, 3, separators);
}
