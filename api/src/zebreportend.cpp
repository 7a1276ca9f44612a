#include "zebreportend.h"

#include "zebreportformat.h"

void zebReportEnd::addPair(const zebString& name, const zebString& value) {
  push_back(name);
  push_back(value);
}

void zebReportEnd::addCount(const zebString& name, int count) {
  zebString value;
  value << count;
  addPair(name, value);
}

zebReportEnd::zebReportEnd(const zebTestList& list) {
  const int* c = list.m_counts;
  int warnings = c[resAccuracyWarning] + c[resDataWarning] + c[resLibWarning];
  int badStates = c[resCtrlStatus];
  int fails = c[resAccuracyError] + c[resDataError] + c[resLibError];
  int exceptions = c[resException];
  int failures = fails + exceptions + warnings + badStates;
  addCount(".Number of tests", list.m_total);
  addCount(".Successes      ", c[resOk]);
  addCount(".Failures       ", failures);
  addCount("...Fails        ", fails + exceptions);
  addCount(".....-FAIL      ", fails);
  addCount(".....-EXCPTFAIL ", exceptions);
  addCount("...Warnings     ", warnings + badStates);
  addCount(".....-WARNING   ", warnings);
  addCount(".....-BADSTSWRN ", badStates);
  addCount("...Undefined    ", list.m_total - c[resOk] - failures);
  int seconds = static_cast<int>(difftime(list.m_stopTime, list.m_startTime));
  addPair(".Total time     ", zebReportFormat::getTimeStr(seconds));
}

zebOStream& operator<<(zebOStream& out, const zebReportEnd& report) {
  zebReportFormat format(1, 33, 34);
  out << msgErr << format.firstLine();
  out << format.getLine("ZEB Summary", "", "", "", "", "");
  for (auto it = report.begin(); !(it == report.end());) {
    zebString name = *it++;
    out << format.getLine(name + " : " + *it++, "", "", "", "", "");
  }
  return out << format.lastLine() << msgEndFlush;
}

zebCStream& operator<<(zebCStream& out, const zebReportEnd& report) {
  out << "END_DATA";
  out.lineOut(0);
  for (auto it = report.begin(); !(it == report.end());) {
    out << *it++;
    out << *it++;
    out.lineOut(0);
  }
  return out;
}
