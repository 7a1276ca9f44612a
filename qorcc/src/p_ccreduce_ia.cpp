// Fewer levels for each channel, with dither and noise: the error that the eye sees least.
#define MOK_SOURCE "qorcc/src/p_ccreduce_ia"
#include "p_cccommon.h"

class mokccDitherIterator : public zebMapIterator<QoriDitherType> {
 public:
  mokccDitherIterator();
};

mokccDitherIterator::mokccDitherIterator() {
  (*this)[qorDitherNone] = "None";
  (*this)[qorDitherFS] = "FS";
  (*this)[qorDitherJJN] = "JJN";
  (*this)[qorDitherStucki] = "Stucki";
  (*this)[qorDitherBayer] = "Bayer";
}

static mokccDitherIterator dtype;
static zebEnumIterator<int> noise;  // percent

static mokImage pSrc, pDst;
static QoriSize size;
static int srcStep, dstStep;
static const int levels = 3;

class TimiReduce : public mokTest {
 public:
  using mokTest::mokTest;

  bool canStart() override;
  bool initData() override;
  void flushData() override;
  double getDivisor() override { return double(pDst.m_size.width) * pDst.m_size.height; }
  zebString getUnit() override { return "px"; }
};

static void initDither() {
  dtype.reset();
  dtype.init(qorDitherNone, "DitherType", "");
  dtype.add(qorDitherNone);
  dtype.add(qorDitherFS);
  dtype.add(qorDitherJJN);
  dtype.add(qorDitherStucki);
  dtype.add(qorDitherBayer);
}

static void initNoise() {
  noise.reset();
  noise.init(0, "Noise", "");
  noise.add(0);
  noise.add(20);
}

bool TimiReduce::canStart() {
  initDither();
  initNoise();
  m_parms.push_back(&g_imageSize);
  m_parms.push_back(&dtype);
  m_parms.push_back(&noise);
  return true;
}

bool TimiReduce::initData() {
  size = g_imageSize.value();
  pSrc.init(m_func, mokArgSrc);
  pDst.init(m_func, mokArgDst);
  if (!pSrc.createVectorExt(size.width, size.height, 0, modeRandom, 0, 0)) return false;
  if (!pDst.createVectorExt(size.width, size.height, zebGetVectorShift(), modeConst, 0, 0)) return false;
  srcStep = pSrc.m_step;
  dstStep = pDst.m_step;
  return true;
}

void TimiReduce::flushData() {
  pSrc.deleteVector();
  pDst.deleteVector();
}

#define REDUCE(from, to) \
  (pSrc.p##from, srcStep, pDst.p##to, dstStep, size, noise.value(), dtype.value(), levels)

MOK_REG(TimiReduce, qoriReduceBits_16s8u_AC4R, REDUCE(16s, 8u))
MOK_REG(TimiReduce, qoriReduceBits_16s8u_C1R, REDUCE(16s, 8u))
MOK_REG(TimiReduce, qoriReduceBits_16s8u_C3R, REDUCE(16s, 8u))
MOK_REG(TimiReduce, qoriReduceBits_16s8u_C4R, REDUCE(16s, 8u))
MOK_REG(TimiReduce, qoriReduceBits_16s_AC4R, REDUCE(16s, 16s))
MOK_REG(TimiReduce, qoriReduceBits_16s_C1R, REDUCE(16s, 16s))
MOK_REG(TimiReduce, qoriReduceBits_16s_C3R, REDUCE(16s, 16s))
MOK_REG(TimiReduce, qoriReduceBits_16s_C4R, REDUCE(16s, 16s))
MOK_REG(TimiReduce, qoriReduceBits_16u8u_AC4R, REDUCE(16u, 8u))
MOK_REG(TimiReduce, qoriReduceBits_16u8u_C1R, REDUCE(16u, 8u))
MOK_REG(TimiReduce, qoriReduceBits_16u8u_C3R, REDUCE(16u, 8u))
MOK_REG(TimiReduce, qoriReduceBits_16u8u_C4R, REDUCE(16u, 8u))
MOK_REG(TimiReduce, qoriReduceBits_16u_AC4R, REDUCE(16u, 16u))
MOK_REG(TimiReduce, qoriReduceBits_16u_C1R, REDUCE(16u, 16u))
MOK_REG(TimiReduce, qoriReduceBits_16u_C3R, REDUCE(16u, 16u))
MOK_REG(TimiReduce, qoriReduceBits_16u_C4R, REDUCE(16u, 16u))
MOK_REG(TimiReduce, qoriReduceBits_32f16s_AC4R, REDUCE(32f, 16s))
MOK_REG(TimiReduce, qoriReduceBits_32f16s_C1R, REDUCE(32f, 16s))
MOK_REG(TimiReduce, qoriReduceBits_32f16s_C3R, REDUCE(32f, 16s))
MOK_REG(TimiReduce, qoriReduceBits_32f16s_C4R, REDUCE(32f, 16s))
MOK_REG(TimiReduce, qoriReduceBits_32f16u_AC4R, REDUCE(32f, 16u))
MOK_REG(TimiReduce, qoriReduceBits_32f16u_C1R, REDUCE(32f, 16u))
MOK_REG(TimiReduce, qoriReduceBits_32f16u_C3R, REDUCE(32f, 16u))
MOK_REG(TimiReduce, qoriReduceBits_32f16u_C4R, REDUCE(32f, 16u))
MOK_REG(TimiReduce, qoriReduceBits_32f8u_AC4R, REDUCE(32f, 8u))
MOK_REG(TimiReduce, qoriReduceBits_32f8u_C1R, REDUCE(32f, 8u))
MOK_REG(TimiReduce, qoriReduceBits_32f8u_C3R, REDUCE(32f, 8u))
MOK_REG(TimiReduce, qoriReduceBits_32f8u_C4R, REDUCE(32f, 8u))
MOK_REG(TimiReduce, qoriReduceBits_8u_AC4R, REDUCE(8u, 8u))
MOK_REG(TimiReduce, qoriReduceBits_8u_C1R, REDUCE(8u, 8u))
MOK_REG(TimiReduce, qoriReduceBits_8u_C3R, REDUCE(8u, 8u))
MOK_REG(TimiReduce, qoriReduceBits_8u_C4R, REDUCE(8u, 8u))
