#include "zebreportformat.h"

#include <cstdio>

static const int borderColumn = 78;

zebReportFormat::zebReportFormat(int p1, int p2, int p3, int p4, int p5, int p6)
    : m_frame(true), m_pos{p1, p2, p3, p4, p5, p6} {}

zebString zebReportFormat::firstLine() {
  m_frame = true;
  return sepLine();
}

zebString zebReportFormat::lastLine() {
  m_frame = false;
  return sepLine();
}

zebString zebReportFormat::sepLine() const {
  zebString line("+");
  line.resize(borderColumn, '-');
  return line + "+\n";
}

zebString zebReportFormat::getLine(const zebString& i1, const zebString& i2, const zebString& i3,
                                   const zebString& i4, const zebString& i5, const zebString& i6) const {
  const zebString* items[6] = {&i1, &i2, &i3, &i4, &i5, &i6};
  zebString line;
  setStartLine(line);
  for (int i = 0; i < 6; ++i) setItem(line, *items[i], m_pos[i]);
  setEndLine(line);
  return line;
}

zebString zebReportFormat::getTimeStr(int seconds) {
  char text[40];
  snprintf(text, sizeof text, "%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
  return text;
}

void zebReportFormat::setStartLine(zebString& line) const {
  line += m_frame ? "|" : " ";
}

void zebReportFormat::setEndLine(zebString& line) const {
  if (m_frame && setOffsetLine(line, borderColumn)) line += "|";
  line += "\n";
}

bool zebReportFormat::setOffsetLine(zebString& line, int pos) {
  int missing = pos - getLastLen(line);
  if (missing < 0) return false;
  line.resize(line.length() + missing, ' ');
  return true;
}

int zebReportFormat::getLastLen(const zebString& text) {
  return text.length() - (text.rfind("\n") + 1);
}

void zebReportFormat::setItem(zebString& line, const zebString& item, int pos) {
  if (item.empty()) return;
  int start = pos < 0 ? -pos - 1 - item.length() : pos;
  if (start < 0) return;
  // An item that touches or collides with the one before is set off by a blank.
  if (getLastLen(line) >= start) line += " ";
  setItemLeft(line, item, start);
}

void zebReportFormat::setItemLeft(zebString& line, const zebString& item, int pos) {
  setOffsetLine(line, pos);
  line += item;
}

zebString cutoffNL(const zebString& s) {
  int end = s.find("\n");
  return end == zebString::npos ? s : s.substr(0, end);
}

zebString zebTimeText(time_t t) {
  return cutoffNL(ctime(&t));
}
