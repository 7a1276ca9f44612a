#include "zebcpucache.h"

#include <gtest/gtest.h>

#include "scriptedcpu.h"

TEST(CacheDescriptors, GiveTheLargestCacheNamedByAnyByte) {
  const struct {
    unsigned int a, b, c, d;
    int size;
  } cases[] = {
      {0x00004101, 0, 0, 0x7D000000 >> 8, 2097152},
      {0x00003A01, 0x3A, 0x00430000, 0x2C000000, 524288},
      {0x00000001, 0x80004D44, 0, 0x00450000, 2097152},  // EBX is marked as empty
      {0x80004501, 0, 0x44, 0, 1048576},                 // and here EAX
      {0x00004102, 0, 0, 0, 0},                          // the low byte isn't 1
      {0x00000001, 0x01020304, 0, 0, 0},
  };
  for (const auto& c : cases) {
    ScriptedCpu cpu;
    cpu.setVendor("GenuineBrelk", 2);
    cpu.set(2, 0, c.a, c.b, c.c, c.d);
    zebCacheQuery query;
    int size = -1;
    EXPECT_EQ(query.ask(&size), c.size ? 0 : 37);
    EXPECT_EQ(size, c.size) << std::hex << c.a << " " << c.b << " " << c.c << " " << c.d;
  }
}

TEST(CacheQuery, TakesTheLargestCacheThatHoldsDataAndAsksTheProcessorOnce) {
  ScriptedCpu cpu;
  cpu.setVendor("GenuineBrelk", 4);
  cpu.setCache(0, 1, 1, 64, 64, 8);
  cpu.setCache(1, 2, 1, 4096, 64, 32);  // instructions
  cpu.setCache(2, 3, 2, 4096, 64, 16);
  cpu.setCache(3, 3, 3, 512, 64, 16);
  cpu.setCache(5, 3, 4, 65536, 64, 16);  // behind the end of the list
  EXPECT_EQ(getMaxCacheSizeB(), 4096 * 64 * 32);
  EXPECT_EQ(getCacheSizeB(4), -1);
  zebCacheQuery query;
  int size = -1;
  EXPECT_EQ(query.ask(&size), 0);
  EXPECT_EQ(size, 4096 * 64 * 16);
  const int calls = cpu.m_calls;
  EXPECT_EQ(query.ask(&size), 0);
  EXPECT_EQ(cpu.m_calls, calls);
}

TEST(CacheQuery, RefusesProcessorsThatItDoesNotKnow) {
  ScriptedCpu cpu;
  int size = -1;
  for (unsigned int i = 0; i < 40; ++i) cpu.setCache(i, 1, 1, 64, 64, 8);  // no end to the list
  cpu.setVendor("OtherVendor.", 4);
  EXPECT_EQ(zebCacheQuery().ask(&size), 36);
  EXPECT_EQ(size, 0);
  EXPECT_EQ(getMaxCacheSizeB(), 32768);
  cpu.setVendor("GenuineBrelk", 1);
  EXPECT_EQ(zebCacheQuery().ask(&size), 36);
}
