#include "zebstring.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <new>

#include "zebparse.h"

namespace {

constexpr int s_blockStep = 16;

// The terminator counts; a text never has more than one step of slack.
int getBufSize(int n) {
  if (n > INT_MAX - 2 * s_blockStep) throw std::bad_alloc();
  return (n + s_blockStep) / s_blockStep * s_blockStep;
}

char* checked(void* block) {
  if (!block) throw std::bad_alloc();
  return static_cast<char*>(block);
}

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r';
}

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

zebString::zebString() {
  init();
  allocate(0);
}

zebString::zebString(const char* text) {
  init();
  assign(text);
}

zebString::zebString(char c) {
  init();
  assign(c);
}

zebString::zebString(const zebString& s) {
  init();
  assign(s);
}

zebString::~zebString() {
  free();
}

zebString& zebString::operator=(const zebString& s) {
  assign(s);
  return *this;
}

zebString& zebString::operator=(const char* text) {
  assign(text);
  return *this;
}

zebString& zebString::operator=(char c) {
  assign(c);
  return *this;
}

void zebString::init() {
  m_buffer = nullptr;
  m_length = 0;
  m_bufSize = 0;
  m_failed = false;
}

void zebString::free() {
  std::free(m_buffer);
  init();
}

void zebString::allocate(int n) {
  if (n < 0) n = 0;
  const int size = getBufSize(n);
  if (size == m_bufSize) {
    memset(m_buffer, 0, size);
  } else {
    char* block = checked(calloc(size, 1));
    std::free(m_buffer);
    m_buffer = block;
    m_bufSize = size;
  }
  m_length = n;
}

void zebString::growBy(int n) {
  if (n > INT_MAX - m_length) throw std::bad_alloc();
  const int length = m_length + n > 0 ? m_length + n : 0;
  if (length < m_length) memset(m_buffer + length, 0, m_length - length);
  if (length >= m_bufSize) {
    // realloc moves pages where a copy would make long texts quadratic.
    const int size = getBufSize(length);
    m_buffer = checked(realloc(m_buffer, size));
    memset(m_buffer + m_bufSize, 0, size - m_bufSize);
    m_bufSize = size;
  }
  m_length = length;
}

// The text may be a part of this very string.
void zebString::set(const char* text, int n) {
  const int size = getBufSize(n);
  if (size == m_bufSize) {
    memmove(m_buffer, text, n);
    memset(m_buffer + n, 0, size - n);
  } else {
    char* block = checked(calloc(size, 1));
    memcpy(block, text, n);
    std::free(m_buffer);
    m_buffer = block;
    m_bufSize = size;
  }
  m_length = n;
}

void zebString::assign(char c) {
  set(&c, 1);
}

void zebString::assign(const char* text) {
  if (!text) text = "";
  const size_t n = strlen(text);
  if (n > INT_MAX) throw std::bad_alloc();
  set(text, static_cast<int>(n));
}

void zebString::assign(const zebString& s) {
  set(s.m_buffer ? s.m_buffer : "", s.m_length);
}

void zebString::resize(int n, char fill) {
  if (n < 0) n = 0;
  const int old = m_length;
  if (n < old) set(m_buffer, n);
  if (n <= old) return;
  growBy(n - old);
  memset(m_buffer + old, fill, n - old);
}

zebString& zebString::operator+=(const zebString& s) {
  const int old = m_length;
  const int n = s.m_length;
  growBy(n);
  memcpy(m_buffer + old, s.m_buffer, n);
  return *this;
}

zebString operator+(const zebString& a, const zebString& b) {
  zebString sum = a;
  sum += b;
  return sum;
}

bool zebString::operator==(const zebString& s) const {
  return strcmp(m_buffer, s.m_buffer) == 0;
}

int zebString::find(const zebString& s, int from) const {
  if (from < 0) from = 0;
  if (from > m_length) return npos;
  const char* const hit = strstr(m_buffer + from, s.m_buffer);
  return hit ? static_cast<int>(hit - m_buffer) : npos;
}

int zebString::rfind(const zebString& s) const {
  for (int i = m_length - s.m_length; i >= 0; --i) {
    if (memcmp(m_buffer + i, s.m_buffer, s.m_length) == 0) return i;
  }
  return npos;
}

zebString zebString::substr(int i) const {
  if (i < 0) i = 0;
  return i > m_length ? zebString() : zebString(m_buffer + i);
}

zebString zebString::substr(int i, int n) const {
  zebString part;
  if (i < 0) i = 0;
  if (n < 1 || i > m_length) return part;
  part.set(m_buffer + i, n < m_length - i ? n : m_length - i);
  return part;
}

int zebString::compare(const zebString& s) const {
  const int common = m_length < s.m_length ? m_length : s.m_length;
  for (int i = 0; i < common; ++i) {
    const signed char a = static_cast<signed char>(m_buffer[i]);
    const signed char b = static_cast<signed char>(s.m_buffer[i]);
    if (a != b) return a < b ? -1 : 1;
  }
  return m_length - s.m_length;
}

void zebString::trim() {
  int first = 0;
  int last = m_length;
  while (first < last && isBlank(m_buffer[first])) ++first;
  while (last > first && isBlank(m_buffer[last - 1])) --last;
  set(m_buffer + first, last - first);
}

zebString zebString::toLower() const {
  zebString text = *this;
  for (int i = 0; i < text.m_length; ++i) text.m_buffer[i] = lower(text.m_buffer[i]);
  return text;
}

zebString zebString::getFileName() const {
  return substr(getFileDir().m_length);
}

zebString zebString::getFileDir() const {
  const int slash = rfind("/");
  const int backslash = rfind("\\");
  return substr(0, (slash > backslash ? slash : backslash) + 1);
}

zebString zebString::getFileTitle() const {
  const zebString name = getFileName();
  const int dot = name.rfind(".");
  return dot == npos ? name : name.substr(0, dot);
}

const char* zebString::prefixI64() {
  return "L";
}

int zebString::parse(zebStringList& out, const zebString& separators) const {
  return zebParse(*this).parse(out, separators);
}

int zebString::parse(zebString& a, zebString& b, const zebString& separators) const {
  return zebParse(*this).parse(a, b, separators);
}

int zebString::parse(zebString& a, zebString& b, zebString& c, const zebString& separators) const {
  return zebParse(*this).parse(a, b, c, separators);
}
