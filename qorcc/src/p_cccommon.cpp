// The suite's common parameter and its hot list, and the data that most classes share. No tests stand here.
#include "p_cccommon.h"

zebEnumIterator<QoriSize> g_imageSize({0, 0}, "ImageSize", "");

static void regTestParameters() {
  zebRegParm(g_imageSize);
  g_imageSize.reset();
  g_imageSize.init({0, 0}, "ImageSize", "");
  g_imageSize.add({64, 64});
  g_imageSize.add({256, 256});
  g_imageSize.add({720, 480});
}

[[maybe_unused]] static const bool regParameters = zebRegParmFunc(regTestParameters);

#define HOT_FUNCTION(func) [[maybe_unused]] static const bool hot_##func = zebRegHotFunction(#func);

HOT_FUNCTION(qoriHSVToRGB_8u_C3R)
HOT_FUNCTION(qoriRGBToHSV_8u_C3R)
HOT_FUNCTION(qoriRGBToYCbCr_8u_C3R)
HOT_FUNCTION(qoriRGBToYUV420_8u_C3P3R)
HOT_FUNCTION(qoriYCbCr411ToBGR_8u_P3C3R)
HOT_FUNCTION(qoriYCbCr420ToRGB_8u_P3C3R)
HOT_FUNCTION(qoriYUV420ToBGR555Dither_8u16u_P3C3R)

void initGrid(zebMapIterator<QoriBayerGrid>& grid) {
  grid[qoriBayerBGGR] = "BGGR";
  grid[qoriBayerRGGB] = "RGGB";
  grid[qoriBayerGBRG] = "GBRG";
  grid[qoriBayerGRBG] = "GRBG";
  grid.reset();
  grid.init(qoriBayerBGGR, "bayerGrid", "");
  grid.add(qoriBayerBGGR);
  grid.add(qoriBayerRGGB);
  grid.add(qoriBayerGBRG);
  grid.add(qoriBayerGRBG);
}

bool initSource(mokImage& image, const mokFunc& func, QoriSize size) {
  image.init(func, mokArgSrc);
  const bool isFloat = (image.m_type & mokFloatFlag) != 0;
  const double low = isFloat ? 0.0 : image.minValue();
  const double high = isFloat ? 1.0 : image.maxValue();
  return image.createImageExt(size, 0, zebGetVectorShift(), modeRandom, low, high);
}

bool initDestination(mokImage& image, const mokFunc& func, QoriSize size) {
  image.init(func, mokArgDst);
  return image.createImageExt(size, 4 * zebGetVectorShift(), zebGetVectorShift(), modeConst, 0, 0);
}
