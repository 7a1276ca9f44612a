#include "zebregister.h"

#include "zebhooks.h"
#include "zebtestlist.h"

// Plain pointers: these hold their start values before any static initialiser runs.
zebTestList* pTestList = nullptr;
zebList<zebParameter*>* g_pParmList = nullptr;
zebStringList* g_pHotList = nullptr;
zebStringList* g_pLibInfoList = nullptr;
zebStringList* g_pLibFuncList = nullptr;
zebList<QorVersionFunc>* qorVersionList = nullptr;
void (*s_parmFunc)() = nullptr;
void (*initTimingMethod)(zebTool&) = nullptr;
zebSession* pSession = nullptr;

namespace {

zebString* s_commandLine = nullptr;

template <class L>
L& onDemand(L*& list) {
  if (!list) list = new L;
  return *list;
}

}  // namespace

bool zebRegTest(zebTest* test) {
  onDemand(pTestList).push_back(test);
  return true;
}

bool zebRegParm(zebParameter& parm) {
  onDemand(g_pParmList).push_back(&parm);
  return true;
}

bool zebRegParmFunc(void (*func)()) {
  s_parmFunc = func;
  return true;
}

bool zebRegCmdLine(const zebString& text) {
  onDemand(s_commandLine) += zebString(" ") + text;
  return true;
}

bool zebRegQorVersion(QorVersionFunc func) {
  onDemand(qorVersionList).push_back(func);
  return true;
}

bool zebRegQorEnvironment(void (*func)()) {
  qorEnvironment = func;
  return true;
}

bool zebRegTimingMethod(void (*func)(zebTool&)) {
  initTimingMethod = func;
  return true;
}

bool zebRegHotFunction(const zebString& name) {
  onDemand(g_pHotList).push_back(name);
  return true;
}

bool zebRegSession(zebSession* session) {
  pSession = session;
  return true;
}

bool zebRegLibInfo(const zebString& text) {
  zebStringList& list = onDemand(g_pLibInfoList);
  for (const zebString& known : list) {
    if (known == text) return false;
  }
  list.push_back(text);
  return true;
}

bool zebRegLibFunc(const zebString& name) {
  if (name.empty()) return false;
  onDemand(g_pLibFuncList).push_back(name);
  return true;
}

const zebString& builtInCommandLine() {
  return onDemand(s_commandLine);
}
