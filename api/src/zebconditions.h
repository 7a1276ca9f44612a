// zebconditions.h: does a test run?
//
// Or-rules name tests; if there are any, one of them must hold. And-rules
// exclude tests; all of them must hold.
#ifndef ZEBCONDITIONS_H
#define ZEBCONDITIONS_H

#include "zeblist.h"
#include "zebstring.h"

class zebTest;

class RunCondition {
 public:
  enum Kind { andRule = 0, orRule = 1 };

  RunCondition(Kind kind, const zebString& pattern) : m_kind(kind), m_pattern(pattern) {}
  virtual ~RunCondition() = default;
  virtual bool tobeRun(const zebTest* test) const = 0;

  int m_kind;
  zebString m_pattern;  // plain text, case counts
};

// -f looks at the name of the function, -t at the name of the test's class.
#define ZEB_RUN_CONDITION(Name, Rule)                                        \
  class Name : public RunCondition {                                         \
   public:                                                                   \
    explicit Name(const zebString& pattern) : RunCondition(Rule, pattern) {} \
    bool tobeRun(const zebTest* test) const override;                        \
  };

ZEB_RUN_CONDITION(RunCondition_f, orRule)       // contains
ZEB_RUN_CONDITION(RunCondition_fEqual, orRule)  // equals
ZEB_RUN_CONDITION(RunCondition_fAnd, andRule)   // must contain
ZEB_RUN_CONDITION(RunCondition_fNot, andRule)   // must not contain
ZEB_RUN_CONDITION(RunCondition_t, orRule)
ZEB_RUN_CONDITION(RunCondition_tEqual, orRule)
ZEB_RUN_CONDITION(RunCondition_tAnd, andRule)
ZEB_RUN_CONDITION(RunCondition_tNot, andRule)

#undef ZEB_RUN_CONDITION

class zebConditions : public zebList<RunCondition*> {
 public:
  zebConditions() = default;
  zebConditions(const zebConditions&) = delete;
  zebConditions& operator=(const zebConditions&) = delete;
  ~zebConditions() override;  // the rules are owned
  bool tobeRun(const zebTest* test) const;
};

enum ConditionForm { formContains = 0, formAnd = 1, formNot = 2, formEqual = 3, formEmpty = 4 };

// Takes a leading "+", "-" or "=" off arg and tells what it means; formEmpty when nothing is left.
int getCondition(zebString& arg);

#endif
