// zebcpuflags.h: which features does the processor have, by name?
#ifndef ZEBCPUFLAGS_H
#define ZEBCPUFLAGS_H

#include "zebstring.h"

// Where CPUID tells a feature. Reserved bits have an empty name and description.
struct FlagInfo {
  unsigned int function;
  int reg;  // regEax to regEdx
  int bit;
  const char* name;
  const char* description;
};

constexpr int FeatureFlagsCount = 68;
extern FlagInfo FeatureFlags[FeatureFlagsCount];

FlagInfo* findFlagInfo(FlagInfo* table, int count, const zebString& name);  // null if there is none
bool isFeatureFlag(const zebString& name);                                  // false if there is none

// Write one line to g_ostrm: name, bit and description.
void printFeatureFlag(const zebString& name);
void printFeatureFlag(const zebString& name, unsigned char value);

#endif
