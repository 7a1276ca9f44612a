#include "zebcpuid.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "scriptedcpu.h"
#include "zebcpuregs.h"

namespace {

TEST(Cpuid, FindsAvxWhereTheKernelDoes) {
  std::stringstream text;
  text << std::ifstream("/proc/cpuinfo").rdbuf();
  EXPECT_EQ(qor_is_avx_extension(), text.str().find(" avx ") != std::string::npos);
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
  std::ostringstream text;
  text << std::hex << rec.stepping << " " << rec.model << " " << rec.family << " " << rec.type << " "
       << rec.extModel << " " << rec.extFamily << " " << rec.feature << " " << rec.cacheEax << " "
       << rec.cacheEdx << " " << rec.cores;
  EXPECT_EQ(text.str(), "d 7 c 2 a fb 12000000 11223301 55667788 4");
  EXPECT_EQ(rec.sse + rec.ssse3 + rec.movbe + rec.mt + rec.x64, 5u);
  EXPECT_EQ(rec.mmx + rec.sse2 + rec.sse3 + rec.sse41 + rec.sse42 + rec.avx, 0u);
}

TEST(Cpuid, FindsAvxOnlyWhereTheSystemSavesItsRegisters) {
  const unsigned int osxsave = 1u << 27, avx = 1u << 28;
  const unsigned int cases[][3] = {// ECX, XCR0, and whether there is AVX
                                   {osxsave | avx, 7, 1}, {osxsave | avx, 6, 1}, {osxsave | avx, 3, 0},
                                   {osxsave | avx, 5, 0}, {avx, 7, 0},           {osxsave, 7, 0}};
  for (const auto& [ecx, xcr0, wanted] : cases) {
    ScriptedCpu cpu;
    cpu.setVendor("GenuineBrelk", 1);
    cpu.set(1, 0, 0, 0, ecx, 0);
    cpu.m_xcr0 = xcr0;
    EXPECT_EQ(qor_is_avx_extension() != 0, wanted) << ecx << " " << xcr0;
  }
}

TEST(Cpuid, TakesTheAnswerOfAFunctionThatTheProcessorLacksForZero) {
  ScriptedCpu cpu;
  cpu.setVendor("GenuineBrelk", 3);
  cpu.set(1, 0, 0, 1u << 16, 0, 1u << 28);  // one thread
  cpu.set(4, 0, 3u << 26 | 1, 0, 0, 0);
  cpu.set(0x80000000, 0, 0x80000000, 0, 0, 0);
  cpu.set(0x80000001, 0, 0, 0, 0, ~0u);
  EXPECT_EQ(qor_get_cores_on_die(), 1);
  EXPECT_EQ(qor_is_x64_extension() + qor_is_mt_extension(), 0);
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
    cpu.setCache(0, 1, 1, 64, 8);  // a function 4 of its own
    EXPECT_EQ(qor_get_cores_on_die(), 1);
  }
}

}  // namespace
