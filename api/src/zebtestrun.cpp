// The steps of one run of a test.
#include "zebcacheiterator.h"
#include "zebcstream.h"
#include "zebexception.h"
#include "zebini.h"
#include "zebistream.h"
#include "zebreporttest.h"
#include "zebsession.h"
#include "zebsignal.h"
#include "zebtest.h"
#include "zebtestlevel.h"
#include "zebtrace.h"

OutputLevel OldOutLevel = outErr;

namespace {

template <class F>
void step(const char* name, F f) {
  g_trace.traceIn(name);
  f();
  g_trace.traceOut(name);
}

void tellFailedStart(const zebString& test, const char* text) {
  g_ostrm << msgErr << text << " in startAndStop of " << test << " test\n" << msgEnd;
}

}  // namespace

zebResult zebTest::run() {
  m_result = resOk;
  if (!runGuarded()) return resNotRun;
  finish();
  return m_result;
}

// False when the test took no part. A test that runs out of memory ends alone, as with any exception.
bool zebTest::runGuarded() {
  try {
    bool tookPart = true;
    zebCatchSignals([&] { tookPart = runSteps(); });
    return tookPart;
  } catch (zebException& e) {
    endByException(e.msg());
  } catch (std::exception& e) {
    endByException(zebException(zebString(e.what())).msg());
  }
  return true;
}

void zebTest::endByException(const char* text) {
  m_currentResult = resException;
  g_ostrm.setOutLevel(OldOutLevel);
  g_ostrm << msgErr << text << " in " << g_trace.getCurName() << "\n" << msgEnd;
}

bool zebTest::runSteps() {
  OldOutLevel = g_ostrm.outLevel();
  m_currentResult = resNotRun;
  m_tool = g_tool;
  if (m_name.find("Ibs") != zebString::npos) m_tool.m_initEach = true;
  g_trace.m_indent = "";

  bool section = false;
  step("setIniSection", [&] { section = setIniSection(m_name); });
  if (!section) return false;
  step("beginTest", [&] { beginTest(); });
  OldOutLevel = g_ostrm.outLevel();
  m_startTime = time(nullptr);
  putTestTitle();

  bool start = false;
  step("canStart", [&] { start = canStart(); });
  if (start) {
    runStarted();
  } else {
    g_ostrm << msgErr << "-- Can't start timing\n" << msgEnd;
    m_currentResult = resDataError;
  }
  step("flushStart", [&] { flushStart(); });
  return true;
}

void zebTest::putTestTitle() {
  g_trace.traceIn("testTitle");
  zebReportTestTitle title(this);
  g_trace.traceOut("testTitle");
  step("g_ostrm<<testTitle", [&] {
    g_ostrm << msgErr;
    g_ostrm << title;
    g_ostrm << msgEnd;
  });
  step("g_ustrm<<testTitle", [&] { g_ustrm << title; });
}

void zebTest::runStarted() {
  if (m_cache && !m_pCache) {
    g_ostrm << msgErr << "-- Can't run "
            << "In-Outof-Cache"
            << " timing: no program support for function " << m_name << "\n"
            << msgEnd;
    return;
  }
  step("parmsFromIstrm", [&] { parmsFromIstrm(); });
  putTableName();
  const bool fillsIniFile = g_istrm.m_pIniFile && g_istrm.m_iniWrite;
  if (fillsIniFile || zebSession::m_nameExit) {
    m_currentResult = resOk;
    return;
  }
  outputRegInfo();
  step("loopData", [&] { loopData(); });
}

void zebTest::finish() {
  m_result = m_currentResult;
  m_stopTime = time(nullptr);
  step("testResult", [&] {
    zebReportTestResult result(this);
    g_ostrm << result;
    g_ustrm << result;
    g_ostrm.flush();
    g_cstrm.flush();
    g_ustrm.flush();
  });
  step("endTest", [&] { endTest(); });
}

bool zebTest::setIniSection(const zebString& name) {
  if (g_istrm.m_pIniFile) {
    if (m_pressing && !g_istrm.m_pIniFile->sectionExist(name)) return false;
    if (g_istrm.m_iniWrite) g_istrm.m_pIniFile->write(name);
  }
  g_istrm.setIniSection(name);
  return true;
}

void zebTest::startAndStop() {
  const OutputLevel level = g_ostrm.outLevel();
  g_ostrm.setOutLevel(outErr);
  try {
    zebCatchSignals([&] {
      beginTest();
      canStart();
      flushStart();
      endTest();
    });
  } catch (zebException& e) {
    tellFailedStart(m_name, e.msg());
  } catch (std::exception& e) {
    tellFailedStart(m_name, zebException(zebString(e.what())).msg());
  }
  g_ostrm.setOutLevel(level);
}
