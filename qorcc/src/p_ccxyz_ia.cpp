// RGB to the luma and chroma spaces and back, in all layouts and samplings, and among those spaces.
#define MOK_SOURCE "qorcc/src/p_ccxyz_ia"
#include "p_cccommon.h"

static mokImage pSrc, pDst;
static int srcStep, dstStep;
static int srcStep3[3], dstStep3[3];
static QoriSize roiSize;
static const Qor8u aval = 7;  // what goes into a fourth channel

class TimXYZ : public mokTest {
 public:
  using mokTest::mokTest;

  bool canStart() override;
  bool initData() override;
  void flushData() override;
  double getDivisor() override { return double(pSrc.m_size.width) * pSrc.m_size.height; }
  zebString getUnit() override { return "px"; }
};

bool TimXYZ::canStart() {
  m_parms.push_back(&g_imageSize);
  return true;
}

bool TimXYZ::initData() {
  roiSize = g_imageSize.value();
  if (!initSource(pSrc, m_func, roiSize)) return false;
  srcStep = srcStep3[0] = srcStep3[1] = srcStep3[2] = pSrc.m_step;
  if (!initDestination(pDst, m_func, roiSize)) return false;
  dstStep = dstStep3[0] = dstStep3[1] = dstStep3[2] = pDst.m_step;
  return true;
}

void TimXYZ::flushData() {
  pSrc.deleteVector();
  pDst.deleteVector();
}

// How a side enters the argument list: pixels; planes with one step or a step each;
// a luma plane and a chroma plane, each followed by its step.
#define SRC(type) pSrc.p##type, srcStep
#define SRC_PLANES(type) pSrc.planes##type, srcStep
#define SRC_PLANES3(type) pSrc.planes##type, srcStep3
#define SRC_PAIR(type) pSrc.planes##type[0], srcStep, pSrc.planes##type[1], srcStep
#define SRC_PAIR3(type) pSrc.planes##type[0], srcStep3[0], pSrc.planes##type[1], srcStep3[1]
#define DST(type) pDst.p##type, dstStep
#define DST_PLANES(type) pDst.planes##type, dstStep
#define DST_PLANES3(type) pDst.planes##type, dstStep3
#define DST_PAIR(type) pDst.planes##type[0], dstStep, pDst.planes##type[1], dstStep
#define DST_PAIR3(type) pDst.planes##type[0], dstStep3[0], pDst.planes##type[1], dstStep3[1]

MOK_REG(TimXYZ, qoriBGR555ToYCbCr422_16u8u_C3C2R, (SRC(16u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriBGR565ToBGR_16u8u_C3R, (SRC(16u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriBGR565ToYCbCr422_16u8u_C3C2R, (SRC(16u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToBGR565_8u16u_C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriBGRToCbYCr422_709HDTV_8u_AC4C2R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToCbYCr422_709HDTV_8u_C3C2R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToCbYCr422_8u_AC4C2R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCbCr422_8u_AC4C2R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCbCr422_8u_C3C2R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriCbYCr422ToBGR_709HDTV_8u_C2C3R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriCbYCr422ToRGB_8u_C2C3R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriCbYCr422ToYCbCr422_8u_C2R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriRGB565ToRGB_16u8u_C3R, (SRC(16u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToCbYCr422Gamma_8u_C3C2R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToCbYCr422_8u_C3C2R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToRGB565_8u16u_C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYCbCr422_8u_C3C2R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYCbCr_8u_AC4R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYCbCr_8u_C3R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYCrCb422_8u_C3C2R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYUV422_8u_C3C2R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYUV_8u_AC4R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYUV_8u_C3R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToBGR444_8u16u_C2C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToBGR555_8u16u_C2C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToBGR565_8u16u_C2C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToBGR_8u_C2C3R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToCbYCr422_8u_C2R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToRGB444_8u16u_C2C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToRGB555_8u16u_C2C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToRGB565_8u16u_C2C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToRGB_8u_C2C3R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToYCrCb422_8u_C2R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToBGR444_8u16u_C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToBGR555_8u16u_C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToBGR565_8u16u_C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToRGB444_8u16u_C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToRGB555_8u16u_C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToRGB565_8u16u_C3R, (SRC(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToRGB_8u_AC4R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToRGB_8u_C3R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCrCb422ToRGB_8u_C2C3R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYUV422ToRGB_8u_C2C3R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYUVToRGB_8u_AC4R, (SRC(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYUVToRGB_8u_C3R, (SRC(8u), DST(8u), roiSize))

MOK_REG(TimXYZ, qoriCbYCr422ToBGR_709HDTV_8u_C2C4R, (SRC(8u), DST(8u), roiSize, aval))
MOK_REG(TimXYZ, qoriCbYCr422ToBGR_8u_C2C4R, (SRC(8u), DST(8u), roiSize, aval))
MOK_REG(TimXYZ, qoriYCbCr422ToBGR_8u_C2C4R, (SRC(8u), DST(8u), roiSize, aval))

MOK_REG(TimXYZ, qoriBGRToYCoCg_8u16s_C3P3R, (SRC(8u), DST_PLANES(16s), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCoCg_8u16s_C4P3R, (SRC(8u), DST_PLANES(16s), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCoCg_Rev_8u16s_C3P3R, (SRC(8u), DST_PLANES(16s), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCoCg_Rev_8u16s_C4P3R, (SRC(8u), DST_PLANES(16s), roiSize))
MOK_REG(TimXYZ, qoriRGBToYCbCr_8u_AC4P3R, (SRC(8u), DST_PLANES(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYCbCr_8u_C3P3R, (SRC(8u), DST_PLANES(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYCoCg_8u_C3P3R, (SRC(8u), DST_PLANES(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYUV_8u_AC4P4R, (SRC(8u), DST_PLANES(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYUV_8u_C3P3R, (SRC(8u), DST_PLANES(8u), roiSize))
MOK_REG(TimXYZ, qoriSBGRToYCoCg_16s32s_C3P3R, (SRC(16s), DST_PLANES(32s), roiSize))
MOK_REG(TimXYZ, qoriSBGRToYCoCg_16s32s_C4P3R, (SRC(16s), DST_PLANES(32s), roiSize))
MOK_REG(TimXYZ, qoriSBGRToYCoCg_16s_C3P3R, (SRC(16s), DST_PLANES(16s), roiSize))
MOK_REG(TimXYZ, qoriSBGRToYCoCg_16s_C4P3R, (SRC(16s), DST_PLANES(16s), roiSize))
MOK_REG(TimXYZ, qoriSBGRToYCoCg_Rev_16s32s_C3P3R, (SRC(16s), DST_PLANES(32s), roiSize))
MOK_REG(TimXYZ, qoriSBGRToYCoCg_Rev_16s32s_C4P3R, (SRC(16s), DST_PLANES(32s), roiSize))
MOK_REG(TimXYZ, qoriSBGRToYCoCg_Rev_16s_C3P3R, (SRC(16s), DST_PLANES(16s), roiSize))
MOK_REG(TimXYZ, qoriSBGRToYCoCg_Rev_16s_C4P3R, (SRC(16s), DST_PLANES(16s), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToRGB_8u_C2P3R, (SRC(8u), DST_PLANES(8u), roiSize))
MOK_REG(TimXYZ, qoriYCrCb422ToRGB_8u_C2P3R, (SRC(8u), DST_PLANES(8u), roiSize))

MOK_REG(TimXYZ, qoriBGR555ToYCbCr411_16u8u_C3P3R, (SRC(16u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGR555ToYCbCr420_16u8u_C3P3R, (SRC(16u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGR555ToYCbCr422_16u8u_C3P3R, (SRC(16u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGR555ToYCrCb420_16u8u_C3P3R, (SRC(16u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGR555ToYUV420_16u8u_C3P3R, (SRC(16u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGR565ToYCbCr411_16u8u_C3P3R, (SRC(16u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGR565ToYCbCr420_16u8u_C3P3R, (SRC(16u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGR565ToYCbCr422_16u8u_C3P3R, (SRC(16u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGR565ToYCrCb420_16u8u_C3P3R, (SRC(16u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGR565ToYUV420_16u8u_C3P3R, (SRC(16u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCbCr411_8u_AC4P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCbCr411_8u_C3P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCbCr420_709CSC_8u_AC4P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCbCr420_709CSC_8u_C3P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCbCr420_709HDTV_8u_AC4P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCbCr420_8u_AC4P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCbCr420_8u_C3P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCbCr422_8u_AC4P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCbCr422_8u_C3P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCrCb420_709CSC_8u_AC4P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCrCb420_709CSC_8u_C3P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCrCb420_8u_AC4P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYCrCb420_8u_C3P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriBGRToYUV420_8u_AC4P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriCbYCr422ToYCbCr411_8u_C2P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriCbYCr422ToYCbCr420_8u_C2P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriCbYCr422ToYCbCr420_Interlace_8u_C2P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriCbYCr422ToYCbCr422_8u_C2P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriCbYCr422ToYCrCb420_8u_C2P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriRGB565ToYUV420_16u8u_C3P3R, (SRC(16u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriRGB565ToYUV422_16u8u_C3P3R, (SRC(16u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYCbCr420_8u_C3P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYCbCr422_8u_C3P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYCrCb420_8u_AC4P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYUV420_8u_C3P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYUV422_8u_C3P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToYCbCr411_8u_C2P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToYCbCr420_8u_C2P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToYCrCb420_8u_C2P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422_8u_C2P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCrCb422ToYCbCr411_8u_C2P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCrCb422ToYCbCr420_8u_C2P3R, (SRC(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCrCb422ToYCbCr422_8u_C2P3R, (SRC(8u), DST_PLANES3(8u), roiSize))

MOK_REG(TimXYZ, qoriCbYCr422ToYCbCr420_8u_C2P2R, (SRC(8u), DST_PAIR(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToYCbCr420_8u_C2P2R, (SRC(8u), DST_PAIR(8u), roiSize))

MOK_REG(TimXYZ, qoriYCbCr422ToYCbCr411_8u_C2P2R, (SRC(8u), DST_PAIR3(8u), roiSize))

MOK_REG(TimXYZ, qoriRGBToYCbCr422_8u_P3C2R, (SRC_PLANES(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYCrCb422_8u_P3C2R, (SRC_PLANES(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToBGR444_8u16u_P3C3R, (SRC_PLANES(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToBGR555_8u16u_P3C3R, (SRC_PLANES(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToBGR565_8u16u_P3C3R, (SRC_PLANES(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToBGR_709CSC_8u_P3C3R, (SRC_PLANES(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToBGR_8u_P3C3R, (SRC_PLANES(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToRGB444_8u16u_P3C3R, (SRC_PLANES(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToRGB555_8u16u_P3C3R, (SRC_PLANES(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToRGB565_8u16u_P3C3R, (SRC_PLANES(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToRGB_8u_P3C3R, (SRC_PLANES(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCoCgToBGR_16s8u_P3C3R, (SRC_PLANES(16s), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCoCgToBGR_Rev_16s8u_P3C3R, (SRC_PLANES(16s), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCoCgToRGB_8u_P3C3R, (SRC_PLANES(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCoCgToSBGR_16s_P3C3R, (SRC_PLANES(16s), DST(16s), roiSize))
MOK_REG(TimXYZ, qoriYCoCgToSBGR_32s16s_P3C3R, (SRC_PLANES(32s), DST(16s), roiSize))
MOK_REG(TimXYZ, qoriYCoCgToSBGR_Rev_16s_P3C3R, (SRC_PLANES(16s), DST(16s), roiSize))
MOK_REG(TimXYZ, qoriYCoCgToSBGR_Rev_32s16s_P3C3R, (SRC_PLANES(32s), DST(16s), roiSize))
MOK_REG(TimXYZ, qoriYUVToRGB_8u_P3C3R, (SRC_PLANES(8u), DST(8u), roiSize))

MOK_REG(TimXYZ, qoriYCbCrToBGR_709CSC_8u_P3C4R, (SRC_PLANES(8u), DST(8u), roiSize, aval))
MOK_REG(TimXYZ, qoriYCbCrToBGR_8u_P3C4R, (SRC_PLANES(8u), DST(8u), roiSize, aval))
MOK_REG(TimXYZ, qoriYCbCrToRGB_8u_P3C4R, (SRC_PLANES(8u), DST(8u), roiSize, aval))
MOK_REG(TimXYZ, qoriYCoCgToBGR_16s8u_P3C4R, (SRC_PLANES(16s), DST(8u), roiSize, aval))
MOK_REG(TimXYZ, qoriYCoCgToBGR_Rev_16s8u_P3C4R, (SRC_PLANES(16s), DST(8u), roiSize, aval))
MOK_REG(TimXYZ, qoriYCoCgToSBGR_16s_P3C4R, (SRC_PLANES(16s), DST(16s), roiSize, aval))
MOK_REG(TimXYZ, qoriYCoCgToSBGR_32s16s_P3C4R, (SRC_PLANES(32s), DST(16s), roiSize, aval))
MOK_REG(TimXYZ, qoriYCoCgToSBGR_Rev_16s_P3C4R, (SRC_PLANES(16s), DST(16s), roiSize, aval))
MOK_REG(TimXYZ, qoriYCoCgToSBGR_Rev_32s16s_P3C4R, (SRC_PLANES(32s), DST(16s), roiSize, aval))

MOK_REG(TimXYZ, qoriRGBToYCbCr_8u_P3R, (SRC_PLANES(8u), DST_PLANES(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYUV_8u_P3R, (SRC_PLANES(8u), DST_PLANES(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCrToRGB_8u_P3R, (SRC_PLANES(8u), DST_PLANES(8u), roiSize))
MOK_REG(TimXYZ, qoriYUVToRGB_8u_P3R, (SRC_PLANES(8u), DST_PLANES(8u), roiSize))

MOK_REG(TimXYZ, qoriRGBToYUV420_8u_P3R, (SRC_PLANES(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriRGBToYUV422_8u_P3R, (SRC_PLANES(8u), DST_PLANES3(8u), roiSize))

MOK_REG(TimXYZ, qoriYCbCr411ToBGR555_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr411ToBGR565_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr411ToBGR_8u_P3C3R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr411ToYCbCr422_8u_P3C2R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr411ToYCrCb422_8u_P3C2R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420ToBGR_709CSC_8u_P3C3R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420ToBGR_8u_P3C3R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420ToCbYCr422_Interlace_8u_P3C2R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420ToRGB_8u_P3C3R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToBGR_8u_P3C3R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToRGB_8u_P3C3R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToYCrCb422_8u_P3C2R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422_8u_P3C2R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCrCb420ToCbYCr422_8u_P3C2R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYCrCb420ToYCbCr422_8u_P3C2R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYUV420ToBGR444_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYUV420ToBGR555_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYUV420ToBGR565_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYUV420ToBGR_8u_P3C3R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYUV420ToRGB444_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYUV420ToRGB555_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYUV420ToRGB565_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), roiSize))
MOK_REG(TimXYZ, qoriYUV420ToRGB_8u_P3AC4R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYUV420ToRGB_8u_P3C3R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYUV422ToRGB_8u_P3AC4R, (SRC_PLANES3(8u), DST(8u), roiSize))
MOK_REG(TimXYZ, qoriYUV422ToRGB_8u_P3C3R, (SRC_PLANES3(8u), DST(8u), roiSize))

MOK_REG(TimXYZ, qoriYCbCr411ToBGR_8u_P3C4R, (SRC_PLANES3(8u), DST(8u), roiSize, aval))
MOK_REG(TimXYZ, qoriYCbCr420ToBGR_709HDTV_8u_P3C4R, (SRC_PLANES3(8u), DST(8u), roiSize, aval))
MOK_REG(TimXYZ, qoriYCbCr420ToBGR_8u_P3C4R, (SRC_PLANES3(8u), DST(8u), roiSize, aval))
MOK_REG(TimXYZ, qoriYCrCb420ToBGR_Filter_8u_P3C4R, (SRC_PLANES3(8u), DST(8u), roiSize, aval))
MOK_REG(TimXYZ, qoriYCrCb420ToRGB_8u_P3C4R, (SRC_PLANES3(8u), DST(8u), roiSize, aval))

MOK_REG(TimXYZ, qoriYUV420ToRGB_8u_P3R, (SRC_PLANES3(8u), DST_PLANES(8u), roiSize))
MOK_REG(TimXYZ, qoriYUV422ToRGB_8u_P3R, (SRC_PLANES3(8u), DST_PLANES(8u), roiSize))

MOK_REG(TimXYZ, qoriYCbCr1620To420_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr411To420_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr411ToYCbCr420_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr411ToYCbCr422_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr411ToYCrCb422_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420To1620_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420To411_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420To422_Interlace_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420ToYCbCr422_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420ToYCbCr422_Filter_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422To420_Interlace_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToYCbCr411_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToYCbCr420_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCrCb420ToYCbCr422_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCrCb420ToYCbCr422_Filter_8u_P3R, (SRC_PLANES3(8u), DST_PLANES3(8u), roiSize))

MOK_REG(TimXYZ, qoriYCrCb420ToYCbCr420_8u_P3P2R, (SRC_PLANES3(8u), DST_PAIR(8u), roiSize))

MOK_REG(TimXYZ, qoriYCbCr411ToYCbCr420_8u_P3P2R, (SRC_PLANES3(8u), DST_PAIR3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr411_8u_P3P2R, (SRC_PLANES3(8u), DST_PAIR3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420ToYCbCr411_8u_P3P2R, (SRC_PLANES3(8u), DST_PAIR3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420_8u_P3P2R, (SRC_PLANES3(8u), DST_PAIR3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToYCbCr411_8u_P3P2R, (SRC_PLANES3(8u), DST_PAIR3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr422ToYCbCr420_8u_P3P2R, (SRC_PLANES3(8u), DST_PAIR3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCrCb420ToYCbCr411_8u_P3P2R, (SRC_PLANES3(8u), DST_PAIR3(8u), roiSize))

MOK_REG(TimXYZ, qoriYCbCr420ToCbYCr422_8u_P2C2R, (SRC_PAIR(8u), DST(8u), roiSize))

MOK_REG(TimXYZ, qoriYCbCr411ToYCbCr422_8u_P2C2R, (SRC_PAIR3(8u), DST(8u), roiSize))

MOK_REG(TimXYZ, qoriYCbCr411ToYCbCr420_8u_P2P3R, (SRC_PAIR3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr411ToYCbCr422_8u_P2P3R, (SRC_PAIR3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr411ToYCrCb420_8u_P2P3R, (SRC_PAIR3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr411_8u_P2P3R, (SRC_PAIR3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420ToYCbCr411_8u_P2P3R, (SRC_PAIR3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420ToYCbCr422_8u_P2P3R, (SRC_PAIR3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420ToYCbCr422_Filter_8u_P2P3R, (SRC_PAIR3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420ToYCrCb420_8u_P2P3R, (SRC_PAIR3(8u), DST_PLANES3(8u), roiSize))
MOK_REG(TimXYZ, qoriYCbCr420_8u_P2P3R, (SRC_PAIR3(8u), DST_PLANES3(8u), roiSize))

MOK_REG(TimXYZ, qoriRGBToYUV420_8u_C3P3, (pSrc.p8u, pDst.planes8u, roiSize))
MOK_REG(TimXYZ, qoriRGBToYUV420_8u_P3, (pSrc.planes8u, pDst.planes8u, roiSize))
MOK_REG(TimXYZ, qoriRGBToYUV422_8u_C3P3, (pSrc.p8u, pDst.planes8u, roiSize))
MOK_REG(TimXYZ, qoriRGBToYUV422_8u_P3, (pSrc.planes8u, pDst.planes8u, roiSize))
MOK_REG(TimXYZ, qoriYUV420ToRGB_8u_P3, (pSrc.planes8u, pDst.planes8u, roiSize))
MOK_REG(TimXYZ, qoriYUV420ToRGB_8u_P3C3, (pSrc.planes8u, pDst.p8u, roiSize))
MOK_REG(TimXYZ, qoriYUV422ToRGB_8u_P3, (pSrc.planes8u, pDst.planes8u, roiSize))
MOK_REG(TimXYZ, qoriYUV422ToRGB_8u_P3C3, (pSrc.planes8u, pDst.p8u, roiSize))
