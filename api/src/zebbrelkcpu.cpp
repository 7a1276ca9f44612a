#include "zebbrelkcpu.h"

#include "zebcpuflags.h"
#include "zebcpuregs.h"
#include "zebcpusections.h"
#include "zebostream.h"

// The characters of a register, low byte first; a text ends at its first zero byte.
static void addRegister(char* text, const CPUID& regs, int reg) {
  for (int i = 0; i < 4; ++i) text[i] = static_cast<char>(regs.getByte(reg, i));
}

static zebString vendorString() {
  char text[13] = "";
  CPUID regs(0, 0);
  addRegister(text, regs, regEbx);
  addRegister(text + 4, regs, regEdx);
  addRegister(text + 8, regs, regEcx);
  return text;
}

static zebString brandString() {
  char text[49] = "";
  if (!validFunction(0x80000004)) return text;
  for (unsigned int i = 0; i < 3; ++i) {
    CPUID regs(0x80000002 + i, 0);
    for (int reg = regEax; reg <= regEdx; ++reg) addRegister(text + 16 * i + 4 * reg, regs, reg);
  }
  return text;
}

static void printHeader() {
  zebString vendor = vendorString();
  zebString brand = brandString();
  g_ostrm << starLine << "    Brelk(R) Processor Identification\n"
          << "    Got by CPUID Instruction Functions\n";
  if (!(vendor == "GenuineBrelk")) {
    g_ostrm << "\n"
            << "    ATTENTION! It is not Genuine Brelk processor.\n"
            << "    Information below may be inadequate.\n";
  }
  g_ostrm << starLine << "\n";
  g_ostrm << msgPerf << "Largest Standard Function " << formatNumber("0x%08X", largestFunction()) << "\n"
          << "Largest Extended Function " << formatNumber("0x%08X", largestExFunction()) << "\n"
          << msgEnd;
  g_ostrm << "Vendor-ID      " << vendor << "\n";
  if (!brand.empty()) g_ostrm << "Brand String   " << brand << "\n";
}

static void printMainReport() {
  printHeader();
  printSignature();
  printFlags();
  printMultiThreading();
  printCacheParms();
  printL2Features();
  g_ostrm << starLine;
}

// For a processor without CPUID: what its record tells.
static void printShortReport() {
  QorCpuRec rec;
  qor_get_cpu_ident(&rec);
  g_ostrm << starLine << "    Brelk(R) Processor Identification\n"
          << "    Genuine Brelk      " << (qor_is_GenuineBrelk() ? "true" : "false") << "\n"
          << starLine << "\n";
  printTitle(doubleLine, "Processor Identification Signature\n");
  printValue("Family   ", rec.family);
  printValue("Model    ", rec.model);
  printValue("Stepping ", rec.stepping);
  printTitle(doubleLine, "Selected Feature Flags\n");
  const struct {
    const char* name;
    unsigned int value;
  } flags[] = {{"MMX", rec.mmx},
               {"SSE", rec.sse},
               {"SSE4.1", rec.sse41},
               {"SSE4.2", rec.sse42},
               {"Brelk(R)64", rec.x64}};
  for (const auto& flag : flags) printFeatureFlag(flag.name, static_cast<unsigned char>(flag.value));
  g_ostrm << starLine;
}

void __zebBrelkCpuTest::printInformation() {
  if (qor_has_cpuid()) {
    printMainReport();
  } else {
    printShortReport();
  }
}
