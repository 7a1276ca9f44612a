#include "zebsession.h"

#include "zebbrelkcpu.h"
#include "zebcstream.h"
#include "zebistream.h"
#include "zebmemory.h"
#include "zeboption.h"
#include "zebreportend.h"
#include "zebreportformat.h"
#include "zebreportlist.h"
#include "zebreporttest.h"
#include "zebreporttitle.h"
#include "zebtestlist.h"

int zebSession::m_nameMode = 0;
bool zebSession::m_nameExit = false;
int zebSession::m_exitLevel = exitNone;

bool s_version = false;
char s_hintArg = 0;
bool s_hintHide = true;

zebSession::zebSession()
    : m_pConditions(nullptr),
      m_askMode(0),
      m_batch(false),
      m_levelMode(outErr),
      m_quickMode(false),
      m_enumMode(noEnumeration),
      m_unopenedFile(false),
      m_iniWrite(false) {}

zebSession::~zebSession() {
  delete m_pConditions;
  for (zebOption* option : m_options) delete option;
}

void zebSession::setIniMode(const zebString& name, bool write) {
  m_iniName = name;
  m_iniWrite = write;
}

namespace {

void registerProcessorTest() {
  zebRegTest(
      new __zebBrelkCpuTest("__zebBrelkCpu", "api/src/zeb", "__zebBrelkCpuTest/Brelk CPU information"));
}

// Written straight to standard output: the line isn't meant for listings.
void sortVisibly() {
  c_out << "Sorting functions...";
  c_out.flush();
  pTestList->sortFunc();
  c_out << "\n";
}

}  // namespace

int zebSession::run(int argc, char** argv) {
  g_ostrm.setMsgLevel(msgPerf);
  g_ostrm.push_back(&c_out);
  setQorEnvironment();
  initSession();
  registerProcessorTest();
  pTestList->m_startTime = time(nullptr);

  int status = 0;
  bool header = false;
  if (parseCommandLine(argc, argv) && startSession() && !quickOutput()) {
    prepareRun();
    header = true;
    status = pTestList->runTests(*m_pConditions);
  }
  pTestList->m_stopTime = time(nullptr);
  if (header) outputFooter();
  outputSignal();
  deleteTestList();
  return status;
}

void zebSession::prepareRun() {
  if (qorEnvironment) {
    initStaticCpu();
    setNumThreads();
    setQorEnvironment();
  }
  setQorLibInfo();
  if (!m_quickMode) sortVisibly();
  outputHeader();
  if (s_parmFunc) s_parmFunc();
  selectTestParameters();
  beginCommonData();
  readCommonData();
  endCommonData();
  if (!g_pHotList) g_pHotList = new zebStringList;
  putTableTitle();
}

bool zebSession::startSession() {
  return true;
}

bool zebSession::quickOutput() {
  if (s_version || s_hintArg) {
    g_ostrm << "\nBrelk(R) Qor. Zeb " << ZEB_version << ", " << ZEB_buildDate << "\n";
  }
  if (s_hintArg) {
    hint(s_hintArg, s_hintHide);
    return true;
  }
  if (m_enumMode > 1) return s_version;
  if (m_enumMode == 0 && !m_quickMode) pTestList->sortFunc();
  listTests(m_enumMode);
  return true;
}

void zebSession::listTests(int mode) {
  zebReportTitle title(*pTestList);
  g_ostrm << title;
  g_cstrm << title;
  zebReportList list(*pTestList, *m_pConditions, mode);
  g_ostrm << list;
  g_cstrm << list;
}

// Tests are started here, not run, so nothing may ask or read keys meanwhile.
void zebSession::selectTestParameters() {
  if (!g_pParmList || g_pParmList->empty()) return;
  const bool batch = m_batch;
  const int ask = m_askMode;
  m_batch = true;
  m_askMode = 0;
  pTestList->selectCommonParms(*m_pConditions, *g_pParmList);
  m_batch = batch;
  m_askMode = ask;
}

void zebSession::beginCommonData() {
  g_ostrm.setOutLevel(outPerf);
}

void zebSession::endCommonData() {
  g_ostrm.setOutLevel(m_levelMode);
  if (!(m_askMode & askTests)) g_istrm.setIStream(nullptr);
}

void zebSession::outputHeader() {
  zebReportTitle title(*pTestList);
  g_ostrm << title;
  g_cstrm << title;
  g_qstrm << title;
  g_ustrm << title;
  zebReportTestResult summaryTitle(nullptr);
  g_ustrm << summaryTitle;
}

void zebSession::outputFooter() {
  zebReportEnd end(*pTestList);
  g_ostrm << end;
  g_ustrm << end;
}

void zebSession::outputSignal() {
  if (m_sglName.empty()) return;
  o_stream file(m_sglName, streamWrite | streamFullName, true);
  const int seconds = static_cast<int>(difftime(pTestList->m_stopTime, pTestList->m_startTime));
  file << zebReportFormat::getTimeStr(seconds) + "\n";
  file << ctime(&pTestList->m_stopTime) << "\n";
  file.finish();
}

void zebSession::deleteTestList() {
  pTestList->deleteTests();
  delete pTestList;
  pTestList = nullptr;
}
