// The loop of a test over all combinations of its parameter values.
#include "zebcacheiterator.h"
#include "zebcstream.h"
#include "zebctrlstatus.h"
#include "zebtest.h"
#include "zebtestlevel.h"
#include "zebtrace.h"

namespace {

void error(const zebString& text) {
  g_ostrm << msgErr << text << msgEnd;
}

}  // namespace

void zebTest::regSizeParm(zebParameter& parm, zebObject* data, CacheSetter setParm) {
  if (!m_cache || m_pCache) {
    m_parms.push_back(&parm);
    return;
  }
  m_pCache = new zebCacheIteratorInt(parm, data, setParm);
  m_parms.push_back(m_pCache);
}

void zebTest::loopData() {
  m_first = true;
  bool constantsDone = false;
  g_cstrm.identicalLinesStart(m_numParmsColm);
  do {
    if (!nextCombination()) break;
    passData(constantsDone);
  } while (!zebIsError(m_currentResult));
  endLoop();
}

// False when there is no further combination.
bool zebTest::nextCombination() {
  m_vectorNum = m_vectorShift = 0;
  g_trace.traceIn("canContinue");
  const bool more = canContinue();
  g_trace.traceOut("canContinue");
  if (!more && m_first) {
    error("-- One of argument list for timing is empty\n");
    raiseResult(resDataError);
  }
  if (more) m_first = false;
  return more;
}

void zebTest::passData(bool& constantsDone) {
  g_trace.traceIn("initData");
  const bool ready = initData();
  g_trace.traceOut("initData");
  if (ready) {
    if (!constantsDone) outputConst();
    constantsDone = true;
    if (m_pCache && !m_pCache->validateSize()) {
      m_cacheRepeat = true;
    } else {
      measureCombination();
    }
  }
  g_trace.traceIn("flushData");
  flushData();
  g_trace.traceOut("flushData");
}

void zebTest::measureCombination() {
  putTextParms(msgPerf);
  if (m_tool.m_setUse) {
    g_trace.traceIn("reserveAllVectors");
    reserveAllVectors();
    g_trace.traceOut("reserveAllVectors");
  }
  if (m_hot == 2 && !isHotLine()) {
    g_ostrm << "  measuring is omitted: not hot line\n";
    return;
  }
  zebResult r = timeCombination();
  if (r == resNotRun) {
    error("-- Internal test problem: runTiming() function returns undefined result\n");
    raiseResult(resError);
  }
  const zebResult c = checkCtrlStatus();
  if (c > r) r = c;
  foldResult(r);
  outputResult(r);
}

zebResult zebTest::timeCombination() {
  printAllMemoryBlocks("before function calls");
  OldOutLevel = g_ostrm.outLevel();
  initCtrlStatus();
  if (OldOutLevel == outWarn) g_ostrm.setOutLevel(outPerf);
  g_trace.traceIn("runTiming");
  const zebResult r = runTiming();
  g_trace.traceOut("runTiming");
  g_ostrm.setOutLevel(OldOutLevel);
  if (r != resNotRun) printAllMemoryBlocks("after function calls");
  return r;
}

zebResult zebTest::checkCtrlStatus() {
  bool bad87 = false;
  bool badSSX = false;
  const bool bad = badCtrlStatus(bad87, badSSX);
  if (bad) {
    m_bad87 = m_bad87 || bad87;
    m_badSSX = m_badSSX || badSSX;
    printCtrlStatus(bad87, badSSX);
  }
  clearCtrlStatus();
  return bad ? resCtrlStatus : resNotRun;
}

void zebTest::endLoop() {
  if (m_currentResult == resNotRun) {
    error("-- Error while initialization of function data\n");
    raiseResult(resDataError);
  }
  g_cstrm.linePostponeOut(m_numResultColm + m_numParmsColm);
  if (g_cstrm.identicalLinesStop()) {
    g_ostrm << msgWarn << "-- Warning: duplicate lines in performance table (csv-file)\n" << msgEnd;
    foldResult(resDataWarning);
  }
}

bool zebTest::canContinue() {
  if (m_parms.empty()) return m_first;
  if (m_pCache && m_cacheRepeat) return repeatCacheValue();
  return m_first ? firstValues() : stepParms();
}

bool zebTest::repeatCacheValue() {
  m_cacheRepeat = false;
  if (m_pCache->repeatValue()) return true;
  g_ostrm << msgErr;
  m_pCache->outputInfo();
  putTextParms();
  g_ostrm << "-- Fail to allocate " << m_pCache->getComment() << " data\n" << msgEnd;
  raiseResult(resDataError);
  return false;
}

bool zebTest::firstValues() {
  for (zebParameter* parm : m_parms) {
    if (!parm->firstValue()) return false;
  }
  return true;
}

// Like an odometer: the last parameter turns fastest.
bool zebTest::stepParms() {
  zebList<zebParameter*>::iterator parm = m_parms.end();
  while (!(parm == m_parms.begin())) {
    --parm;
    if ((*parm)->nextValue()) return true;
    (*parm)->firstValue();
  }
  return false;
}
