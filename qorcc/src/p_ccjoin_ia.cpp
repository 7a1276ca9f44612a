// 4:2:0 video, a luma and a chroma plane, into other layouts: functions that work on slices of 16 rows.
#define MOK_SOURCE "qorcc/src/p_ccjoin_ia"
#include "p_cccommon.h"
#include "zebcstream.h"

static mokImage src, dst;
static Qor8u *pSrcY, *pSrcUV, *pDst;
static Qor8u* pDst3[3];
static int srcStep, dstStep;
static int dstStep3[3];
static QoriSize size;  // the adjusted one
static const int layout = 21;

class TimYCCSlice : public mokTest {
 public:
  using mokTest::mokTest;

  bool canStart() override;
  bool initData() override;
  void flushData() override;
  double getDivisor() override { return double(src.m_size.width) * src.m_size.height; }
  zebString getUnit() override { return "px"; }
  void parmsToOstrm() override { g_ostrm << "size=" << size; }
  void parmsToCstrm() override { g_cstrm << size; }
};

bool TimYCCSlice::canStart() {
  m_parms.push_back(&g_imageSize);
  return true;
}

// Whole pairs of columns and whole slices of 16 rows, at least one.
static QoriSize adjusted(QoriSize asked) {
  asked.width += asked.width & 1;
  asked.height -= asked.height % 16;
  if (asked.height == 0) asked.height = 16;
  return asked;
}

bool TimYCCSlice::initData() {
  size = adjusted(g_imageSize.value());
  if (!initSource(src, m_func, size)) return false;
  srcStep = src.m_step;
  pSrcY = src.planes8u[0];
  pSrcUV = src.planes8u[1];
  if (!initDestination(dst, m_func, size)) return false;
  dstStep = dstStep3[0] = dstStep3[1] = dstStep3[2] = dst.m_step;
  pDst = dst.p8u;
  for (int i = 0; i < 3; ++i) pDst3[i] = static_cast<Qor8u*>(dst.m_plane[i]);
  return true;
}

void TimYCCSlice::flushData() {
  src.deleteVector();
  dst.deleteVector();
}

#define SRC_PAIR pSrcY, srcStep, pSrcUV, srcStep

MOK_REG(TimYCCSlice, qoriYCbCr420ToYCbCr422_8u_P2C2R, (SRC_PAIR, pDst, dstStep, size))
MOK_REG(TimYCCSlice, qoriYCbCr420ToYCbCr422_Filter_8u_P2C2R, (SRC_PAIR, pDst, dstStep, size, layout))
MOK_REG(TimYCCSlice, qoriYCbCr420ToYCrCb420_Filter_8u_P2P3R, (SRC_PAIR, pDst3, dstStep3, size, layout))
