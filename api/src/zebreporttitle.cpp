#include "zebreporttitle.h"

#include "zebcpuinfo.h"
#include "zebhost.h"
#include "zebregister.h"
#include "zebreportformat.h"

static void addPair(zebList<zebString>& list, const zebString& name, const zebString& value) {
  list.push_back(name);
  list.push_back(value);
}

zebReportTitle::zebReportTitle(const zebTestList& list) {
  addPair(*this, "CPU", cpuInfo());
  addPair(*this, "OS", os.text());
  addPair(*this, "Computer", host.text());
  if (g_pLibInfoList) {
    for (const zebString& info : *g_pLibInfoList) addPair(*this, "Library", info);
  }
  addPair(*this, "Start", zebTimeText(list.m_startTime));
}

zebOStream& operator<<(zebOStream& out, const zebReportTitle& report) {
  zebReportFormat format(1, 11, 13);
  out << msgErr << format.firstLine();
  auto it = report.begin();
  while (!(it == report.end()) && !(*it == "Start")) {
    zebString name = *it++;
    out << format.getLine(name, ":", *it++, "", "", "");
  }
  if (!(it == report.end())) {
    out << format.getLine("Test", ":", "Timing", "", "", "");
    out << format.getLine("", "", "", *++it, "", "");
  }
  return out << format.lastLine() << msgEndFlush;
}

zebCStream& operator<<(zebCStream& out, const zebReportTitle& report) {
  for (auto it = report.begin(); !(it == report.end());) {
    out << *it++;
    out << *it++;
    out.lineOut(0);
  }
  return out;
}
