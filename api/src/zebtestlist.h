// zebtestlist.h: which tests are there, in which order do they run, and how did they end?
#ifndef ZEBTESTLIST_H
#define ZEBTESTLIST_H

#include <ctime>

#include "zeblist.h"
#include "zebresult.h"
#include "zebstring.h"

class zebConditions;
class zebParameter;
class zebTest;

class zebTestList : public zebList<zebTest*> {
 public:
  zebTestList();

  void sortFunc();                          // stable, by compareFunc
  int runTests(zebConditions& conditions);  // 1 if a test ended in error, else 0
  void plus(zebResult r);                   // counts one outcome
  void deleteTests();

  // Keeps those of the common parameters that selected tests use.
  void selectCommonParms(zebConditions& conditions, zebList<zebParameter*>& parms);

  time_t m_startTime;  // of the whole run
  time_t m_stopTime;
  int m_total;                   // tests counted
  int m_counts[zebResultCount];  // resWarning and resError are totals of their classes

  static zebString m_startFunc;    // key -F: tests before the first that contains it don't run
  static zebTest* m_pCurrentTest;  // null when no test is running

 private:
  bool skipped(zebTest* test, zebConditions& conditions);
  static bool markUsed(zebTest* test, zebList<zebParameter*>& parms);
};

// Places to hook into the run; they do nothing here.
void beforeAll();
void beforeTest();
void afterTest(zebTest* test);

#endif
