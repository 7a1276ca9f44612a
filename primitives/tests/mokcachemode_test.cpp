// The mode that measures in and out of cache, from the registered size to the table.
#include <gtest/gtest.h>

#include "capture.h"
#include "mokimage.h"
#include "moktest.h"
#include "zebcacheiterator.h"
#include "zebgeometry.h"
#include "zebiterator.h"
#include "zebticker.h"

namespace {

constexpr int s_cache = 262144;  // bytes; in cache means 26214 to 235929, out of cache from 275251 on
int s_scripted = s_cache;        // 0: unknown

int scriptedCache(int* size) {
  *size = s_scripted;
  return s_scripted > 0 ? 0 : 36;
}

zebResult loop(int loops, long long* clocks) {
  *clocks = 1000LL * loops;
  return resOk;
}

class SizeTest : public mokTest {
 public:
  SizeTest() : mokTest(nullptr, nullptr, loop, nullptr, "qoriCopy_8u_C3R", "file", "SizeTest//MOK_REG") {}

  bool canStart() override {
    m_size.add({64, 64});
    m_source.init(m_func, mokArgSrc);
    regCacheParm(m_size, m_source, nullptr);
    return true;
  }
  bool initData() override { return m_source.createVector(m_size.value(), modeRandom, 0, 0); }
  void flushData() override { m_source.deleteVector(); }

 private:
  zebIterator<QoriSize> m_size{{0, 0}, "size", ""};
  mokImage m_source;
};

class CacheMode : public testing::Test {
 protected:
  CacheMode() : m_saved(zebCacheIterator::m_maxCacheSize) {
    zebCacheIterator::m_maxCacheSize = scriptedCache;
    s_scripted = s_cache;
    zebTest::m_cache = true;
    zebTest::m_numParmsColm = 9;
    zebTest::m_numResultColm = 6;
    zebCpuTicker::m_freqMHz = 1000;
    g_cstrm.tableFlush();
  }
  ~CacheMode() override {
    zebCacheIterator::m_maxCacheSize = m_saved;
    zebTest::m_cache = false;
    zebTest::m_numParmsColm = zebTest::m_numResultColm = 0;
  }

 private:
  int (*m_saved)(int*);
};

TEST_F(CacheMode, FindsAnImageSizeForEachModeByTrial) {
  Capture screen(outPerf);
  TableFile table(g_cstrm);
  EXPECT_EQ(SizeTest().run(), resOk);
  const zebString text = screen.text();
  // 64x64 pixels of 3 bytes are 12288.
  EXPECT_TRUE(contains(text,
                       "      inCache try: cacheParm=64x64 objectSize=12288 < 26214\n"
                       "      inCache try: cacheParm=128x64 objectSize=24576 < 26214\n"
                       "inCache:size=128x128 \n"))
      << text.c_str();
  EXPECT_TRUE(contains(table.text(), ",128x128,-,-,-,-,-,inCache nLps=4,"));
  EXPECT_TRUE(contains(table.text(), ",512x256,-,-,-,-,-,outofCache nLps=4,"));
}

TEST_F(CacheMode, FitsNothingIntoACacheOfUnknownSize) {
  Capture screen(outErr);
  s_scripted = 0;
  EXPECT_EQ(SizeTest().run(), resDataError);
  EXPECT_TRUE(contains(screen.text(), "inCache:size=64x64 \n-- Fail to allocate inCache data\n"))
      << screen.text().c_str();
}

}  // namespace
