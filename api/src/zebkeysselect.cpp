#include "zebconditions.h"
#include "zebkeys.h"
#include "zebtest.h"
#include "zebtestlist.h"

namespace {

// The echo puts the pattern between before and after.
struct Rule {
  const char* before;
  const char* after;
  RunCondition* (*make)(const zebString& pattern);
};

template <class Condition>
RunCondition* make(const zebString& pattern) {
  return new Condition(pattern);
}

// Both tables are indexed by ConditionForm.
const Rule functionRules[formEmpty] = {
    {"test functions containing '", "'", make<RunCondition_f>},
    {"don't test functions without '", "' in the name", make<RunCondition_fAnd>},
    {"don't test functions containing '", "'", make<RunCondition_fNot>},
    {"test function equal to '", "'", make<RunCondition_fEqual>},
};

const Rule testRules[formEmpty] = {
    {"run tests containing ", "", make<RunCondition_t>},
    {"don't run tests which doesn't contain ", "", make<RunCondition_tAnd>},
    {"don't run tests containing ", "", make<RunCondition_tNot>},
    {"run test equal to ", "", make<RunCondition_tEqual>},
};

zebString ruleText(const Rule* rules, zebString arg, const char* noPattern) {
  const int form = getCondition(arg);
  if (form == formEmpty) return noPattern;
  return rules[form].before + arg + rules[form].after;
}

void addRule(const Rule* rules, zebString arg, zebSession* session) {
  const int form = getCondition(arg);
  if (form != formEmpty) session->addCondition(rules[form].make(arg));
}

bool isHotOnly(const zebString& arg) {
  return arg[0] == 'O';
}

bool isUnsorted(const zebString& arg) {
  return arg == "-";
}

}  // namespace

zebString infoFunction(zebString arg) {
  return ruleText(functionRules, arg, "ignored: empty function pattern");
}

void applyFunction(zebString arg, zebSession* session) {
  addRule(functionRules, arg, session);
}

zebString infoTest(zebString arg) {
  return ruleText(testRules, arg, "ignored: empty test pattern");
}

void applyTest(zebString arg, zebSession* session) {
  addRule(testRules, arg, session);
}

zebString infoStart(zebString arg) {
  return "start testing from " + arg + " function";
}

void applyStart(zebString arg, zebSession*) {
  zebTestList::m_startFunc = arg;
}

zebString infoHot(zebString arg) {
  return isHotOnly(arg) ? "run tests for hot functions only" : "add 'Interest' column to table file";
}

void applyHot(zebString arg, zebSession*) {
  zebTest::m_hot = isHotOnly(arg) ? 2 : 1;
}

zebString infoSort(zebString arg) {
  return isUnsorted(arg) ? "don't sort functions" : "sort functions";
}

void applySort(zebString arg, zebSession* session) {
  if (isUnsorted(arg)) session->setQuickMode(true);
}
