#include "zebbrelkcpu.h"

#include <gtest/gtest.h>

#include "capture.h"
#include "scriptedcpu.h"
#include "zebcpuflags.h"

namespace {

zebString report(int level) {
  Capture console(level);
  __zebBrelkCpuTest test("__zebBrelkCpu", "api/src/zeb", "__zebBrelkCpuTest/Brelk CPU information");
  test.loopData();
  return console.text();
}

zebString ruleOf(char c) {
  zebString line;
  line.resize(79, c);
  return line + "\n";
}

const zebString stars = ruleOf('*');
const zebString rule = ruleOf('=');
const zebString thinRule = ruleOf('-');

}  // namespace

TEST(CpuReport, TellsAGenuineProcessorInAllItsSections) {
  ScriptedCpu cpu;
  cpu.setVendor("GenuineBrelk", 0xB);
  cpu.set(1, 0, 0x000116A5, 16u << 16 | 0x0B, 1u << 20, 1u << 28);  // stepping 5, type 1, brand 0x0B
  cpu.set(4, 0, 7u << 26 | 1u << 14 | 1u << 8 | 1u << 5 | 1, 7u << 22 | 63, 63, 0);
  cpu.set(4, 1, 7u << 26 | 15u << 14 | 1u << 9 | 3u << 5 | 3, 15u << 22 | 1u << 12 | 63, 8191, 3);
  cpu.set(4, 2, 2u << 5 | 7, 63, 0, 0);
  cpu.set(0x80000000, 0, 0x80000008, 0, 0, 0);
  cpu.set(0x80000006, 0, 0, 0, 0x01006040, 0);
  const zebString text = report(outPerf);
  const zebString parts[] = {
      stars + "\nLargest Standard Function 0x0000000B\nLargest Extended Function 0x80000008\nVendor-ID ",
      "Stepping 5\nType     1\nBrand ID 0x0B\n\n" + rule + "    Selected Feature Flags\n\nMMX ",
      "Dualflow Technology or Core Multi-Processing is supported\n"
      "Logical Processors 16 - Number of logical processors per physical package\n"
      "Cores per Package  8 - Maximum number of processor cores per package\n",
      "Self Initializing cache level\n\n" + thinRule +
          "    Unified Cache\n"
          "\n"
          "Cache Level       3\n"
          "Cache Size Kb     16384\n"
          "Threads Sharing   16   - Maximum number of threads sharing this cache\n"
          "Number of Sets    8192\n"
          "Line Size         64   - System coherency line size\n"
          "Line Partitions   2    - Physical line partitions\n"
          "Associativity     16   - Ways of associativity\n"
          "Fully Associative cache\n"
          "Cache is inclusive to lower cache levels\n"
          "WBINVD/INVD behavior on lower level caches\n"
          "\n" +
          thinRule + "    Cache Type 7\n",
      "L2 Cache Size Kb       256\nL2 Cache Line Size     64\nL2 Cache Associativity 8-Way\n" + stars};
  for (const zebString& part : parts) EXPECT_TRUE(contains(text, part)) << part.c_str() << text.c_str();
  EXPECT_FALSE(contains(report(outErr), "Largest"));
}

TEST(CpuReport, LeavesOutWhatAnOldForeignProcessorCannotTell) {
  ScriptedCpu cpu;
  cpu.setVendor("OtherVendor.", 1);
  cpu.set(1, 0, 0x0010AFB2, 1u << 16, 0, 1u << 28);  // family 15 + 1, model 0xB
  cpu.set(0x80000000, 0, 0x80000001, 0, 0, 0);
  const zebString text = report(outErr);
  EXPECT_TRUE(contains(text,
                       "\n\n    ATTENTION! It is not Genuine Brelk processor.\n"
                       "    Information below may be inadequate.\n" +
                           stars + "\nVendor-ID      OtherVendor.\n\n" + rule));
  EXPECT_TRUE(contains(text, "Family   16\nModel    11\nStepping 2\nType     2\n\n"));
  EXPECT_TRUE(
      contains(text, "No support of Dualflow Technology and Core Multi-Processing\nLogical Processors 1 - "));
  for (const char* part : {"Brand", "Cores per Package", "Deterministic", "L2 Cache"})
    EXPECT_FALSE(contains(text, part));
}

TEST(CpuReport, IsShortOnAProcessorWithoutCpuid) {
  ScriptedCpu cpu;
  cpu.m_hasCpuid = 0;
  const zebString text = report(outErr);
  EXPECT_TRUE(contains(text, "    Genuine Brelk      false\n" + stars + "\n\n" + rule));
  EXPECT_TRUE(contains(text, "\n\nFamily   0\nModel    0\nStepping 0\n\n" + rule));
  EXPECT_EQ(cpu.m_calls, 0);
}

TEST(FeatureFlag, SaysSoWhenItIsUnknown) {
  Capture console(outPerf);
  printFeatureFlag("a name of many columns", 1);
  EXPECT_EQ(console.text(), "a name of many columns? - unknown flag???????\n");
}
