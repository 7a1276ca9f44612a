#include "zebbrelkcpu.h"

#include <gtest/gtest.h>

#include "capture.h"
#include "scriptedcpu.h"

namespace {

zebString report(int level) {
  Capture console(level);
  __zebBrelkCpuTest test("__zebBrelkCpu", "api/src/zeb", "__zebBrelkCpuTest/Brelk CPU information");
  test.loopData();
  return console.text();
}

TEST(CpuReport, TellsAGenuineProcessorInAllItsSections) {
  ScriptedCpu cpu;
  cpu.setVendor("GenuineBrelk", 0xB);
  cpu.set(1, 0, 0x0010AFB2, 16u << 16 | 0x0B, 1u << 20, 1u << 28);  // family 15 + 1, model 0xB
  cpu.set(4, 0, 7u << 26 | 15u << 14 | 3u << 8 | 3u << 5 | 3, 15u << 22 | 1u << 12 | 63, 8191, 3);
  cpu.set(0x80000000, 0, 0x80000008, 0, 0, 0);
  cpu.set(0x80000006, 0, 0, 0, 0x01006040, 0);
  const zebString text = report(outPerf);
  for (const char* part :
       {"\nLargest Standard Function 0x0000000B\nLargest Extended Function 0x80000008\nVendor-ID ",
        "Family   16\nModel    11\nStepping 2\nType     2\nBrand ID 0x0B\n\n",
        "Dualflow Technology or Core Multi-Processing is supported\nLogical Processors 16 - ",
        "Cores per Package  8 - Maximum number of processor cores per package\n",
        "Threads Sharing   16   - Maximum number of threads sharing this cache\n",
        "Fully Associative cache\nSelf Initializing cache level\nCache is inclusive to lower cache levels\n"
        "WBINVD/INVD behavior on lower level caches\n\n",
        "L2 Cache Size Kb       256\nL2 Cache Line Size     64\nL2 Cache Associativity 8-Way\n*"}) {
    EXPECT_TRUE(contains(text, part)) << part << text.c_str();
  }
  EXPECT_FALSE(contains(text, "ATTENTION"));
  EXPECT_FALSE(contains(report(outErr), "Largest"));
}

TEST(CpuReport, LeavesOutWhatAProcessorCannotTell) {
  ScriptedCpu cpu;
  cpu.setVendor("OtherVendor.", 1);
  const zebString old = report(outErr);
  EXPECT_TRUE(contains(old, "    ATTENTION! It is not Genuine Brelk processor.\n"));
  for (const char* part : {"Brand", "Cores per Package", "Deterministic", "L2 Cache"})
    EXPECT_FALSE(contains(old, part)) << part;
  cpu.m_hasCpuid = 0;
  cpu.m_calls = 0;
  EXPECT_TRUE(contains(report(outErr), "\n\nFamily   0\nModel    0\nStepping 0\n\n="));
  EXPECT_EQ(cpu.m_calls, 0) << "never run without the instruction";
}

}  // namespace
