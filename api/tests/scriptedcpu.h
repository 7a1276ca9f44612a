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

  void set(unsigned int function, unsigned int sub, unsigned int a, unsigned int b, unsigned int c,
           unsigned int d) {
    m_rows.push_back({function, sub, {a, b, c, d}});
  }

  // vendor: twelve characters.
  void setVendor(const char* vendor, unsigned int largest) {
    unsigned int words[3];
    memcpy(words, vendor, sizeof words);
    set(0, 0, largest, words[0], words[2], words[1]);
  }

  // An entry of function 4; line in bytes, one partition.
  void setCache(unsigned int index, unsigned int type, unsigned int level, unsigned int sets,
                unsigned int line, unsigned int ways) {
    set(4, index, type | level << 5, (ways - 1) << 22 | (line - 1), sets - 1, 0);
  }

  int m_calls = 0;  // executions of CPUID
  int m_hasCpuid = 1;
  unsigned int m_xcr0 = 0;

 private:
  struct Row {
    unsigned int function, sub, regs[4];
  };

  static int hasCpuid() { return current->m_hasCpuid; }
  static unsigned int xcr0() { return current->m_xcr0; }
  static void cpuid(unsigned int* regs, unsigned int function, unsigned int sub) {
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
