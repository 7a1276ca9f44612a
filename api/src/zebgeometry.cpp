#include "zebgeometry.h"

#include "zebstringlist.h"

// Reads the first count words of s as integers; what is missing becomes 0. False if a word is missing or no
// integer.
static bool readInts(const zebString& s, const zebString& separators, int* values, int count) {
  zebStringList words;
  bool good = s.parse(words, separators) >= count;
  zebList<zebString>::iterator word = words.begin();
  for (int i = 0; i < count; ++i) {
    values[i] = 0;
    if (word == words.end()) continue;
    values[i] << *word;
    good = good && !word->m_failed;
    ++word;
  }
  return good;
}

zebString& operator<<(zebString& s, QoriSize size) {
  return s << size.width << 'x' << size.height;
}

zebString& operator<<(zebString& s, QoriPoint point) {
  return s << '(' << point.x << ',' << point.y << ')';
}

zebString& operator<<(zebString& s, QoriRect rect) {
  return s << QoriPoint{rect.x, rect.y} << QoriSize{rect.width, rect.height};
}

QoriSize& operator<<(QoriSize& size, zebString& s) {
  int v[2];
  bool good = readInts(s, " {}()x,", v, 2);
  size = {v[0], v[1]};
  s.m_failed = !good || size.width < 1 || size.height < 1;
  return size;
}

QoriPoint& operator<<(QoriPoint& point, zebString& s) {
  int v[2];
  s.m_failed = !readInts(s, " {}(),", v, 2);
  point = {v[0], v[1]};
  return point;
}

QoriRect& operator<<(QoriRect& rect, zebString& s) {
  int v[4];
  bool good = readInts(s, " {}(),x", v, 4);
  rect = {v[0], v[1], v[2], v[3]};
  s.m_failed = !good || rect.width < 1 || rect.height < 1;
  return rect;
}
