#include "zebcstream.h"

#include <memory>

#include "zebgeometry.h"
#include "zebostream.h"

zebCStream::zebCStream() {
  tableFlush();
}

zebCStream::~zebCStream() {
  clearStore(m_identStore);
  clearStore(m_postponeStore);
  close();
}

bool zebCStream::addStream(const zebString& name, bool append) {
  o_stream* file = createOStream(name, append);
  if (!file) return false;
  push_back(file);
  return true;
}

void zebCStream::flush() {
  for (o_stream* file : *this) file->flush();
}

void zebCStream::close() {
  for (o_stream* file : *this) file->finish();
}

void zebCStream::tableFlush() {
  m_numColm = 0;
  for (zebString& cell : m_colm) cell = "";
}

void zebCStream::setColm(int i, const zebString& s) {
  if (i >= 0 && i < columnCount) m_colm[i] = s;
}

bool zebCStream::getColm(int i, zebString& s) const {
  if (i < 0 || i >= columnCount) return false;
  s = m_colm[i];
  return true;
}

void zebCStream::tableOut(int n) {
  int width = n ? n : m_numColm;
  if (width > columnCount) width = columnCount;
  zebString line;
  for (int i = 0; i < width; ++i) {
    if (i > 0) line += ",";
    line += i < m_numColm && !m_colm[i].empty() ? m_colm[i] : zebString("-");
  }
  line += "\n";
  for (o_stream* file : *this) {
    *file << line;
    file->flush();
  }
}

void zebCStream::lineOut(int n) {
  tableOut(n);
  ++m_lineCount;
  if (m_identColm != 0) addStore(m_identStore, m_colm);
  tableFlush();
}

void zebCStream::linePostpone() {
  addStore(m_postponeStore, m_colm);
  tableFlush();
}

void zebCStream::linePostponeOut(int n) {
  zebList<zebString>::iterator it[columnCount];
  resetStoreIterator(m_postponeStore, it);
  while (getStoreNext(m_postponeStore, m_colm, it)) {
    m_numColm = n;
    lineOut(n);
  }
  clearStore(m_postponeStore);
}

void zebCStream::identicalLinesStart(int n) {
  m_identColm = n > columnCount ? columnCount : n;
  clearStore(m_identStore);
}

bool zebCStream::identicalLinesStop() {
  if (m_identColm == 0 || getStoreCount(m_identStore) == 0) return false;
  bool found = identicalLinesCheck();
  m_identColm = 0;
  clearStore(m_identStore);
  return found;
}

static void tellIdenticalLines(int first, int second) {
  g_ostrm << msgWarn << " Performance table warning:\n";
  g_ostrm << " Lines " << first << " & " << second << " have identical parameters\n" << msgEndFlush;
}

bool zebCStream::identicalLinesCheck() {
  int count = getStoreCount(m_identStore);
  // Walking lists cell by cell for each pair would be slow for the long tests.
  auto rows = std::make_unique<zebString[]>(static_cast<size_t>(count) * columnCount);
  zebList<zebString>::iterator it[columnCount];
  resetStoreIterator(m_identStore, it);
  for (int i = 0; i < count; ++i) getStoreNext(m_identStore, &rows[i * columnCount], it);

  int firstNumber = m_lineCount - count + 1;
  for (int i = 0; i < count; ++i) {
    for (int j = i + 1; j < count; ++j) {
      if (!identicalColms(&rows[i * columnCount], &rows[j * columnCount], m_identColm)) continue;
      tellIdenticalLines(firstNumber + i, firstNumber + j);
      return true;
    }
  }
  return false;
}

bool zebCStream::identicalColms(const zebString* a, const zebString* b, int n) {
  for (int i = 0; i < n; ++i) {
    if (!(a[i] == b[i])) return false;
  }
  return true;
}

zebCStream& operator<<(zebCStream& out, const zebString& s) {
  if (s == "\n") {
    out.lineOut(0);
  } else if (out.m_numColm < columnCount) {
    out.setColm(out.m_numColm++, s);
  }
  return out;
}

zebCStream& operator<<(zebCStream& out, const char* value) {
  return tmOutTpl(out, value);
}

zebCStream& operator<<(zebCStream& out, QoriSize value) {
  return tmOutTpl(out, value);
}
