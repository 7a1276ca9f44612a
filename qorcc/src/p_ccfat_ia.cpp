// Bayer mosaics to RGB, by plain interpolation over a border of 8 elements.
#define MOK_SOURCE "qorcc/src/p_ccfat_ia"
#include "p_cccommon.h"

static zebMapIterator<QoriBayerGrid> grid;

static mokImage pSrc, pDst;
static QoriSize srcSize;  // the region and its border
static QoriRect srcRoi;
static int srcStep, dstStep;
static const int interpolation = 0;

class TimccFAT : public mokTest {
 public:
  using mokTest::mokTest;

  bool canStart() override;
  bool initData() override;
  void flushData() override;
  // The border counts: it is read too.
  double getDivisor() override { return double(pSrc.m_size.width) * pSrc.m_size.height; }
  zebString getUnit() override { return "px"; }
};

bool TimccFAT::canStart() {
  initGrid(grid);
  m_parms.push_back(&g_imageSize);
  m_parms.push_back(&grid);
  return true;
}

bool TimccFAT::initData() {
  const int border = 8;
  const QoriSize roi = g_imageSize.value();
  srcRoi = {border, border, roi.width, roi.height};
  srcSize = {roi.width + 2 * border, roi.height + 2 * border};

  pSrc.init(m_func, 1);
  if (!pSrc.createVector(srcSize, modeRandom, 0, 0)) return false;
  srcStep = pSrc.m_step;
  pDst.init(m_func, 2);
  if (!pDst.createImage(roi, -1, -1, false)) return false;
  dstStep = pDst.m_step;
  return true;
}

void TimccFAT::flushData() {
  pSrc.deleteVector();
  pDst.deleteVector();
}

#define CFA_TO_RGB(type) \
  (pSrc.p##type, srcRoi, srcSize, srcStep, pDst.p##type, dstStep, grid.value(), interpolation)

MOK_REG(TimccFAT, qoriCFAToRGB_8u_C1C3R, CFA_TO_RGB(8u))
MOK_REG(TimccFAT, qoriCFAToRGB_16u_C1C3R, CFA_TO_RGB(16u))
