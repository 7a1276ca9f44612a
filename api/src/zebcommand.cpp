#include "zebcommand.h"

namespace {

bool isPrefix(char c) {
  return c == '-' || c == '+' || c == '=';
}

}  // namespace

bool isKeyString(const zebString& text) {
  return text.length() >= 2 && (text[0] == '-' || text[0] == '/');
}

bool zebCommandKey::setArg(const zebString& text, const zebString& next) {
  if (!isKeyString(text)) return false;
  m_key = text[1];
  zebString rest = text.substr(2);
  m_arg = "";
  if (isPrefix(rest[0])) {
    m_arg = rest[0];
    rest = rest.substr(1);
  }
  m_arg += rest.empty() ? next : rest;
  return true;
}

bool zebCommandKey::getArg(char key, zebString& arg) const {
  if (m_key != key) return false;
  arg = m_arg;
  return true;
}

void zebCommandList::setArgs(int argc, char** argv) {
  zebStringList words;
  for (int i = 0; i < argc; ++i) words.push_back(argv[i]);
  setArgs(words);
}

void zebCommandList::setArgs(const char* line) {
  zebStringList words;
  zebString(line).parse(words, " ;\t\r\n");
  setArgs(words);
}

void zebCommandList::setArgs(const zebStringList& words) {
  zebStringList::iterator word = words.begin();
  while (!(word == words.end())) {
    const zebString& text = *word++;
    zebString companion;
    if (!(word == words.end()) && !isKeyString(*word)) companion = *word++;
    setArg(text, companion);
  }
}

bool zebCommandList::setArg(const zebString& text, const zebString& next) {
  zebCommandKey key;
  if (!key.setArg(text, next)) return false;
  push_back(key);
  return true;
}

bool zebCommandList::setArg(char key, const zebString& arg) {
  return setArg(zebString('-') + key, arg);
}

bool zebCommandList::isKey(char key) const {
  zebString arg;
  return getArg(key, arg);
}

bool zebCommandList::getArg(char key, zebString& arg) const {
  iterator it = end();
  while (!(it == begin())) {
    --it;
    if (it->getArg(key, arg)) return true;
  }
  return false;
}
