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

// Bytes, 0 for unknown. In cache now means 26214 to 235929, out of cache from 275251 on.
int s_cache = 262144;

int scriptedCache(int* size) {
  *size = s_cache;
  return s_cache > 0 ? 0 : 36;
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
    m_other.add({3, 2});
    m_source.init(m_func, mokArgSrc);
    regCacheParm(m_size, m_source, nullptr);
    regCacheParm(m_other, nullptr);
    return true;
  }
  bool initData() override { return m_source.createVector(m_size.value(), modeRandom, 0, 0); }
  void flushData() override { m_source.deleteVector(); }

 private:
  zebIterator<QoriSize> m_size{{0, 0}, "size", ""};
  zebIterator<QoriSize> m_other{{0, 0}, "other", ""};
  mokImage m_source;
};

TEST(CacheMode, FindsTheFirstImageSizeByTrialAndLeavesOthersAlone) {
  int (*const saved)(int*) = zebCacheIterator::m_maxCacheSize;
  zebCacheIterator::m_maxCacheSize = scriptedCache;
  zebTest::m_cache = true;
  zebTest::m_numParmsColm = 9;
  zebTest::m_numResultColm = 6;
  zebCpuTicker::m_freqMHz = 1000;
  Capture screen(outPerf);
  TableFile table(g_cstrm);
  EXPECT_EQ(SizeTest().run(), resOk);
  // 64x64 pixels of 3 bytes are 12288.
  EXPECT_TRUE(contains(screen.text(), "      inCache try: cacheParm=64x64 objectSize=12288 < 26214\n"));
  EXPECT_TRUE(contains(table.text(), ",128x128,3x2,-,-,-,-,inCache nLps=4,")) << table.text().c_str();
  EXPECT_TRUE(contains(table.text(), ",512x256,3x2,-,-,-,-,outofCache nLps=4,"));
  s_cache = 0;
  EXPECT_EQ(SizeTest().run(), resDataError);
  EXPECT_TRUE(contains(screen.text(), "inCache:size=64x64 other=3x2 \n-- Fail to allocate inCache data\n"));
  zebTest::m_cache = false;
  zebCacheIterator::m_maxCacheSize = saved;
}

}  // namespace
