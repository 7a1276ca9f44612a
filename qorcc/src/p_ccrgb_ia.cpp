// RGB to gray and to the colour spaces HLS, HSV, Lab, LUV, XYZ and YCC and back, pixels to pixels.
#define MOK_SOURCE "qorcc/src/p_ccrgb_ia"
#include "p_cccommon.h"

static mokImage pSrc, pDst;
static int srcStep, dstStep;
static QoriSize size;
static const Qor32f coeffs[3] = {0.33f, 0.33f, 0.33f};  // weights of the three colours in a gray

class TimiRgb : public mokTest {
 public:
  using mokTest::mokTest;

  bool canStart() override;
  bool initData() override;
  void flushData() override;
  double getDivisor() override { return double(pDst.m_size.width) * pDst.m_size.height; }
  zebString getUnit() override { return "px"; }
};

bool TimiRgb::canStart() {
  m_parms.push_back(&g_imageSize);
  return true;
}

bool TimiRgb::initData() {
  size = g_imageSize.value();
  if (!initSource(pSrc, m_func, size)) return false;
  srcStep = pSrc.m_step;
  if (!initDestination(pDst, m_func, size)) return false;
  dstStep = pDst.m_step;
  return true;
}

void TimiRgb::flushData() {
  pSrc.deleteVector();
  pDst.deleteVector();
}

MOK_REG(TimiRgb, qoriBGRToHLS_8u_AC4R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriBGRToLab_8u16u_C3R, (pSrc.p8u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriBGRToLab_8u_C3R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriHLSToRGB_16s_AC4R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriHLSToRGB_16s_C3R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriHLSToRGB_16u_AC4R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriHLSToRGB_16u_C3R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriHLSToRGB_32f_AC4R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriHLSToRGB_32f_C3R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriHLSToRGB_8u_AC4R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriHLSToRGB_8u_C3R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriHSVToRGB_16u_AC4R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriHSVToRGB_16u_C3R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriHSVToRGB_8u_AC4R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriHSVToRGB_8u_C3R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriLUVToRGB_16s_AC4R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriLUVToRGB_16s_C3R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriLUVToRGB_16u_AC4R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriLUVToRGB_16u_C3R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriLUVToRGB_32f_AC4R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriLUVToRGB_32f_C3R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriLUVToRGB_8u_AC4R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriLUVToRGB_8u_C3R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriLabToBGR_16u8u_C3R, (pSrc.p16u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriLabToBGR_8u_C3R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToGray_16s_AC4C1R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToGray_16s_C3C1R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToGray_16u_AC4C1R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToGray_16u_C3C1R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToGray_32f_AC4C1R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToGray_32f_C3C1R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToGray_8u_AC4C1R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToGray_8u_C3C1R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToHLS_16s_AC4R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToHLS_16s_C3R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToHLS_16u_AC4R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToHLS_16u_C3R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToHLS_32f_AC4R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToHLS_32f_C3R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToHLS_8u_AC4R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToHLS_8u_C3R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToHSV_16u_AC4R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToHSV_16u_C3R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToHSV_8u_AC4R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToHSV_8u_C3R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToLUV_16s_AC4R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToLUV_16s_C3R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToLUV_16u_AC4R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToLUV_16u_C3R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToLUV_32f_AC4R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToLUV_32f_C3R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToLUV_8u_AC4R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToLUV_8u_C3R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToXYZ_16s_AC4R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToXYZ_16s_C3R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToXYZ_16u_AC4R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToXYZ_16u_C3R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToXYZ_32f_AC4R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToXYZ_32f_C3R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToXYZ_8u_AC4R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToXYZ_8u_C3R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToYCC_16s_AC4R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToYCC_16s_C3R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToYCC_16u_AC4R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToYCC_16u_C3R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToYCC_32f_AC4R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToYCC_32f_C3R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToYCC_8u_AC4R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriRGBToYCC_8u_C3R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriToneMapLinear_32f8u_C1R, (pSrc.p32f, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriToneMapMean_32f8u_C1R, (pSrc.p32f, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriXYZToRGB_16s_AC4R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriXYZToRGB_16s_C3R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriXYZToRGB_16u_AC4R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriXYZToRGB_16u_C3R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriXYZToRGB_32f_AC4R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriXYZToRGB_32f_C3R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriXYZToRGB_8u_AC4R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriXYZToRGB_8u_C3R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriYCCToRGB_16s_AC4R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriYCCToRGB_16s_C3R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size))
MOK_REG(TimiRgb, qoriYCCToRGB_16u_AC4R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriYCCToRGB_16u_C3R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size))
MOK_REG(TimiRgb, qoriYCCToRGB_32f_AC4R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriYCCToRGB_32f_C3R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size))
MOK_REG(TimiRgb, qoriYCCToRGB_8u_AC4R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
MOK_REG(TimiRgb, qoriYCCToRGB_8u_C3R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))

MOK_REG(TimiRgb, qoriColorToGray_16s_AC4C1R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size, coeffs))
MOK_REG(TimiRgb, qoriColorToGray_16s_C3C1R, (pSrc.p16s, srcStep, pDst.p16s, dstStep, size, coeffs))
MOK_REG(TimiRgb, qoriColorToGray_16u_AC4C1R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size, coeffs))
MOK_REG(TimiRgb, qoriColorToGray_16u_C3C1R, (pSrc.p16u, srcStep, pDst.p16u, dstStep, size, coeffs))
MOK_REG(TimiRgb, qoriColorToGray_32f_AC4C1R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size, coeffs))
MOK_REG(TimiRgb, qoriColorToGray_32f_C3C1R, (pSrc.p32f, srcStep, pDst.p32f, dstStep, size, coeffs))
MOK_REG(TimiRgb, qoriColorToGray_8u_AC4C1R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size, coeffs))
MOK_REG(TimiRgb, qoriColorToGray_8u_C3C1R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size, coeffs))
