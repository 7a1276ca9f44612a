// HLS in all layouts, and YCbCr and YUV to 16-bit RGB with and without dithering.
#define MOK_SOURCE "qorcc/src/p_cccolor_ys"
#include "p_cccommon.h"

static mokImage Src, Dst;
static int srcStep, dstStep;
static int srcStep3[3];
static QoriSize size;

class iColorConversion__YS : public mokTest {
 public:
  using mokTest::mokTest;

  bool canStart() override;
  bool initData() override;
  void flushData() override;
  double getDivisor() override { return double(Dst.m_size.width) * Dst.m_size.height; }
  zebString getUnit() override { return "px"; }
};

bool iColorConversion__YS::canStart() {
  m_parms.push_back(&g_imageSize);
  Src.init(m_func, mokArgSrc);
  Dst.init(m_func, mokArgDst);
  return true;
}

bool iColorConversion__YS::initData() {
  size = g_imageSize.value();
  // Equal bounds: the default random range of the element type.
  if (!Src.createImageExt(size, 0, zebGetVectorShift(), modeRandom, 0, 0)) return false;
  if (!Dst.createImageExt(size, 4 * zebGetVectorShift(), zebGetVectorShift(), modeConst, 0, 0)) return false;
  srcStep = srcStep3[0] = srcStep3[1] = srcStep3[2] = Src.m_step;
  dstStep = Dst.m_step;
  return true;
}

void iColorConversion__YS::flushData() {
  Src.deleteVector();
  Dst.deleteVector();
}

// How a side enters the argument list: pixels, planes with one step, planes with a step each.
#define SRC(type) Src.p##type, srcStep
#define SRC_PLANES(type) Src.planes##type, srcStep
#define SRC_PLANES3(type) Src.planes##type, srcStep3
#define DST(type) Dst.p##type, dstStep
#define DST_PLANES(type) Dst.planes##type, dstStep

MOK_REG(iColorConversion__YS, qoriYCbCr422ToBGR444Dither_8u16u_C2C3R, (SRC(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToBGR555Dither_8u16u_C2C3R, (SRC(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToBGR565Dither_8u16u_C2C3R, (SRC(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToRGB444Dither_8u16u_C2C3R, (SRC(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToRGB555Dither_8u16u_C2C3R, (SRC(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToRGB565Dither_8u16u_C2C3R, (SRC(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCrToBGR444Dither_8u16u_C3R, (SRC(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCrToBGR555Dither_8u16u_C3R, (SRC(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCrToBGR565Dither_8u16u_C3R, (SRC(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCrToRGB444Dither_8u16u_C3R, (SRC(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCrToRGB555Dither_8u16u_C3R, (SRC(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCrToRGB565Dither_8u16u_C3R, (SRC(8u), DST(16u), size))

MOK_REG(iColorConversion__YS, qoriBGRToHLS_8u_AC4P4R, (SRC(8u), DST_PLANES(8u), size))
MOK_REG(iColorConversion__YS, qoriBGRToHLS_8u_C3P3R, (SRC(8u), DST_PLANES(8u), size))
MOK_REG(iColorConversion__YS, qoriHLSToBGR_8u_AC4P4R, (SRC(8u), DST_PLANES(8u), size))
MOK_REG(iColorConversion__YS, qoriHLSToBGR_8u_C3P3R, (SRC(8u), DST_PLANES(8u), size))

MOK_REG(iColorConversion__YS, qoriBGRToHLS_8u_AP4C4R, (SRC_PLANES(8u), DST(8u), size))
MOK_REG(iColorConversion__YS, qoriBGRToHLS_8u_P3C3R, (SRC_PLANES(8u), DST(8u), size))
MOK_REG(iColorConversion__YS, qoriHLSToBGR_8u_AP4C4R, (SRC_PLANES(8u), DST(8u), size))
MOK_REG(iColorConversion__YS, qoriHLSToBGR_8u_P3C3R, (SRC_PLANES(8u), DST(8u), size))
MOK_REG(iColorConversion__YS, qoriYCbCrToBGR444Dither_8u16u_P3C3R, (SRC_PLANES(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCrToBGR555Dither_8u16u_P3C3R, (SRC_PLANES(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCrToBGR565Dither_8u16u_P3C3R, (SRC_PLANES(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCrToRGB444Dither_8u16u_P3C3R, (SRC_PLANES(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCrToRGB555Dither_8u16u_P3C3R, (SRC_PLANES(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCrToRGB565Dither_8u16u_P3C3R, (SRC_PLANES(8u), DST(16u), size))

MOK_REG(iColorConversion__YS, qoriBGRToHLS_8u_AP4R, (SRC_PLANES(8u), DST_PLANES(8u), size))
MOK_REG(iColorConversion__YS, qoriBGRToHLS_8u_P3R, (SRC_PLANES(8u), DST_PLANES(8u), size))
MOK_REG(iColorConversion__YS, qoriHLSToBGR_8u_AP4R, (SRC_PLANES(8u), DST_PLANES(8u), size))
MOK_REG(iColorConversion__YS, qoriHLSToBGR_8u_P3R, (SRC_PLANES(8u), DST_PLANES(8u), size))

MOK_REG(iColorConversion__YS, qoriYCbCr420ToBGR444Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr420ToBGR444_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr420ToBGR555Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr420ToBGR555_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr420ToBGR565Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr420ToBGR565_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr420ToRGB444Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr420ToRGB444_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr420ToRGB555Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr420ToRGB555_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr420ToRGB565Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr420ToRGB565_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToBGR444Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToBGR444_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToBGR555Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToBGR555_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToBGR565Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToBGR565_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToRGB444Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToRGB444_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToRGB555Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToRGB555_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToRGB565Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYCbCr422ToRGB565_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYUV420ToBGR444Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYUV420ToBGR444_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYUV420ToBGR555Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYUV420ToBGR555_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYUV420ToBGR565Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYUV420ToBGR565_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYUV420ToRGB444Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYUV420ToRGB444_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYUV420ToRGB555Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYUV420ToRGB555_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYUV420ToRGB565Dither_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
MOK_REG(iColorConversion__YS, qoriYUV420ToRGB565_8u16u_P3C3R, (SRC_PLANES3(8u), DST(16u), size))
