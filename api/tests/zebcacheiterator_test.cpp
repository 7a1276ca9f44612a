#include "zebcacheiterator.h"

#include <gtest/gtest.h>

#include "capture.h"
#include "scriptedcpu.h"
#include "zebenumiterator.h"
#include "zebmemory.h"
#include "zebobject.h"

namespace {

int s_cacheStatus;

int oneMegabyte(int* size) {
  *size = 1048576;
  return s_cacheStatus;
}

struct SizedObject : zebObject {
  int objectSize() const override { return m_bytes; }
  int m_bytes = 0;
};

struct CacheIterator : testing::Test {
  CacheIterator() : m_screen(outPerf), m_parm(0, "len") {
    zebCacheIterator::m_maxCacheSize = oneMegabyte;
    s_cacheStatus = 0;
    m_parm.add(1024);
    m_parm.add(4096);
    m_cache.firstValue();
    m_withObject.firstValue();
  }
  ~CacheIterator() override { zebCacheIterator::m_maxCacheSize = m_saved; }

  // Whether data of so many bytes, registered and not touched, are accepted.
  static bool accepts(zebCacheIterator& cache, int bytes) {
    void* const block = zebMalloc(bytes, 0, 0, nullptr);
    const bool accepted = cache.validateSize();
    zebFree(block);
    return accepted;
  }

  Capture m_screen;
  int (*m_saved)(int*) = zebCacheIterator::m_maxCacheSize;
  zebIterator<int> m_parm;
  SizedObject m_object;
  zebCacheIteratorInt m_cache{m_parm, nullptr, nullptr};
  zebCacheIteratorInt m_withObject{m_parm, &m_object, nullptr};
};

TEST_F(CacheIterator, AcceptsDataWithinTheBoundsOfItsModeAndTellsWhatIsOutside) {
  EXPECT_FALSE(accepts(m_cache, 943719));
  m_object.m_bytes = 104856;
  EXPECT_FALSE(accepts(m_withObject, 200000));
  m_cache.nextValue();
  EXPECT_TRUE(accepts(m_cache, 1101004));
  EXPECT_FALSE(accepts(m_cache, 1101003));
  EXPECT_EQ(m_screen.text(),
            "      inCache try: cacheParm=1024 totalSize=943719 > 943718\n"
            "      inCache try: cacheParm=1024 objectSize=104856 < 104857\n"
            "      outofCache try: cacheParm=1024 totalSize=1101003 < 1101004\n");
}

TEST_F(CacheIterator, ComesCloseAtOnceAndThenGoesByTwos) {
  EXPECT_EQ(m_cache.description(), "len = 1024; 4096") << "speaks of the size parameter";
  const int courses[][3] = {{2000000, 256, 128}, {100000, 8192, 16384}};
  for (const auto& [bytes, first, second] : courses) {
    for (int wanted : {first, second}) {
      EXPECT_FALSE(accepts(m_cache, bytes));
      EXPECT_TRUE(m_cache.repeatValue());
      EXPECT_EQ(m_parm.value(), wanted);
    }
    m_cache.nextValue();
  }
}

TEST_F(CacheIterator, TriesElevenSizesOfTheTestsOwnSetterAndTellsThemIfTheyWereHidden) {
  static zebString s_asked;
  zebCacheIteratorInt cache(m_parm, nullptr, [](zebParameter*, int current, int target, bool fine) {
    s_asked << current << ">" << target << (fine ? "f " : "c ");
    return s_asked.length() < 99 * 16;
  });
  g_ostrm.setOutLevel(outErr);
  while (!accepts(cache, 2000000) && cache.repeatValue()) continue;
  EXPECT_EQ(s_asked.length(), 11 * 16);
  EXPECT_EQ(s_asked.find("2000000>943718c 2000000>943718f "), 0);
  cache.outputInfo();
  EXPECT_EQ(m_screen.text(), cache.m_info);
}

TEST_F(CacheIterator, WidensItsBoundsOnceWhereTheyLeaveTooLittleRoom) {
  m_object.m_bytes = 5000;  // too small, while all together are too big
  for (bool first : {true, false}) {
    EXPECT_FALSE(accepts(m_withObject, 2000000));
    EXPECT_EQ(m_withObject.repeatValue(), first);
  }
  m_withObject.firstValue();
  m_object.m_bytes = 200000;
  for (int i = 0; i < 2; ++i) EXPECT_FALSE(accepts(m_withObject, 2000000) || !m_withObject.repeatValue());
  m_object.m_bytes = 50000;  // the search swings
  EXPECT_TRUE(accepts(m_withObject, 500000));
}

TEST_F(CacheIterator, EndsTheSearchAtOnceWithoutDataOrCache) {
  EXPECT_FALSE(m_cache.validateSize() || m_cache.repeatValue());
  m_cache.firstValue();
  s_cacheStatus = 36;
  EXPECT_FALSE(accepts(m_cache, 1000) || m_cache.repeatValue());
}

TEST(CacheSize, IsThatOfTheReportsOnOtherProcessorsToo) {
  ScriptedCpu other;
  other.setVendor("OtherVendor.", 4);
  EXPECT_EQ(zebCacheIterator::cacheSize(), 0);
  other.setCache(0, 3, 2, 4096, 64, 16);
  EXPECT_EQ(zebCacheIterator::cacheSize(), 4096 * 64 * 16);
}

TEST(CacheSteps, ShareTheFactorBetweenWidthAndHeightAndStayInRange) {
  const struct {
    int current, target;
    bool fine;
    const char* result;  // of a step from 64x64
  } cases[] = {
      {100000, 800001, false, "256x128"}, {100000, 800000, false, "128x128"},
      {1000000, 943718, false, "64x32"},  {100000, 1101004, true, "128x64"},
      {100000, 100000, true, "64x32"},    {2147483647, 1, false, "64x64"},
  };
  for (const auto& c : cases) {
    zebEnumIterator<QoriSize> parm({64, 64}, "size");
    zebCacheIteratorSize(parm, nullptr, nullptr).setNewValueToParm(c.current, c.target, c.fine);
    EXPECT_EQ(parm.valueString(), c.result) << c.current << " to " << c.target;
  }
}

}  // namespace
