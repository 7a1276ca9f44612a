// Bayer mosaics to RGB, adaptive to the homogeneity around each pixel: with a border around the region and
// without.
#define MOK_SOURCE "qorcc/src/p_ccdemosaic_ia"
#include "p_cccommon.h"

static zebIterator<int> srcBorder;
static zebMapIterator<QoriBayerGrid> grid;

static mokImage pSrc, pDst, pTmp;
static QoriSize srcSize;  // the region and its border
static QoriRect srcRoi;
static int srcStep, dstStep, tmpStep;

class TimccDemosaic : public mokTest {
 public:
  using mokTest::mokTest;

  bool canStart() override;
  bool initData() override;
  void flushData() override;
  double getDivisor() override { return double(pDst.m_size.width) * pDst.m_size.height; }
  zebString getUnit() override { return "px"; }
};

static void initBorder() {
  srcBorder.reset();
  srcBorder.init(0, "srcBorder", "");
  srcBorder.add(0);
  srcBorder.add(5);
}

bool TimccDemosaic::canStart() {
  initBorder();
  initGrid(grid);
  m_parms.push_back(&g_imageSize);
  m_parms.push_back(&srcBorder);
  m_parms.push_back(&grid);
  return true;
}

bool TimccDemosaic::initData() {
  const QoriSize roi = g_imageSize.value();
  const int border = srcBorder.value();
  srcRoi = {border, border, roi.width, roi.height};
  srcSize = {roi.width + 2 * border, roi.height + 2 * border};

  pSrc.init(m_func, 1);
  pDst.init(m_func, 2);
  pTmp.init(m_func.type(1), 1, false);
  if (!pSrc.createVector(srcSize, modeRandom, 0, 0)) return false;
  if (!pDst.createVector(roi, modeConst, 0, 0)) return false;
  // What the library asks for: a band of 30 rows, with 3 elements more on both sides.
  if (!pTmp.createVector(roi.width + 6, 30, modeConst, 0, 0)) return false;

  srcStep = pSrc.m_step;
  dstStep = pDst.m_step;
  tmpStep = pTmp.m_step;
  return true;
}

void TimccDemosaic::flushData() {
  pSrc.deleteVector();
  pDst.deleteVector();
  pTmp.deleteVector();
}

#define DEMOSAIC(type) \
  (pSrc.p##type, srcRoi, srcSize, srcStep, pDst.p##type, dstStep, grid.value(), pTmp.p##type, tmpStep)

MOK_REG(TimccDemosaic, qoriDemosaicAHD_8u_C1C3R, DEMOSAIC(8u))
MOK_REG(TimccDemosaic, qoriDemosaicAHD_16u_C1C3R, DEMOSAIC(16u))
