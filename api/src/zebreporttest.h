// zebreporttest.h: which test begins, and how did it end?
//
// Title and result go to the listing as blocks; to the summary table they go
// as the two halves of one line.
#ifndef ZEBREPORTTEST_H
#define ZEBREPORTTEST_H

#include "zebcstream.h"
#include "zebostream.h"

class zebTest;

// Triples of name, text and right-hand text; more than the first only if
// g_ostrm shows more than errors at that moment.
class zebReportTestTitle : public zebList<zebString> {
 public:
  explicit zebReportTestTitle(const zebTest* test);

 private:
  void addTriple(const zebString& name, const zebString& text, const zebString& rightText);
};

// At the present message level.
zebOStream& operator<<(zebOStream& out, const zebReportTestTitle& report);
// Two cells; the result ends the line.
zebCStream& operator<<(zebCStream& out, const zebReportTestTitle& report);

struct zebReportTestResult {
  // A null test gives the title line of the summary table.
  explicit zebReportTestResult(const zebTest* test);

  zebString m_result;  // name of the result
  zebString m_function;
  zebString m_time;   // end of the test
  zebString m_table;  // cells of the summary table, joined by commas
};

zebOStream& operator<<(zebOStream& out, const zebReportTestResult& report);
zebCStream& operator<<(zebCStream& out, const zebReportTestResult& report);

#endif
