#include "zebtest.h"

#include "zebcacheiterator.h"
#include "zebconditions.h"
#include "zebcstream.h"
#include "zebctrlstatus.h"
#include "zebistream.h"
#include "zebmemory.h"
#include "zebregister.h"
#include "zebstepiterator.h"

zebResult zebTest::m_currentResult = resNotRun;
int zebTest::m_numParmsColm = 0;
int zebTest::m_numResultColm = 0;
int zebTest::m_hot = 0;
bool zebTest::m_pressing = false;
bool zebTest::m_cache = false;
int zebTest::m_vectorNum = 0;
int zebTest::m_vectorShift = 0;

zebTest::zebTest(TestFuncOld old, const zebString& name, const zebString& file, const zebString& info)
    : m_funcLoop(nullptr), m_funcStat(nullptr), m_funcCall(nullptr), m_funcInit(nullptr), m_funcOld(old) {
  construct(name, file, info);
}

zebTest::zebTest(TestFuncLoop loop, TestFuncStat stat, const zebString& name, const zebString& file,
                 const zebString& info)
    : m_funcLoop(loop), m_funcStat(stat), m_funcCall(nullptr), m_funcInit(nullptr), m_funcOld(nullptr) {
  construct(name, file, info);
}

zebTest::zebTest(TestFuncCall call, TestFuncCall init, TestFuncLoop loop, TestFuncStat stat,
                 const zebString& name, const zebString& file, const zebString& info)
    : m_funcLoop(loop), m_funcStat(stat), m_funcCall(call), m_funcInit(init), m_funcOld(nullptr) {
  construct(name, file, info);
}

void zebTest::construct(const zebString& name, const zebString& file, const zebString& info) {
  m_startTime = m_stopTime = time(nullptr);
  m_name = name;
  m_fileName = file.getFileName();
  m_info = zebTestInfo(info);
  m_result = resNotRun;
  zebTest::initSettings();
}

zebTest::~zebTest() {
  delete m_pCache;
}

void zebTest::initSettings() {
  m_currentResult = resNotRun;
  m_first = true;
  m_bad87 = m_badSSX = m_deprecated = m_cacheRepeat = false;
  delete m_pCache;
  m_pCache = nullptr;
  m_parms.clear();
}

bool zebTest::tobeRun(zebConditions& conditions) {
  if (!conditions.tobeRun(this)) return false;
  return m_hot != 2 || zebTest::isHotLine();
}

int zebTest::compareFunc(const zebTest* other) const {
  return m_name.compare(other->m_name);
}

bool zebTest::isHotLine() {
  if (!g_pHotList) return false;
  for (const zebString& name : *g_pHotList) {
    if (name == m_name) return true;
  }
  return false;
}

bool zebTest::canStart() {
  return true;
}
void zebTest::flushStart() {}
bool zebTest::initData() {
  return true;
}
void zebTest::flushData() {}
void zebTest::beginTest() {
  initSettings();
}
void zebTest::endTest() {}
void zebTest::constToOstrm() {}
int zebTest::printAllMemoryBlocks(const zebString&) {
  return 0;
}

double zebTest::getFlops() {
  return -1.0;
}
double zebTest::getDivisor() {
  return 1.0;
}
zebString zebTest::getUnit() {
  return " ";
}
bool zebTest::isFloatFunction() {
  return getFlops() > 0;
}

zebResult zebTest::runTiming() {
  if (m_funcLoop || m_funcStat || m_funcCall) {
    return m_tool.timing(m_funcLoop, m_funcStat, m_funcCall, m_funcInit);
  }
  return m_funcOld ? m_tool.timing(m_funcOld) : resNotRun;
}

void zebTest::funcToCstrm() {
  g_cstrm << m_name;
}

void zebTest::parmsFromIstrm() {
  for (zebParameter* parm : m_parms) parm->fromIStream(g_istrm);
}

void zebTest::parmsToOstrm() {
  for (zebParameter* parm : m_parms) parm->toOStream(g_ostrm);
}

void zebTest::parmsToCstrm() {
  for (zebParameter* parm : m_parms) parm->toCStream(g_cstrm);
}

void zebTest::parmsNameToCstrm() {
  for (zebParameter* parm : m_parms) parm->nameToCStream(g_cstrm);
}

void zebTest::regCacheParm(zebIterator<int>& parm, zebObject* data, CacheSetter setParm) {
  regSizeParm(parm, data, setParm);
}

void zebTest::regCacheParm(zebStepIterator<int>& parm, zebObject* data, CacheSetter setParm) {
  regSizeParm(parm, data, setParm);
}

int zebTest::reserveAllVectors() {
  return zebReserveAllVectors();
}
int zebTest::resetAllVectors() {
  return zebResetAllVectors();
}

void zebTest::initCtrlStatus() {
  zebInitCtrlStatus();
}
bool zebTest::badCtrlStatus(bool& bad87, bool& badSSX) {
  return zebBadCtrlStatus(bad87, badSSX);
}
void zebTest::clearCtrlStatus() {
  zebClearCtrlStatus();
}
void zebTest::printCtrlStatus(bool bad87, bool badSSX) {
  zebPrintCtrlStatus(bad87, badSSX);
}

void zebTest::raiseResult(zebResult r) {
  if (r > m_currentResult) m_currentResult = r;
}

void zebTest::foldResult(zebResult r) {
  const bool hidden = zebIsWarning(r) && static_cast<int>(g_ostrm.outLevel()) < 2;
  raiseResult(hidden ? resOk : r);
}
