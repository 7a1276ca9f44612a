// zebtest.h: how is one function tested?
//
// A test is registered once and taken by run() through fixed steps: begin,
// title, permission, parameters, one measurement for each combination of
// parameter values, result block. Derived classes plug in through the virtual
// operations; what canStart prepared flushStart undoes, what initData prepared
// flushData undoes.
#ifndef ZEBTEST_H
#define ZEBTEST_H

#include <ctime>

#include "zeblist.h"
#include "zebobject.h"
#include "zebostream.h"
#include "zebresult.h"
#include "zebtestfunc.h"
#include "zebtestinfo.h"
#include "zebtool.h"

class zebCacheIterator;
class zebConditions;
class zebParameter;
template <class T>
class zebIterator;
template <class T>
class zebStepIterator;

class zebTest {
 public:
  // A size parameter's own way to approach target bytes from current bytes; false when it can't.
  using CacheSetter = bool (*)(zebParameter* parm, int current, int target, bool fine);

  zebTest(TestFuncOld old, const zebString& name, const zebString& file, const zebString& info);
  zebTest(TestFuncLoop loop, TestFuncStat stat, const zebString& name, const zebString& file,
          const zebString& info);
  zebTest(TestFuncCall call, TestFuncCall init, TestFuncLoop loop, TestFuncStat stat, const zebString& name,
          const zebString& file, const zebString& info);
  zebTest(const zebTest&) = delete;
  zebTest& operator=(const zebTest&) = delete;
  virtual ~zebTest();

  virtual bool tobeRun(zebConditions& conditions);
  virtual zebResult run();
  virtual int compareFunc(const zebTest* other) const;  // negative, zero, positive
  virtual void putTableResult_Deprecated(zebResult r);
  virtual bool canStart();
  virtual void flushStart();
  virtual bool canContinue();  // steps to the next combination of parameter values
  virtual bool initData();     // false passes this combination over
  virtual void flushData();
  virtual zebResult runTiming();
  virtual double getFlops();    // float operations of one call; below 0 when not known
  virtual double getDivisor();  // elements of one call
  virtual zebString getUnit();  // the name of one element
  virtual void funcToCstrm();
  virtual void parmsFromIstrm();
  virtual void parmsToOstrm();
  virtual void parmsToCstrm();
  virtual void parmsNameToCstrm();
  virtual void resultToCstrm(zebResult r);
  virtual void constToOstrm();
  virtual void beginTest();
  virtual void endTest();
  virtual zebString getComment();
  virtual bool isFloatFunction();
  virtual bool isHotLine();
  virtual void initSettings();
  virtual int printAllMemoryBlocks(const zebString& text);
  virtual zebString formatClocks(double x);  // about three significant digits; empty unless above 0
  virtual zebString regInfo();
  virtual void putTableParms();
  virtual void putTableResult(zebResult r);
  virtual void putTextParms();
  virtual void putTextParms(MessageLevel level);
  virtual void loopData();
  virtual void outputResult(zebResult r);
  virtual void outputConst();
  virtual void outputRegInfo();
  virtual void putTextResult(zebResult r);

  // Begins and ends the test without measuring, so that its m_parms are known.
  void startAndStop();

  // Instead of adding a size parameter to m_parms: the first one of a run goes in and out of cache under key
  // -C.
  void regCacheParm(zebIterator<int>& parm, zebObject* data, CacheSetter setParm);
  void regCacheParm(zebStepIterator<int>& parm, zebObject* data, CacheSetter setParm);

  // For a test that measures by itself.
  void setTimingResult(double clocks, const zebString& comment);

  double performance(bool flops);  // MFlops, or clocks per element
  zebString perfString(bool flops);
  zebString testResultString();
  void putTextError(zebResult r);
  void putTableName();
  void putTableNameLine();
  bool setDeprecatedFlag(bool flag);  // whether a parameter has its deprecated form now

  // Memory for test data, aligned and shifted as the settings ask. A negative align is minus the element size
  // in bytes and means the settings; others are a misalignment in bytes. Null when out of memory.
  static void* allocate(int size, int align);
  static void* allocate(int size, int align, void* owner);
  static void deallocate(void* p);
  static int reserveAllVectors();  // the number of successes
  static int resetAllVectors();

  // On the shared watchers of the floating-point units.
  static void initCtrlStatus();
  static bool badCtrlStatus(bool& bad87, bool& badSSX);
  static void clearCtrlStatus();
  static void printCtrlStatus(bool bad87, bool badSSX);

  // Keep the more severe outcome of the test under way.
  static void raiseResult(zebResult r);

  // Raise, but a warning counts as success while only errors are shown.
  static void foldResult(zebResult r);

  static zebResult m_currentResult;  // of the test under way
  static int m_numParmsColm;         // table columns of function and parameters
  static int m_numResultColm;        // table columns of the result
  static int m_hot;          // 1: key -H, add the column "Interest"; 2: -HONLY, run hot functions only
  static bool m_pressing;    // key -P: run only functions that have an ini section
  static bool m_cache;       // key -C: measure in and out of cache
  static int m_vectorNum;    // vectors allocated for the present combination
  static int m_vectorShift;  // bytes, for the next vector

  bool m_deprecated;  // the deprecated table line is being made
  time_t m_startTime;
  time_t m_stopTime;
  zebString m_name;  // of the tested function: also ini section, selection key and key of the hot list
  zebString m_fileName;
  zebTestInfo m_info;
  zebTool m_tool;  // copy of the session's settings, and the last measurement
  zebResult m_result;
  TestFuncLoop m_funcLoop;
  TestFuncStat m_funcStat;
  TestFuncCall m_funcCall;
  TestFuncCall m_funcInit;
  TestFuncOld m_funcOld;
  bool m_first;                          // no combination accepted yet
  bool m_bad87;                          // the x87 state was found disturbed in this run
  bool m_badSSX;                         // the SSE state was
  zebList<zebParameter*> m_parms;        // of this run, the last one turns fastest; not owned
  zebCacheIterator* m_pCache = nullptr;  // of this run, owned; null when none
  bool m_cacheRepeat;                    // the data size misses the range aimed at: repeat with another one

 private:
  void construct(const zebString& name, const zebString& file, const zebString& info);
  void regSizeParm(zebParameter& parm, zebObject* data, CacheSetter setParm);
  bool runGuarded();
  bool runSteps();
  void endByException(const char* text);
  bool setIniSection(const zebString& name);
  void putTestTitle();
  void runStarted();
  void finish();
  bool nextCombination();
  bool repeatCacheValue();
  bool firstValues();
  bool stepParms();
  void passData(bool& constantsDone);
  void measureCombination();
  zebResult timeCombination();
  zebResult checkCtrlStatus();
  void endLoop();
  void putTableCells(zebResult r);
  zebString functionList();
  zebString measuringMethod();
};

#endif
