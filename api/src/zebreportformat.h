// zebreportformat.h: what does a line of a block report look like?
//
// A framed line has "|" in columns 0 and 78 and up to six items between them.
// A line that overruns isn't cut: it loses its right border. Columns count
// from 0.
#ifndef ZEBREPORTFORMAT_H
#define ZEBREPORTFORMAT_H

#include <ctime>

#include "zebstring.h"

// The position of an item whose last character stands next to the right border.
constexpr int rightAligned = -79;

struct zebReportFormat {
  // Where the items go: the column where an item starts, or, below 0, -p for
  // an item whose last character stands in column p - 2.
  zebReportFormat(int p1, int p2, int p3, int p4 = rightAligned, int p5 = rightAligned,
                  int p6 = rightAligned);

  zebString firstLine();  // the rule above a block; frames the lines that follow
  zebString lastLine();   // the rule below it
  zebString sepLine() const;
  zebString getLine(const zebString& i1, const zebString& i2, const zebString& i3, const zebString& i4,
                    const zebString& i5, const zebString& i6) const;
  static zebString getTimeStr(int seconds);  // "01:02:05"; hours may take three digits

  // Build a line step by step; each works on the last line of a text.
  void setStartLine(zebString& line) const;
  void setEndLine(zebString& line) const;
  static bool setOffsetLine(zebString& line, int pos);  // false when the line is already longer
  static int getLastLen(const zebString& text);
  static void setItem(zebString& line, const zebString& item, int pos);
  static void setItemLeft(zebString& line, const zebString& item, int pos);

  bool m_frame;
  int m_pos[6];
};

zebString cutoffNL(const zebString& s);  // the text before the first line feed
zebString zebTimeText(time_t t);         // ctime's text without its line feed

#endif
