#include "zebconditions.h"

#include "zebtest.h"

namespace {

bool contains(const zebString& text, const zebString& pattern) {
  return text.find(pattern) != zebString::npos;
}

const zebString& className(const zebTest* test) {
  return test->m_info.m_testName;
}

}  // namespace

bool RunCondition_f::tobeRun(const zebTest* test) const {
  return contains(test->m_name, m_pattern);
}
bool RunCondition_fEqual::tobeRun(const zebTest* test) const {
  return test->m_name == m_pattern;
}
bool RunCondition_fAnd::tobeRun(const zebTest* test) const {
  return contains(test->m_name, m_pattern);
}
bool RunCondition_fNot::tobeRun(const zebTest* test) const {
  return !contains(test->m_name, m_pattern);
}
bool RunCondition_t::tobeRun(const zebTest* test) const {
  return contains(className(test), m_pattern);
}
bool RunCondition_tEqual::tobeRun(const zebTest* test) const {
  return className(test) == m_pattern;
}
bool RunCondition_tAnd::tobeRun(const zebTest* test) const {
  return contains(className(test), m_pattern);
}
bool RunCondition_tNot::tobeRun(const zebTest* test) const {
  return !contains(className(test), m_pattern);
}

zebConditions::~zebConditions() {
  for (RunCondition* rule : *this) delete rule;
}

bool zebConditions::tobeRun(const zebTest* test) const {
  bool orRules = false;
  bool named = false;
  for (const RunCondition* rule : *this) {
    if (rule->m_kind != RunCondition::orRule) continue;
    orRules = true;
    named = named || rule->tobeRun(test);
  }
  if (orRules && !named) return false;
  for (const RunCondition* rule : *this) {
    if (rule->m_kind == RunCondition::andRule && !rule->tobeRun(test)) return false;
  }
  return true;
}

int getCondition(zebString& arg) {
  if (arg.empty()) return formEmpty;
  const char first = arg[0];
  const int form = first == '=' ? formEqual : first == '+' ? formAnd : first == '-' ? formNot : formContains;
  if (form != formContains) arg = arg.substr(1);
  return arg.empty() ? static_cast<int>(formEmpty) : form;
}
