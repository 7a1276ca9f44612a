#include "zebcpusections.h"

#include <cstdio>

#include "zebcpucache.h"
#include "zebcpuflags.h"
#include "zebcpuregs.h"
#include "zebostream.h"

const char starLine[] =
    "****************************************"
    "***************************************\n";
const char doubleLine[] =
    "========================================"
    "=======================================\n";
const char singleLine[] =
    "----------------------------------------"
    "---------------------------------------\n";

static char FORMAT_BUFFER[1024];

zebString formatNumber(const char* format, unsigned int value) {
  snprintf(FORMAT_BUFFER, sizeof FORMAT_BUFFER, format, value);
  return FORMAT_BUFFER;
}

void printTitle(const char* rule, const zebString& title) {
  g_ostrm << "\n" << rule << "    " << title << "\n";
}

void printValue(const char* label, unsigned int value, const char* behind) {
  g_ostrm << label << value << behind << "\n";
}

// Numbers with something behind them take four columns.
static void printValue4(const char* label, unsigned int value, const char* behind) {
  g_ostrm << label << formatNumber("%-4d", value) << behind << "\n";
}

void printSignature() {
  if (!validFunction(1)) return;
  printTitle(doubleLine, "Processor Identification Signature\n");
  CPUID regs(1, 0);
  printValue("Family   ", regs.getBits(regEax, 27, 20) + regs.getBits(regEax, 11, 8));
  printValue("Model    ", (regs.getBits(regEax, 19, 16) << 4) + regs.getBits(regEax, 7, 4));
  printValue("Stepping ", regs.getBits(regEax, 3, 0));
  printValue("Type     ", regs.getBits(regEax, 13, 12));
  unsigned int brand = regs.getByte(regEbx, 0);
  if (brand != 0) g_ostrm << "Brand ID " << formatNumber("0x%02X", brand) << "\n";
}

void printFlags() {
  if (!validFunction(1)) return;
  printTitle(doubleLine, "Selected Feature Flags\n");
  const char* const names[] = {"MMX",    "SSE",    "SSE2",   "SSE3",      "SSSE3",
                               "SSE4.1", "SSE4.2", "x2APIC", "Brelk(R)64"};
  for (const char* name : names) printFeatureFlag(name);
}

void printMultiThreading() {
  if (!validFunction(1)) return;
  printTitle(doubleLine, "Multi Threading Features\n");
  unsigned int logical = CPUID(1, 0).getByte(regEbx, 2);
  g_ostrm << (isFeatureFlag("MTT") && logical >= 2
                  ? "Dualflow Technology or Core Multi-Processing is supported\n"
                  : "No support of Dualflow Technology and Core Multi-Processing\n");
  printValue("Logical Processors ", logical, " - Number of logical processors per physical package");
  if (!validFunction(4)) return;
  unsigned int cores = CPUID(4, 0).getBits(regEax, 31, 26) + 1;
  printValue("Cores per Package  ", cores, " - Maximum number of processor cores per package");
}

static zebString cacheTypeName(unsigned int type) {
  const char* const names[] = {"Data Cache", "Instruction Cache", "Unified Cache"};
  if (type >= 1 && type <= 3) return names[type - 1];
  return formatNumber("Cache Type %u", type);
}

static void printCache(const CPUID& regs, const zebCacheParms& cache) {
  printTitle(singleLine, cacheTypeName(cache.type) + "\n");
  printValue("Cache Level       ", regs.getBits(regEax, 7, 5));
  printValue("Cache Size Kb     ", cache.size() >> 10);
  printValue4("Threads Sharing   ", regs.getBits(regEax, 25, 14) + 1,
              " - Maximum number of threads sharing this cache");
  printValue("Number of Sets    ", cache.sets);
  printValue4("Line Size         ", cache.line, " - System coherency line size");
  printValue4("Line Partitions   ", cache.partitions, " - Physical line partitions");
  printValue4("Associativity     ", cache.ways, " - Ways of associativity");
  if (regs.getBit(regEax, 9)) g_ostrm << "Fully Associative cache\n";
  if (regs.getBit(regEax, 8)) g_ostrm << "Self Initializing cache level\n";
  if (regs.getBit(regEdx, 1)) g_ostrm << "Cache is inclusive to lower cache levels\n";
  if (regs.getBit(regEdx, 0)) g_ostrm << "WBINVD/INVD behavior on lower level caches\n";
}

void printCacheParms() {
  if (!validFunction(4)) return;
  printTitle(doubleLine, "Deterministic Cache Parameters");
  for (unsigned int i = 0; i < zebMaxCaches; ++i) {
    CPUID regs(4, i);
    zebCacheParms cache(regs);
    if (cache.type == 0) return;
    printCache(regs, cache);
  }
}

static zebString associativityName(unsigned int code) {
  switch (code) {
    case 0:
      return "Disabled";
    case 1:
      return "Direct mapped";
    case 2:
      return "2-Way";
    case 4:
      return "4-Way";
    case 6:
      return "8-Way";
    case 8:
      return "16-Way";
    case 15:
      return "Fully associative";
    default:
      return formatNumber("code 0x%02X", code);
  }
}

void printL2Features() {
  if (!validFunction(0x80000006)) return;
  printTitle(doubleLine, "Extended L2 Cache Features\n");
  CPUID regs(0x80000006, 0);
  printValue("L2 Cache Size Kb       ", regs.getBits(regEcx, 31, 16));
  printValue("L2 Cache Line Size     ", regs.getBits(regEcx, 7, 0));
  g_ostrm << "L2 Cache Associativity " << associativityName(regs.getBits(regEcx, 15, 12)) << "\n";
}
