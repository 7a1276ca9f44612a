// zebreporttitle.h: on what machine, with which library and when does the run take place?
#ifndef ZEBREPORTTITLE_H
#define ZEBREPORTTITLE_H

#include "zebcstream.h"
#include "zebostream.h"
#include "zebtestlist.h"

// Pairs of name and value. Making one may measure the processor's frequency.
class zebReportTitle : public zebList<zebString> {
 public:
  explicit zebReportTitle(const zebTestList& list);
};

zebOStream& operator<<(zebOStream& out, const zebReportTitle& report);  // a framed block
zebCStream& operator<<(zebCStream& out, const zebReportTitle& report);  // a line per pair

#endif
