#include "zebtestlist.h"

#include "zebcacheiterator.h"
#include "zebconditions.h"
#include "zebtest.h"

zebString zebTestList::m_startFunc;
zebTest* zebTestList::m_pCurrentTest = nullptr;

void beforeAll() {}
void beforeTest() {}
void afterTest(zebTest*) {}

namespace {

using TestList = zebList<zebTest*>;

bool aless(zebTest* const& a, zebTest* const& b) {
  return a && b && a->compareFunc(b) < 0;
}

// Bin i holds a sorted run of 2 to the i tests or none; the last one takes what is left over.
constexpr int s_binCount = 16;

// Each run in a bin is older than carry, so that equal tests keep their order.
void addRun(TestList* bins, TestList& carry) {
  int i = 0;
  for (; i < s_binCount - 1 && !bins[i].empty(); ++i) {
    bins[i].merge(carry, aless);
    carry.swap(bins[i]);
  }
  bins[i].merge(carry, aless);
}

// The parameter itself, or the one that a cache iterator stands for.
const zebParameter* plainParm(const zebTest* test, const zebParameter* parm) {
  return parm == test->m_pCache ? test->m_pCache->m_parm : parm;
}

bool uses(const zebTest* test, const zebParameter* parm) {
  for (const zebParameter* own : test->m_parms) {
    if (plainParm(test, own) == parm) return true;
  }
  return false;
}

}  // namespace

zebTestList::zebTestList() : m_startTime(time(nullptr)), m_stopTime(m_startTime), m_total(0), m_counts{} {}

void zebTestList::sortFunc() {
  if (size() < 2) return;
  TestList bins[s_binCount];
  while (!empty()) {
    TestList carry;
    carry.takeFront(*this);
    addRun(bins, carry);
  }
  for (int i = 1; i < s_binCount; ++i) bins[i].merge(bins[i - 1], aless);
  swap(bins[s_binCount - 1]);
}

// Once a test contains the name of -F, all later ones run.
bool zebTestList::skipped(zebTest* test, zebConditions& conditions) {
  if (!test->tobeRun(conditions)) return true;
  if (m_startFunc.empty()) return false;
  if (test->m_name.find(m_startFunc) == zebString::npos) return true;
  m_startFunc = "";
  return false;
}

int zebTestList::runTests(zebConditions& conditions) {
  beforeAll();
  for (zebTest* test : *this) {
    if (skipped(test, conditions)) continue;
    m_pCurrentTest = test;
    beforeTest();
    const zebResult r = test->run();
    afterTest(test);
    const bool tookPart = r != resNotRun || test->m_result != resOk;
    if (tookPart) plus(r);
    m_pCurrentTest = nullptr;
  }
  return m_counts[resError] ? 1 : 0;
}

void zebTestList::plus(zebResult r) {
  if (r < 0 || r >= zebResultCount) r = resError;  // a test made it up
  ++m_total;
  ++m_counts[r];
  if (r >= resAccuracyWarning && r < resWarning) ++m_counts[resWarning];
  if (r >= resAccuracyError && r < resError) ++m_counts[resError];
}

void zebTestList::deleteTests() {
  for (zebTest* test : *this) delete test;
  clear();
}

// m_ask serves as the mark of a parameter in use. True if all were marked before this test.
bool zebTestList::markUsed(zebTest* test, zebList<zebParameter*>& parms) {
  bool allUsed = true;
  for (zebParameter* parm : parms) {
    if (parm->m_ask) continue;
    allUsed = false;
    parm->m_ask = uses(test, parm);
  }
  return allUsed;
}

void zebTestList::selectCommonParms(zebConditions& conditions, zebList<zebParameter*>& parms) {
  for (zebParameter* parm : parms) parm->m_ask = false;
  for (zebTest* test : *this) {
    if (!test->tobeRun(conditions)) continue;
    test->startAndStop();
    const bool allUsed = markUsed(test, parms);
    delete test->m_pCache;
    test->m_pCache = nullptr;
    test->m_parms.clear();
    if (allUsed) break;
  }
  zebList<zebParameter*>::iterator at = parms.end();
  while (!(at == parms.begin())) {
    --at;
    if (!(*at)->m_ask) at = parms.erase(at);
  }
}
