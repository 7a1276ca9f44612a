// Gamma correction, there and back.
#define MOK_SOURCE "qorcc/src/p_ccgamma_ia"
#include <cstring>

#include "p_cccommon.h"

static mokImage src, dst;
static void *pSrc, *pDst;            // null for planes
static void **planeSrc, **planeDst;  // null pointers for pixels
static QoriSize size;
static int step;                 // of both images
static int dataSize, planeSize;  // bytes of dst: the whole of it, one plane
static const Qor32f vMin = 0.0f, vMax = 2.0f;

class TimccGamma : public mokTest {
 public:
  using mokTest::mokTest;

  bool canStart() override;
  bool initData() override;
  void flushData() override;
  double getDivisor() override;
  zebString getUnit() override { return "pxch"; }
  void constToOstrm() override;
};

bool TimccGamma::canStart() {
  m_parms.push_back(&g_imageSize);
  src.init(m_func, mokArgSrc);
  dst.init(m_func, mokArgDst);
  return true;
}

bool TimccGamma::initData() {
  size = g_imageSize.value();
  const int shift = zebGetVectorShift();
  if (!src.createImageExt(size, 0, shift, modeRandom, 0, 0)) return false;
  if (!dst.createImageExt(size, 4 * shift, shift, modeConst, 0, 0)) return false;
  pSrc = src.m_data;
  pDst = dst.m_data;
  planeSrc = src.m_plane;
  planeDst = dst.m_plane;
  step = src.m_step;
  dataSize = dst.size();
  planeSize = dst.m_step * dst.m_size.height;
  return true;
}

void TimccGamma::flushData() {
  src.deleteVector();
  dst.deleteVector();
}

double TimccGamma::getDivisor() {
  return double(dst.m_size.width) * dst.m_size.height * mokImage::numActualChannels(dst.m_func);
}

void TimccGamma::constToOstrm() {
  g_ostrm << "Src[i,j] = " << src.getDataString(src.getPointerAt(0, 0, 0), 1) << "\n";
  if (src.m_type != mok32f) return;
  g_ostrm << "vMin = " << vMin << "\n";
  g_ostrm << "vMax = " << vMax << "\n";
}

MOK_INLINE static void restorePixels() {
  memcpy(pDst, pSrc, dataSize);
}

MOK_INLINE static void restorePlanes() {
  for (int p = 0; p < 3; ++p) memcpy(planeDst[p], planeSrc[p], planeSize);
}

#define AS_PIXELS(type, p) static_cast<Qor##type*>(p)
#define AS_PLANES(type, p) reinterpret_cast<Qor##type**>(p)
#define PIXELS(type) AS_PIXELS(type, pSrc), step, AS_PIXELS(type, pDst), step, size
#define PLANES(type) AS_PLANES(type, planeSrc), step, AS_PLANES(type, planeDst), step, size
#define PIXELS_IN_PLACE(type, p) AS_PIXELS(type, p), step, size
#define PLANES_IN_PLACE(type, p) AS_PLANES(type, p), step, size

MOK_REG(TimccGamma, qoriGammaFwd_16u_AC4IR, (PIXELS_IN_PLACE(16u, pSrc)))
MOK_REG(TimccGamma, qoriGammaFwd_16u_AC4R, (PIXELS(16u)))
MOK_REG(TimccGamma, qoriGammaFwd_16u_C3IR, (PIXELS_IN_PLACE(16u, pSrc)))
MOK_REG(TimccGamma, qoriGammaFwd_16u_C3R, (PIXELS(16u)))
MOK_REG(TimccGamma, qoriGammaFwd_16u_IP3R, (PLANES_IN_PLACE(16u, planeSrc)))
MOK_REG(TimccGamma, qoriGammaFwd_16u_P3R, (PLANES(16u)))
MOK_REG(TimccGamma, qoriGammaFwd_32f_AC4R, (PIXELS(32f), vMin, vMax))
MOK_REG(TimccGamma, qoriGammaFwd_32f_C3R, (PIXELS(32f), vMin, vMax))
MOK_REG(TimccGamma, qoriGammaFwd_32f_P3R, (PLANES(32f), vMin, vMax))
MOK_REG(TimccGamma, qoriGammaFwd_8u_AC4IR, (PIXELS_IN_PLACE(8u, pSrc)))
MOK_REG(TimccGamma, qoriGammaFwd_8u_AC4R, (PIXELS(8u)))
MOK_REG(TimccGamma, qoriGammaFwd_8u_C3IR, (PIXELS_IN_PLACE(8u, pSrc)))
MOK_REG(TimccGamma, qoriGammaFwd_8u_C3R, (PIXELS(8u)))
MOK_REG(TimccGamma, qoriGammaFwd_8u_IP3R, (PLANES_IN_PLACE(8u, planeSrc)))
MOK_REG(TimccGamma, qoriGammaFwd_8u_P3R, (PLANES(8u)))
MOK_REG(TimccGamma, qoriGammaInv_16u_AC4IR, (PIXELS_IN_PLACE(16u, pSrc)))
MOK_REG(TimccGamma, qoriGammaInv_16u_AC4R, (PIXELS(16u)))
MOK_REG(TimccGamma, qoriGammaInv_16u_C3IR, (PIXELS_IN_PLACE(16u, pSrc)))
MOK_REG(TimccGamma, qoriGammaInv_16u_C3R, (PIXELS(16u)))
MOK_REG(TimccGamma, qoriGammaInv_16u_IP3R, (PLANES_IN_PLACE(16u, planeSrc)))
MOK_REG(TimccGamma, qoriGammaInv_16u_P3R, (PLANES(16u)))
MOK_REG(TimccGamma, qoriGammaInv_32f_AC4R, (PIXELS(32f), vMin, vMax))
MOK_REG(TimccGamma, qoriGammaInv_32f_C3R, (PIXELS(32f), vMin, vMax))
MOK_REG(TimccGamma, qoriGammaInv_32f_P3R, (PLANES(32f), vMin, vMax))
MOK_REG(TimccGamma, qoriGammaInv_8u_AC4IR, (PIXELS_IN_PLACE(8u, pSrc)))
MOK_REG(TimccGamma, qoriGammaInv_8u_AC4R, (PIXELS(8u)))
MOK_REG(TimccGamma, qoriGammaInv_8u_C3IR, (PIXELS_IN_PLACE(8u, pSrc)))
MOK_REG(TimccGamma, qoriGammaInv_8u_C3R, (PIXELS(8u)))
MOK_REG(TimccGamma, qoriGammaInv_8u_IP3R, (PLANES_IN_PLACE(8u, planeSrc)))
MOK_REG(TimccGamma, qoriGammaInv_8u_P3R, (PLANES(8u)))

// What a call takes depends on the values, so that each one gets the same.
MOK_REG_I(TimccGamma, qoriGammaFwd_32f_AC4IR, (PIXELS_IN_PLACE(32f, pDst), vMin, vMax), restorePixels())
MOK_REG_I(TimccGamma, qoriGammaFwd_32f_C3IR, (PIXELS_IN_PLACE(32f, pDst), vMin, vMax), restorePixels())
MOK_REG_I(TimccGamma, qoriGammaFwd_32f_IP3R, (PLANES_IN_PLACE(32f, planeDst), vMin, vMax), restorePlanes())
MOK_REG_I(TimccGamma, qoriGammaInv_32f_AC4IR, (PIXELS_IN_PLACE(32f, pDst), vMin, vMax), restorePixels())
MOK_REG_I(TimccGamma, qoriGammaInv_32f_C3IR, (PIXELS_IN_PLACE(32f, pDst), vMin, vMax), restorePixels())
MOK_REG_I(TimccGamma, qoriGammaInv_32f_IP3R, (PLANES_IN_PLACE(32f, planeDst), vMin, vMax), restorePlanes())
