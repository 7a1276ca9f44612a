// How a test was registered, and which of its functions is called for measuring.
#include "zebtest.h"
#include "zebtrace.h"

namespace {

void addName(zebString& list, bool present, const char* name) {
  if (!present) return;
  if (!list.empty()) list += ", ";
  list += name;
}

}  // namespace

zebString zebTest::functionList() {
  zebString list;
  addName(list, m_funcLoop, "loopMethod");
  addName(list, m_funcStat, "statMethod");
  addName(list, m_funcOld, "oldMethod");
  addName(list, m_funcCall, "funcCall");
  return list;
}

zebString zebTest::measuringMethod() {
  if (m_funcOld) return "oldMethod";
  if (m_funcCall && m_tool.m_setUse) return "funcCall with Set&Use";
  if (m_funcCall && !m_funcLoop && !m_funcStat) return "funcCall";
  if (m_tool.m_method == zebTool::methodStatistic) return m_funcStat ? "statMethod" : "loopMethod";
  return m_funcLoop ? "loopMethod" : "statMethod";
}

zebString zebTest::regInfo() {
  zebString text = "   Test has been registered";
  if (!m_info.m_macro.empty()) text << " by " << m_info.m_macro << " macro";
  zebString list = functionList();
  if (list.empty()) {
    return text + " without any function to call.\n No standard timing method is available";
  }
  addName(list, m_funcInit, "funcInit");
  return text << " with " << list << ".\n   " << measuringMethod() << " is called for measuring.";
}

void zebTest::outputRegInfo() {
  if (!g_ostrm.beginMessage(msgPerf)) return;
  g_ostrm << regInfo() << "\n";
  g_ostrm.endMessage();
}

void zebTest::outputConst() {
  g_trace.traceIn("constToOstrm");
  constToOstrm();
  g_trace.traceOut("constToOstrm");
}
