#include "zebcputype.h"
#include "zebhooks.h"
#include "zebkeys.h"
#include "zebtest.h"
#include "zebtool.h"

namespace {

struct Priority {
  char letter;
  int value;  // of zebTool::m_priority
  const char* text;
};

const Priority priorities[] = {{'H', 1, "high"}, {'N', 2, "normal"}, {'L', 3, "low"}};

const Priority* findPriority(const zebString& arg) {
  for (const Priority& row : priorities) {
    if (arg[0] == row.letter) return &row;
  }
  return nullptr;
}

// The library can be told something only through its environment.
zebString infoLibrary(const char* problem, const zebString& text) {
  if (!qorEnvironment) return "ignored: <qorcore.h> is not included before <mok.h> in test files";
  return problem ? zebString(problem) : text;
}

int numThreads(zebString arg) {
  int n = 0;
  n << arg;
  return n;
}

}  // namespace

zebString infoPriority(zebString arg) {
  const Priority* priority = findPriority(arg);
  if (!priority) return "ignored: incorrect process priority value";
  return zebString("set ") + priority->text + " process priority";
}

void applyPriority(zebString arg, zebSession*) {
  if (const Priority* priority = findPriority(arg)) zebTool::m_priority = priority->value;
}

zebString infoCpu(zebString arg) {
  const char* problem = zebCpuType::cpuType(arg) < 0 ? "ignored: incorrect CPU type" : nullptr;
  return infoLibrary(problem, "call qorInitStaticCpu ( qorCpu" + arg + " )");
}

void applyCpu(zebString arg, zebSession*) {
  s_cpuType = zebCpuType::cpuType(arg);
}

zebString infoThreads(zebString arg) {
  const char* problem = numThreads(arg) <= 0 ? "ignored: incorrect number of threads" : nullptr;
  return infoLibrary(problem, "call qorSetNumThreads(" + arg + ")");
}

void applyThreads(zebString arg, zebSession*) {
  s_numThreads = numThreads(arg);
}

zebString infoSetUse(zebString) {
  return "include to measurement data set & use time";
}

void applySetUse(zebString, zebSession*) {
  g_tool.m_setUse = true;
}

zebString infoCache(zebString) {
  return "test data size will be in cache and out of cache if that is supported by test";
}

void applyCache(zebString, zebSession*) {
  zebTest::m_cache = true;
}
