#include "zebcpuid.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "scriptedcpu.h"
#include "zebcpuregs.h"

namespace {

TEST(Cpuid, AgreesWithTheKernel) {
  std::ifstream file("/proc/cpuinfo");
  std::stringstream text;
  QorCpuRec rec;
  ASSERT_EQ(qor_get_cpu_ident(&rec), 1);
  text << file.rdbuf();
  EXPECT_EQ(qor_is_avx_extension(), text.str().find(" avx ") != std::string::npos);
  std::stringstream model;
  model << "cpu family\t: " << rec.family + rec.extFamily << "\nmodel\t\t: " << rec.extModel * 16 + rec.model
        << "\n";
  EXPECT_NE(text.str().find(model.str()), std::string::npos) << model.str();
}

// The record's numbers, then the names of its flags.
std::string textOf(const QorCpuRec& r) {
  std::ostringstream text;
  text << std::hex << r.stepping << " " << r.model << " " << r.family << " " << r.type << " " << r.extModel
       << " " << r.extFamily << " " << r.feature << " " << r.cacheEax << " " << r.cacheEdx << " " << r.cores
       << (r.mmx ? " mmx" : "") << (r.sse ? " sse" : "") << (r.sse2 ? " sse2" : "") << (r.sse3 ? " sse3" : "")
       << (r.ssse3 ? " ssse3" : "") << (r.sse41 ? " sse41" : "") << (r.sse42 ? " sse42" : "")
       << (r.movbe ? " movbe" : "") << (r.avx ? " avx" : "") << (r.mt ? " mt" : "") << (r.x64 ? " x64" : "");
  return text.str();
}

TEST(Cpuid, TakesTheRecordApartBitByBit) {
  ScriptedCpu cpu;
  cpu.setVendor("GenuineBrelk", 4);
  cpu.set(1, 0, 0xFFBAEC7D, 2u << 16, 1u << 22 | 1u << 9, 1u << 28 | 1u << 25);
  cpu.set(2, 0, 0x11223301, 0, 0, 0x55667788);
  cpu.set(4, 0, 3u << 26 | 1, 0, 0, 0);
  cpu.set(0x80000000, 0, 0x80000001, 0, 0, 0);
  cpu.set(0x80000001, 0, 0, 0, 0, 1u << 29);
  QorCpuRec rec;
  EXPECT_EQ(qor_get_cpu_ident(&rec), 1);
  EXPECT_EQ(textOf(rec), "d 7 c 2 a fb 12000000 11223301 55667788 4 sse ssse3 movbe mt x64");
}

TEST(Cpuid, CountsThreadsWhereThereAreSeveralAndAvxWhereTheSystemSavesItsRegisters) {
  const unsigned int osxsave = 1u << 27, avx = 1u << 28;
  const unsigned int cases[][5] = {// logical processors, ECX, XCR0, whether there are threads, and AVX
                                   {0, osxsave | avx, 7, 0, 1}, {1, osxsave | avx, 6, 0, 1},
                                   {2, osxsave | avx, 3, 1, 0}, {2, osxsave | avx, 5, 1, 0},
                                   {2, avx, 7, 1, 0},           {2, osxsave, 7, 1, 0}};
  for (const auto& [logical, ecx, xcr0, mtWanted, avxWanted] : cases) {
    ScriptedCpu cpu;
    cpu.setVendor("GenuineBrelk", 1);
    cpu.set(1, 0, 0, logical << 16, ecx, 1u << 28);
    cpu.m_xcr0 = xcr0;
    EXPECT_EQ(qor_is_mt_extension() != 0, mtWanted) << logical;
    EXPECT_EQ(qor_is_avx_extension() != 0, avxWanted) << ecx << " " << xcr0;
  }
}

TEST(Cpuid, AnswersZeroForWhatTheProcessorLacks) {
  ScriptedCpu cpu;
  cpu.m_hasCpuid = 0;
  QorCpuRec rec;
  EXPECT_EQ(qor_get_cpu_ident(&rec), 0);
  EXPECT_EQ(qor_is_GenuineBrelk() + qor_has_rdtsc() + qor_is_x64_extension(), 0);
  EXPECT_EQ(cpu.m_calls, 0) << "never run without the instruction";
  cpu.m_hasCpuid = 1;
  cpu.setVendor("GenuineBrelk", 3);
  cpu.set(4, 0, 3u << 26 | 1, 0, 0, 0);
  cpu.set(0x80000000, 0, 0x80000000, 0, 0, 0);
  cpu.set(0x80000001, 0, 0, 0, 0, ~0u);
  EXPECT_EQ(qor_get_cores_on_die(), 1);
}

// A processor of another maker that tells caches and cores in functions of its own.
TEST(ForeignCpu, TellsItsCachesAndCoresThroughFunctionFourUnlessItHasThatFunction) {
  // Signature and cores, of 16 threads, 2 of a core; in older families a thread was a core.
  const unsigned int cases[][2] = {{0x00A20F12, 8}, {0x00600F12, 16}};
  for (const auto& [signature, cores] : cases) {
    ScriptedCpu cpu;
    cpu.setVendor("OtherVendor.", 0x10);
    cpu.set(1, 0, signature, 0, 0, 0);
    cpu.set(0x80000000, 0, 0x8000001E, 0, 0, 0);
    cpu.set(0x80000001, 0, 0, 0, 1u << 22, 0);
    cpu.set(0x80000008, 0, 0, 0, 15, 0);
    cpu.set(0x8000001D, 1, 0x143, 0x01C0003F, 0x3FF, 2);
    cpu.set(0x8000001E, 0, 0, 0x100, 0, 0);
    unsigned int regs[4];
    ownGetReg(regs, 4, 1);
    EXPECT_EQ(zebBits(regs[regEax], 25, 0), 0x143u);
    EXPECT_EQ(static_cast<unsigned int>(qor_get_cores_on_die()), cores);
    cpu.setCache(0, 1, 1, 64, 64, 8);  // a function 4 of its own
    EXPECT_EQ(qor_get_cores_on_die(), 1);
  }
}

}  // namespace
