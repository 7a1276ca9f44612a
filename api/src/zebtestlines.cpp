// The figures and lines that a measurement leaves behind.
#include "zebcacheiterator.h"
#include "zebcstream.h"
#include "zebsession.h"
#include "zebsformat.h"
#include "zebtest.h"
#include "zebticker.h"
#include "zebtrace.h"

void zebTest::outputResult(zebResult r) {
  if (r == resNotRun) return;
  putTextError(r);
  putTextResult(r);
  if (zebIsError(r)) return;
  putTableResult(r);
  putTableResult_Deprecated(r);
}

void zebTest::putTextError(zebResult r) {
  if (r <= resOk) return;
  g_ostrm << (zebIsError(r) ? msgErr : msgWarn) << "-- " << zebResultString(r) << " on test parameters:\n";
  putTextParms();
  g_ostrm << msgEnd;
}

void zebTest::putTextResult(zebResult r) {
  if (r == resNotRun || zebIsError(r)) return;
  if (!g_ostrm.beginMessage(r == resOk ? msgPerf : msgWarn)) return;
  if (r > resOk) g_ostrm << "-- performance:\n";
  g_ostrm << testResultString() << "\n";
  g_ostrm.endMessage();
}

void zebTest::putTextParms() {
  putTextParms(g_ostrm.msgLevel());
}

void zebTest::putTextParms(MessageLevel level) {
  if (!g_ostrm.beginMessage(level)) return;
  if (m_pCache) g_ostrm << m_pCache->getComment() << ":";
  g_trace.traceIn("parmsToOstrm");
  parmsToOstrm();
  g_trace.traceOut("parmsToOstrm");
  g_ostrm << "\n";
  g_ostrm.endMessage();
}

double zebTest::performance(bool flops) {
  if (!flops) return m_tool.m_funcTicks / getDivisor();
  return isFloatFunction() ? getFlops() * zebCpuTicker::getFreq() / m_tool.m_funcTicks : 0;
}

zebString zebTest::perfString(bool flops) {
  return formatClocks(performance(flops));
}

zebString zebTest::formatClocks(double x) {
  if (!(x > 0)) return "";
  char text[64];
  if (x < 0.0001 || x > 1e7) {
    snprintf(text, sizeof text, "%.3e", x);
    return text;
  }
  int decimals = 0;
  for (double limit = 100; decimals < 6 && x < limit; limit /= 10) ++decimals;
  snprintf(text, sizeof text, "%.*f", decimals, x);
  return text;
}

zebString zebTest::testResultString() {
  zebString line;
  if (m_tool.m_method == zebTool::methodAuto || m_tool.m_method == zebTool::methodIterative) {
    line << "  acc=" << sFormat(zebTool::getAccuracyStr(m_tool.m_accuracy), -5);
  }
  line << "  " << sFormat(m_tool.m_comment, -10);
  line << "  perf=" << sFormat(m_tool.m_funcTicks, 9) << "/" << sFormat(getDivisor(), 9) << "="
       << sFormat(perfString(false), 9) << " clocks";
  return line;
}

zebString zebTest::getComment() {
  if (m_deprecated) return "deprecated";
  return (m_pCache ? m_pCache->getComment() + " " : zebString()) + m_tool.m_comment;
}

void zebTest::setTimingResult(double clocks, const zebString& comment) {
  m_tool.setFuncTicks(clocks);
  m_tool.m_comment = comment;
}

void zebTest::putTableParms() {
  g_trace.traceIn("funcToCstrm");
  funcToCstrm();
  g_trace.traceOut("funcToCstrm");
  g_trace.traceIn("parmsToCstrm");
  parmsToCstrm();
  g_trace.traceOut("parmsToCstrm");
  g_cstrm.m_numColm = m_numParmsColm;
}

void zebTest::resultToCstrm(zebResult) {
  g_cstrm << getComment() << perfString(false) << getUnit() << usecString(m_tool) << perfString(true)
          << (isHotLine() ? "Hot" : "");
}

void zebTest::putTableCells(zebResult r) {
  putTableParms();
  g_trace.traceIn("resultToCstrm");
  resultToCstrm(r);
  g_trace.traceOut("resultToCstrm");
}

void zebTest::putTableResult(zebResult r) {
  putTableCells(r);
  g_cstrm.lineOut(m_numResultColm + m_numParmsColm);
}

void zebTest::putTableResult_Deprecated(zebResult r) {
  if (setDeprecatedFlag(true)) {
    putTableCells(r);
    g_cstrm.linePostpone();
  }
  setDeprecatedFlag(false);
}

bool zebTest::setDeprecatedFlag(bool flag) {
  m_deprecated = flag;
  bool any = false;
  for (zebParameter* parm : m_parms) {
    if (!flag) {
      parm->setDeprecatedFlag(false);
    } else if (parm->isDeprecatedParm()) {
      if (!parm->setDeprecatedFlag(true)) return false;
      any = true;
    }
  }
  return any;
}

void zebTest::putTableName() {
  if (zebSession::m_nameMode & 1) putTableNameLine();
  if (!(zebSession::m_nameMode & 2)) return;
  g_cstrm.swap(g_qstrm);
  putTableNameLine();
  g_cstrm.swap(g_qstrm);
}

void zebTest::putTableNameLine() {
  g_trace.traceIn("funcToCstrm");
  funcToCstrm();
  g_trace.traceOut("funcToCstrm");
  g_trace.traceIn("parmsNameToCstrm");
  parmsNameToCstrm();
  g_trace.traceOut("parmsNameToCstrm");
  g_cstrm.m_numColm = m_numParmsColm;
  g_cstrm << "parmNames";
  g_cstrm.lineOut(m_numResultColm + m_numParmsColm);
}
