#include "zebcpuflags.h"

#include <cstdio>

#include "zebcpuregs.h"
#include "zebostream.h"

FlagInfo FeatureFlags[FeatureFlagsCount] = {
    {1, regEdx, 0, "FPU", "Floating Point Unit on Chip"},
    {1, regEdx, 1, "VME", "Virtual 8086 Mode Enhancements"},
    {1, regEdx, 2, "DE", "Debugging Extensions"},
    {1, regEdx, 3, "PSE", "Page Size Extension"},
    {1, regEdx, 4, "TSC", "Time Stamp Counter"},
    {1, regEdx, 5, "MSR", "Model Specific Registers"},
    {1, regEdx, 6, "PAE", "Physical Address Extension"},
    {1, regEdx, 7, "MCE", "Machine Check Exception"},
    {1, regEdx, 8, "CX8", "CMPXCHG8B Instruction"},
    {1, regEdx, 9, "APIC", "APIC on Chip"},
    {1, regEdx, 10, "", ""},
    {1, regEdx, 11, "SEP", "SYSENTER and SYSEXIT Instructions"},
    {1, regEdx, 12, "MTRR", "Memory Type Range Registers"},
    {1, regEdx, 13, "PGE", "Page Global Bit"},
    {1, regEdx, 14, "MCA", "Machine Check Architecture"},
    {1, regEdx, 15, "CMOV", "Conditional Move Instructions"},
    {1, regEdx, 16, "PAT", "Page Attribute Table"},
    {1, regEdx, 17, "PSE-36", "36-Bit Page Size Extension"},
    {1, regEdx, 18, "PSN", "Processor Serial Number"},
    {1, regEdx, 19, "CLFSH", "CLFLUSH Instruction"},
    {1, regEdx, 20, "", ""},
    {1, regEdx, 21, "DS", "Debug Store"},
    {1, regEdx, 22, "ACPI", "Thermal Monitor and Software Controlled Clock"},
    {1, regEdx, 23, "MMX", "MMX technology"},
    {1, regEdx, 24, "FXSR", "FXSAVE and FXRSTOR Instructions"},
    {1, regEdx, 25, "SSE", "Streaming SIMD Extensions"},
    {1, regEdx, 26, "SSE2", "Streaming SIMD Extensions 2"},
    {1, regEdx, 27, "SS", "Self Snoop"},
    {1, regEdx, 28, "MTT", "Multi Threading Technology"},
    {1, regEdx, 29, "TM", "Thermal Monitor"},
    {1, regEdx, 30, "BA64", "64 Bit Architecture Emulation"},
    {1, regEdx, 31, "PBE", "Pending Break Enable"},
    {1, regEcx, 0, "SSE3", "Streaming SIMD Extensions 3"},
    {1, regEcx, 1, "", ""},
    {1, regEcx, 2, "DTES64", "64 Bit Debug Store Area"},
    {1, regEcx, 3, "MONITOR", "MONITOR and MWAIT Instructions"},
    {1, regEcx, 4, "DS-CPL", "CPL Qualified Debug Store"},
    {1, regEcx, 5, "VMX", "Virtual Machine Extensions"},
    {1, regEcx, 6, "SMX", "Safer Mode Extensions"},
    {1, regEcx, 7, "DFS", "Dynamic Frequency Scaling"},
    {1, regEcx, 8, "TM2", "Thermal Monitor 2"},
    {1, regEcx, 9, "SSSE3", "Supplemental Streaming SIMD Extensions 3"},
    {1, regEcx, 10, "CNXT-ID", "L1 Context ID"},
    {1, regEcx, 11, "", ""},
    {1, regEcx, 12, "", ""},
    {1, regEcx, 13, "CX16", "CMPXCHG16B Instruction"},
    {1, regEcx, 14, "xTPR", "Task Priority Messages Update Control"},
    {1, regEcx, 15, "PDCM", "Performance and Debug Capabilities Register"},
    {1, regEcx, 16, "", ""},
    {1, regEcx, 17, "", ""},
    {1, regEcx, 18, "DCA", "Direct Cache Access"},
    {1, regEcx, 19, "SSE4.1", "Streaming SIMD Extensions 4.1"},
    {1, regEcx, 20, "SSE4.2", "Streaming SIMD Extensions 4.2"},
    {1, regEcx, 21, "x2APIC", "Extended xAPIC Support"},
    {1, regEcx, 22, "MOVBE", "MOVBE Instruction"},
    {1, regEcx, 23, "POPCNT", "POPCNT Instruction"},
    {1, regEcx, 24, "", ""},
    {1, regEcx, 25, "", ""},
    {1, regEcx, 26, "XSAVE", "XSAVE and XRSTOR Instructions"},
    {1, regEcx, 27, "OSXSAVE", "XSAVE Enabled by the Operating System"},
    {1, regEcx, 28, "", ""},
    {1, regEcx, 29, "", ""},
    {1, regEcx, 30, "", ""},
    {1, regEcx, 31, "", ""},
    {0x80000001, regEdx, 11, "SYSCALL", "SYSCALL and SYSRET Instructions"},
    {0x80000001, regEdx, 20, "XD Bit", "Execute Disable Bit"},
    {0x80000001, regEdx, 29, "Brelk(R)64", "Brelk(R) 64 Instruction Set Architecture"},
    {0x80000001, regEcx, 0, "LAHF", "LAHF and SAHF Instructions in 64 Bit Mode"},
};

FlagInfo* findFlagInfo(FlagInfo* table, int count, const zebString& name) {
  for (int i = 0; i < count; ++i) {
    if (name == table[i].name) return &table[i];
  }
  return nullptr;
}

static FlagInfo* findFeature(const zebString& name) {
  return findFlagInfo(FeatureFlags, FeatureFlagsCount, name);
}

bool isFeatureFlag(const zebString& name) {
  const FlagInfo* info = findFeature(name);
  return info && CPUID(info->function, 0).getBit(info->reg, info->bit);
}

void printFeatureFlag(const zebString& name) {
  printFeatureFlag(name, isFeatureFlag(name));
}

void printFeatureFlag(const zebString& name, unsigned char value) {
  char label[64];
  snprintf(label, sizeof label, "%-11s", name.c_str());
  g_ostrm << label;
  if (const FlagInfo* info = findFeature(name)) {
    g_ostrm << value << " - " << info->description << "\n";
  } else {
    g_ostrm << "? - unknown flag???????\n";
  }
}
