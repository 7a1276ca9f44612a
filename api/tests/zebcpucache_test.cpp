#include "zebcpucache.h"

#include <gtest/gtest.h>

#include "scriptedcpu.h"

TEST(CacheDescriptors, GiveTheLargestCacheNamedByAnyByte) {
  // EAX to EDX, and the size.
  const unsigned int cases[][5] = {
      {0x00004101, 0, 0, 0x007D0000, 2097152},
      {0x00000001, 0x80004D44, 0, 0x00450000, 2097152},  // EBX is marked as empty
      {0x80004501, 0, 0x44, 0, 1048576},                 // and here EAX
      {0x00004102, 0, 0, 0, 0},                          // the low byte isn't 1
  };
  for (const auto& [a, b, c, d, bytes] : cases) {
    ScriptedCpu cpu;
    cpu.setVendor("GenuineBrelk", 2);
    cpu.set(2, 0, a, b, c, d);
    zebCacheQuery query;
    int size = -1;
    EXPECT_EQ(query.ask(&size), bytes ? 0 : 37);
    EXPECT_EQ(size, static_cast<int>(bytes)) << std::hex << a << " " << b << " " << c << " " << d;
  }
}

TEST(CacheQuery, TakesTheLargestCacheThatHoldsDataAndAsksTheProcessorOnce) {
  ScriptedCpu cpu;
  cpu.setVendor("GenuineBrelk", 4);
  cpu.setCache(0, 2, 1, 4096, 32);  // instructions
  cpu.setCache(1, 3, 2, 4096, 16);
  cpu.setCache(2, 3, 3, 512, 16);
  cpu.setCache(4, 3, 4, 65536, 16);  // behind the end of the list
  EXPECT_EQ(getMaxCacheSizeB(), 4096 * 64 * 32);
  zebCacheQuery query;
  int size = -1;
  EXPECT_EQ(query.ask(&size), 0);
  EXPECT_EQ(size, 4096 * 64 * 16);
  const int calls = cpu.m_calls;
  EXPECT_EQ(query.ask(&size), 0);
  EXPECT_EQ(cpu.m_calls, calls);
}
