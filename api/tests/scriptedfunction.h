// scriptedfunction.h: a function under measurement whose clocks the test writes down.
#ifndef SCRIPTEDFUNCTION_H
#define SCRIPTEDFUNCTION_H

#include <vector>

#include "zebstring.h"
#include "zebtestfunc.h"

// The figures are clocks per call, one for each run; when they are used up the last one stays.
class ScriptedFunction {
 public:
  explicit ScriptedFunction(const std::vector<double>& figures) : m_figures(figures) { s_current = this; }

  static zebResult loop(int loops, long long* clocks) {
    *clocks = static_cast<long long>(s_current->next(loops) * loops);
    if (s_current->m_onRun) s_current->m_onRun(loops);
    return resOk;
  }

  static zebResult stat(int* calls, long long* clocks) {
    s_current->m_wantedClocks = *clocks;
    return loop(*calls, clocks);
  }

  zebString m_runs;                      // the loops of each run: "1 4 8"
  void (*m_onRun)(int loops) = nullptr;  // what a run does besides
  long long m_wantedClocks = 0;          // what the last statistic run was asked for

 private:
  double next(int loops) {
    if (!m_runs.empty()) m_runs += " ";
    m_runs << loops;
    return m_figures[m_index + 1 < m_figures.size() ? m_index++ : m_index];
  }

  static inline ScriptedFunction* s_current = nullptr;
  const std::vector<double> m_figures;
  size_t m_index = 0;
};

#endif
