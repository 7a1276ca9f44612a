#include "zebcacheiterator.h"

#include <gtest/gtest.h>

#include "capture.h"
#include "zebenumiterator.h"
#include "zebmemory.h"
#include "zebobject.h"

namespace {

int oneMegabyte(int* size) {
  *size = 1048576;
  return 0;
}

struct SizedObject : zebObject {
  int objectSize() const override { return m_bytes; }
  int m_bytes = 0;
};

struct CacheIterator : testing::Test {
  CacheIterator() : m_screen(outPerf), m_parm(0, "len") {
    zebCacheIterator::m_maxCacheSize = oneMegabyte;
    m_parm.add(1024);
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

TEST_F(CacheIterator, TriesElevenSizesOfTheTestsOwnSetterAndTellsThemIfTheyWereHidden) {
  static int s_asked = 0;
  zebCacheIteratorInt cache(m_parm, nullptr, [](zebParameter*, int current, int target, bool fine) {
    EXPECT_TRUE(current == 2000000 && target == 943718 && fine == (s_asked > 0));
    return ++s_asked < 99;
  });
  g_ostrm.setOutLevel(outErr);
  while (!accepts(cache, 2000000) && cache.repeatValue()) continue;
  EXPECT_EQ(s_asked, 11);
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

TEST(CacheSteps, ComeCloseAtOnceOrGoByTwosSharedBetweenWidthAndHeightAndStayInRange) {
  const struct {
    int current, target;
    bool fine;
    const char *length, *size;  // a step from 64, and from 64x64
  } cases[] = {
      {100000, 800001, false, "512", "256x128"}, {100000, 800000, false, "256", "128x128"},
      {1000000, 943718, false, "32", "64x32"},   {100000, 1101004, true, "128", "128x64"},
      {100000, 100000, true, "32", "64x32"},     {2147483647, 1, false, "64", "64x64"},
  };
  for (const auto& c : cases) {
    zebIterator<int> length(64, "length");
    zebCacheIteratorInt(length, nullptr, nullptr).setNewValueToParm(c.current, c.target, c.fine);
    EXPECT_EQ(length.valueString(), c.length) << c.current << " to " << c.target;
    zebEnumIterator<QoriSize> size({64, 64}, "size");
    zebCacheIteratorSize(size, nullptr, nullptr).setNewValueToParm(c.current, c.target, c.fine);
    EXPECT_EQ(size.valueString(), c.size) << c.current << " to " << c.target;
  }
}

}  // namespace
