#include "zebsformat.h"

#include <climits>
#include <cstdlib>

#include "zebticker.h"
#include "zebtool.h"

zebString sFormat(const zebString& s, int width) {
  const int missing = abs(width) - s.length();
  if (missing <= 0) return s;
  zebString blanks;
  blanks.resize(missing, ' ');
  return width < 0 ? s + blanks : blanks + s;
}

zebString sFormat(double value, int width) {
  zebString text;
  return sFormat(text << value, width);
}

zebString sFormat(int value, int width) {
  zebString text;
  text << value;
  const bool tooLong = text.length() > abs(width) && text.length() > 9;
  return tooLong ? sFormat(static_cast<double>(value), width) : sFormat(text, width);
}

zebString sFormat(long long value, int width) {
  if (value >= INT_MIN && value <= INT_MAX) return sFormat(static_cast<int>(value), width);
  return sFormat(static_cast<double>(value), width);
}

zebString usecString(const zebTool& tool) {
  zebString text;
  return text << tool.m_funcTicks / zebCpuTicker::getFreq();
}
