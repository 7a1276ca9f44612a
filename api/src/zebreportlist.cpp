#include "zebreportlist.h"

#include <cstdio>

#include "zebregister.h"
#include "zebtest.h"

zebReportList::zebReportList(zebTestList& list, zebConditions& conditions, int mode) {
  if (mode != 0 && createFuncList()) {
    makeFuncTable(list, mode);
  } else {
    makeTestTable(list, conditions);
  }
}

static bool contains(const zebString& name, const char* part) {
  return name.find(part) != zebString::npos;
}

// Functions that prepare or inspect something aren't worth a test of their own.
static bool isHelper(const zebString& name) {
  const char* const parts[] = {"Init",   "Close",        "Alloc",       "Malloc",  "Free",
                               "PutVal", "RotateCenter", "ResizeShift", "DrawText"};
  for (const char* part : parts) {
    if (contains(name, part)) return true;
  }
  return (contains(name, "Get") && !contains(name, "Get_")) ||
         (contains(name, "Set") && !contains(name, "Set_"));
}

bool zebReportList::createFuncList() {
  if (!g_pLibFuncList) return false;
  for (const zebString& name : *g_pLibFuncList) {
    if (!isHelper(name)) push_back(name);
  }
  return !empty();
}

bool presentInTestList(const zebTestList& list, const zebString& function) {
  for (const zebTest* test : list) {
    if (test->m_name == function) return true;
  }
  return false;
}

void zebReportList::addFuncRow(const zebString& mark, const zebString& name) {
  push_back(mark);
  push_back(name);
  push_back("\n");
}

void zebReportList::makeFuncTable(const zebTestList& list, int mode) {
  zebList<zebString> names;
  swap(names);
  addFuncRow("Exist", "Function");
  for (const zebString& name : names) {
    bool present = presentInTestList(list, name);
    if (!present) addFuncRow("-", name);
    if (present && mode == 1) addFuncRow("+", name);
  }
}

void zebReportList::makeTestTable(const zebTestList& list, zebConditions& conditions) {
  const char* const titles[] = {"   #", "Function", "Test", "Source", "\n"};
  for (const char* title : titles) push_back(title);
  int number = 0;
  for (zebTest* test : list) {
    if (!test->tobeRun(conditions)) continue;
    char text[16];
    snprintf(text, sizeof text, "%4d", ++number);
    push_back(text);
    push_back(test->m_name);
    push_back(test->m_info.m_testName);
    push_back(test->m_fileName);
    push_back("\n");
  }
}

zebOStream& operator<<(zebOStream& out, const zebReportList& report) {
  int level = out.msgLevel();
  if (!(level & out.outLevel())) return out;
  for (const zebString& cell : report) {
    out << cell;
    if (!(cell == "\n")) out << "\t";
  }
  return out;
}

zebCStream& operator<<(zebCStream& out, const zebReportList& report) {
  for (const zebString& cell : report) out << cell;
  return out;
}
