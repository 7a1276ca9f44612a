// scriptedcpu.h: a processor of the test's own making.
#ifndef SCRIPTEDCPU_H
#define SCRIPTEDCPU_H

#include <cstring>
#include <vector>

#include "zebcpuid.h"

// Stands in for the real processor until destroyed. Functions that aren't set give zeros.
class ScriptedCpu {
 public:
  ScriptedCpu() : m_old(g_cpuSource) {
    static const zebCpuSource source = {hasCpuid, cpuid, xcr0};
    g_cpuSource = &source;
    current = this;
  }
  ~ScriptedCpu() { g_cpuSource = m_old; }

  void set(unsigned function, unsigned sub, unsigned a, unsigned b, unsigned c, unsigned d) {
    m_rows.push_back({function, sub, {a, b, c, d}});
  }

  // vendor: twelve characters.
  void setVendor(const char* vendor, unsigned largest) {
    unsigned words[3];
    memcpy(words, vendor, sizeof words);
    set(0, 0, largest, words[0], words[2], words[1]);
  }

  // An entry of function 4; lines of 64 bytes, one partition.
  void setCache(unsigned index, unsigned type, unsigned level, unsigned sets, unsigned ways) {
    set(4, index, type | level << 5, (ways - 1) << 22 | 63, sets - 1, 0);
  }

  int m_calls = 0;  // executions of CPUID
  int m_hasCpuid = 1;
  unsigned m_xcr0 = 0;

 private:
  struct Row {
    unsigned function, sub, regs[4];
  };

  static int hasCpuid() { return current->m_hasCpuid; }
  static unsigned xcr0() { return current->m_xcr0; }
  static void cpuid(unsigned* regs, unsigned function, unsigned sub) {
    ++current->m_calls;
    memset(regs, 0, 4 * sizeof *regs);
    for (const Row& row : current->m_rows) {
      if (row.function == function && row.sub == sub) memcpy(regs, row.regs, sizeof row.regs);
    }
  }

  inline static ScriptedCpu* current = nullptr;
  const zebCpuSource* m_old;
  std::vector<Row> m_rows;
};

#endif
