// zebtool.h: how many clocks does one call take, and can we trust the figure?
//
// Clocks are ticks of the time stamp counter times the clock factor; accuracy
// is a fraction (0.05 = 5 %). g_tool holds the session's settings. Each test
// measures in its own copy, so a changed method doesn't reach the next test.
#ifndef ZEBTOOL_H
#define ZEBTOOL_H

#include "zebresult.h"
#include "zebstring.h"
#include "zebtestfunc.h"

class zebTool {
 public:
  enum { methodAuto, methodManual, methodStatistic, methodIterative };

  zebTool() = default;
  zebTool(const zebTool&) = default;
  zebTool& operator=(const zebTool&) = default;
  virtual ~zebTool() = default;

  void setMethodAuto();
  void setMethodLoop(int loops);                              // Manual; at least 1
  void setMethodStat(int calls, long long clocks);            // Statistic
  void setMethodBest(int start, int stop, long long clocks);  // Iterative; stop is at least 8 * start
  bool getMethodAuto() const;
  // Each delivers the settings of its method if that is the present one, otherwise nothing and false.
  bool getMethodLoop(int& loops) const;
  bool getMethodStat(int& calls, long long& clocks) const;
  bool getMethodBest(int& start, int& stop, long long& clocks) const;
  static void getAutoParameters(int& start, int& stop, long long& clocks);
  void setLoopFactor(int f);  // Auto's loop counts by 2 to the power -f; 0 takes the built-in ones again
  void setFuncTicks(double clocks) { m_funcTicks = clocks; }

  void reset();  // forgets the last measurement; the settings stay

  // Measures, by the functions that aren't null. A method that they don't allow is replaced for good by one
  // that they do. Returns m_result; resError if there is nothing to measure by.
  zebResult timing(TestFuncLoop loop, TestFuncStat stat, TestFuncCall call, TestFuncCall init);
  zebResult timing(TestFuncOld old);

  static zebString getAccuracyStr(double accuracy);  // in per cent: "7.3%"

  // What the methods are made of.
  void bestTiming(int loops, int maxLoops, long long minClocks);
  zebResult startIterations(int loops, long long minClocks);
  zebResult continueIterations(int loops, int maxLoops);
  zebResult repeatTiming(int loops, int count);  // count is at most maxRepeats
  void runTimFunc(int loops, double* clocksPerLoop);
  void runTimFuncStat(long long minClocks, int* calls, double* clocksPerCall);
  zebResult timCall_Loop(int loops, long long* clocks, bool resetData);
  zebResult timCall_Stat(int* calls, long long* clocks, bool resetData);
  static double computeAccuracy(double a, double b);
  static double computeAccuracy(const double* figures, int count);
  static double computeBest(const double* figures, int count);

  static constexpr int maxRepeats = 6;

  zebResult m_result = resNotRun;  // worst result of this measurement
  double m_funcTicks = 0;          // the answer: clocks per call
  int m_numLoops = 0;              // of the present step; at the end those that gave the answer
  double m_wantedAccuracy = 0.05;
  int m_method = methodAuto;
  int m_manualLoops = 10;
  int m_startLoops = 1;  // Iterative: the first and the greatest loop count
  int m_stopLoops = 2048;
  bool m_setUse = false;           // inside the timed stretch the test data are restored before each call
  long long m_minClocks = 100;     // Iterative: what a first measurement must reach
  int m_statCalls = 12;            // Statistic: least number of calls
  long long m_statClocks = 10000;  // Statistic: what must be spent
  bool m_initEach = false;         // the init function runs before each run of a loop
  bool m_avoidBadStatus = false;   // a disturbed floating-point state shortens the loop
  zebString m_comment;             // for the result line and the table
  long long m_numClocks = 0;       // of the last run
  double m_accuracy = 1.0;         // reached; 1.0 if none was computed
  int m_autoStartLoops = 0;        // Auto: in place of the built-in loop counts; 0 for none
  int m_autoStopLoops = 0;
  TestFuncLoop m_funcLoop = nullptr;
  TestFuncStat m_funcStat = nullptr;
  TestFuncCall m_funcCall = nullptr;
  TestFuncCall m_funcInit = nullptr;

  static int m_priority;  // during a measurement: 0 unchanged, 1 high, 2 normal, 3 low
  // Judges a status that a call returned; null takes every status for success.
  static zebResult (*m_pCheckStatus)(int status);

 private:
  void updateResult(zebResult r);
  void customLoopTiming();
  void statisticTiming();
  void iterativeTiming();
  void autoLoopTiming();
  void runMethod();
  zebResult replaceManual();
  zebResult replaceStatistic();
  zebResult runResetting(int loops);
  zebResult runWatched(int loops);
  zebResult callLoop(int loops);
  zebResult runStatResetting(int* calls, long long* clocks);
  zebResult runStatWatched(int* calls, long long* clocks);
  void tracedRun(int loops, double* clocksPerLoop);

  zebResult priorMeasurement(int loops, long long minClocks);
  zebResult iterationMeasurement(int loops, int maxLoops);
  bool iterate(int maxLoops);
  void avoidBadStatus();
  void finish();
  void giveUp();
};

// Holds the settings of the session.
extern zebTool g_tool;

// A clock count for messages; the digits that an int has no room for print as zeros.
zebString clockStr(long long clocks);

// Writes a text that was collected at level msgInfo, and empties it.
void writeInfo(zebString& text);

#endif
