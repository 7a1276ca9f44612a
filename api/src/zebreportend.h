// zebreportend.h: how did the tests of the run end, and how long did it take?
#ifndef ZEBREPORTEND_H
#define ZEBREPORTEND_H

#include "zebcstream.h"
#include "zebostream.h"
#include "zebtestlist.h"

// Pairs of name and value.
class zebReportEnd : public zebList<zebString> {
 public:
  explicit zebReportEnd(const zebTestList& list);

 private:
  void addPair(const zebString& name, const zebString& value);
  void addCount(const zebString& name, int count);
};

zebOStream& operator<<(zebOStream& out, const zebReportEnd& report);  // a framed block
zebCStream& operator<<(zebCStream& out, const zebReportEnd& report);  // "END_DATA" and a line per pair

#endif
