#include "zebreporttest.h"

#include "zebpaths.h"
#include "zebreportformat.h"
#include "zebtest.h"

void zebReportTestTitle::addTriple(const zebString& name, const zebString& text, const zebString& rightText) {
  push_back(name);
  push_back(text);
  push_back(rightText);
}

zebReportTestTitle::zebReportTestTitle(const zebTest* test) {
  addTriple("Function", test->m_name, zebTimeText(test->m_startTime));
  if (g_ostrm.outLevel() < 2) return;
  addTriple("Test", test->m_info.m_testName, "");
  addTriple("Source", test->m_fileName, "");
  if (!test->m_info.m_description.empty()) addTriple("Description", test->m_info.m_description, "");
}

// Blocks have their rules only in listings that show more than the blocks.
static bool hasRules(const zebOStream& out) {
  return out.outLevel() > 2;
}

zebOStream& operator<<(zebOStream& out, const zebReportTestTitle& report) {
  zebReportFormat format(1, 12, 14);
  bool rules = hasRules(out);
  if (rules) out << format.firstLine();
  for (auto it = report.begin(); !(it == report.end());) {
    zebString name = *it++;
    zebString text = *it++;
    out << format.getLine(name, ":", text, *it++, "", "");
    if (!rules) break;
  }
  if (rules) out << format.lastLine();
  out.flush();
  return out;
}

zebCStream& operator<<(zebCStream& out, const zebReportTestTitle& report) {
  zebString function = *++report.begin();
  out << function << (function.find("__zeb") == 0 ? "Information" : "Timing");
  out.flush();
  return out;
}

static zebString secondsOf(const zebTest* test) {
  zebString text;
  text << static_cast<int>(difftime(test->m_stopTime, test->m_startTime));
  return text;
}

static zebString mark(bool bad) {
  return bad ? "?" : "-";
}

zebReportTestResult::zebReportTestResult(const zebTest* test) {
  if (!test) {
    m_table =
        "Function,Class,Control87,Status87,ControlSSX,StatusSSX,Test,Time (sec.),SrcName,Result,ExeName";
    return;
  }
  m_result = zebResultName(test->m_result);
  m_function = test->m_name;
  m_time = zebTimeText(test->m_stopTime);
  const zebString cells[] = {"-",
                             mark(test->m_bad87),
                             "-",
                             mark(test->m_badSSX),
                             test->m_info.m_testName,
                             secondsOf(test),
                             test->m_fileName,
                             m_result};
  for (const zebString& cell : cells) m_table += cell + ",";
  m_table += zebPaths::m_exePath.getFileName();
}

zebOStream& operator<<(zebOStream& out, const zebReportTestResult& report) {
  zebReportFormat format(1, 14, rightAligned);
  bool rules = hasRules(out);
  out << msgErr;
  if (rules) out << format.firstLine();
  out << format.getLine("-" + report.m_result, report.m_function, report.m_time, "", "", "");
  if (rules) out << format.lastLine();
  return out << msgEndFlush;
}

zebCStream& operator<<(zebCStream& out, const zebReportTestResult& report) {
  if (report.m_table.empty()) return out;
  out << report.m_table;
  out.lineOut(0);
  return out;
}
