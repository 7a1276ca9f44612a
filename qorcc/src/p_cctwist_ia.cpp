// Any RGB-like pixels by a matrix of the caller's own.
#define MOK_SOURCE "qorcc/src/p_cctwist_ia"
#include "p_cccommon.h"

static mokImage pSrc, pDst;
static QoriSize size;
static int srcStep, dstStep;
static const Qor32f twist[4][4] = {
    {0.1f, 0.7f, 0.1f, 0.1f}, {0.1f, 0.1f, 0.7f, 0.1f}, {0.7f, 0.1f, 0.1f, 0.1f}, {0.4f, 0.1f, 0.1f, 0.4f}};

class TimccTwist : public mokTest {
 public:
  using mokTest::mokTest;

  bool canStart() override;
  bool initData() override;
  void flushData() override;
  double getDivisor() override { return double(pDst.m_size.width) * pDst.m_size.height; }
  zebString getUnit() override { return "px"; }
  void constToOstrm() override;
};

bool TimccTwist::canStart() {
  m_parms.push_back(&g_imageSize);
  pSrc.init(m_func, mokArgSrc);
  pDst.init(m_func, mokArgDst);
  return true;
}

// Ones are what the matrix leaves as it is, so the in-place forms can repeat on what the call before left.
bool TimccTwist::initData() {
  size = g_imageSize.value();
  const int shift = zebGetVectorShift();
  if (!pSrc.createImageExt(size, 0, shift, modeOne, 0, 0)) return false;
  if (!pDst.createImageExt(size, 4 * shift, shift, modeOne, 0, 0)) return false;
  srcStep = pSrc.m_step;
  dstStep = pDst.m_step;
  return true;
}

void TimccTwist::flushData() {
  pSrc.deleteVector();
  pDst.deleteVector();
}

// The fourth row counts for four channels only, and isn't shown.
void TimccTwist::constToOstrm() {
  g_ostrm << "twist:\n";
  for (int row = 0; row < 3; ++row) {
    for (const Qor32f value : twist[row]) g_ostrm << value;
    g_ostrm << "\n";
  }
}

#define PIXELS(type) (pSrc.p##type, srcStep, pDst.p##type, dstStep, size, twist)
#define PLANES(type) (pSrc.planes##type, srcStep, pDst.planes##type, dstStep, size, twist)
#define PIXELS_IN_PLACE(type) (pSrc.p##type, srcStep, size, twist)
#define PLANES_IN_PLACE(type) (pSrc.planes##type, srcStep, size, twist)

MOK_REG(TimccTwist, qoriColorTwist32f_16s_AC4IR, PIXELS_IN_PLACE(16s))
MOK_REG(TimccTwist, qoriColorTwist32f_16s_AC4R, PIXELS(16s))
MOK_REG(TimccTwist, qoriColorTwist32f_16s_C3IR, PIXELS_IN_PLACE(16s))
MOK_REG(TimccTwist, qoriColorTwist32f_16s_C3R, PIXELS(16s))
MOK_REG(TimccTwist, qoriColorTwist32f_16s_IP3R, PLANES_IN_PLACE(16s))
MOK_REG(TimccTwist, qoriColorTwist32f_16s_P3R, PLANES(16s))
MOK_REG(TimccTwist, qoriColorTwist32f_16u_AC4IR, PIXELS_IN_PLACE(16u))
MOK_REG(TimccTwist, qoriColorTwist32f_16u_AC4R, PIXELS(16u))
MOK_REG(TimccTwist, qoriColorTwist32f_16u_C3IR, PIXELS_IN_PLACE(16u))
MOK_REG(TimccTwist, qoriColorTwist32f_16u_C3R, PIXELS(16u))
MOK_REG(TimccTwist, qoriColorTwist32f_16u_IP3R, PLANES_IN_PLACE(16u))
MOK_REG(TimccTwist, qoriColorTwist32f_16u_P3R, PLANES(16u))
MOK_REG(TimccTwist, qoriColorTwist32f_8s_AC4IR, PIXELS_IN_PLACE(8s))
MOK_REG(TimccTwist, qoriColorTwist32f_8s_AC4R, PIXELS(8s))
MOK_REG(TimccTwist, qoriColorTwist32f_8s_C3IR, PIXELS_IN_PLACE(8s))
MOK_REG(TimccTwist, qoriColorTwist32f_8s_C3R, PIXELS(8s))
MOK_REG(TimccTwist, qoriColorTwist32f_8s_IP3R, PLANES_IN_PLACE(8s))
MOK_REG(TimccTwist, qoriColorTwist32f_8s_P3R, PLANES(8s))
MOK_REG(TimccTwist, qoriColorTwist32f_8u_AC4IR, PIXELS_IN_PLACE(8u))
MOK_REG(TimccTwist, qoriColorTwist32f_8u_AC4R, PIXELS(8u))
MOK_REG(TimccTwist, qoriColorTwist32f_8u_C3IR, PIXELS_IN_PLACE(8u))
MOK_REG(TimccTwist, qoriColorTwist32f_8u_C3R, PIXELS(8u))
MOK_REG(TimccTwist, qoriColorTwist32f_8u_IP3R, PLANES_IN_PLACE(8u))
MOK_REG(TimccTwist, qoriColorTwist32f_8u_P3R, PLANES(8u))
MOK_REG(TimccTwist, qoriColorTwist_32f_AC4IR, PIXELS_IN_PLACE(32f))
MOK_REG(TimccTwist, qoriColorTwist_32f_AC4R, PIXELS(32f))
MOK_REG(TimccTwist, qoriColorTwist_32f_C3IR, PIXELS_IN_PLACE(32f))
MOK_REG(TimccTwist, qoriColorTwist_32f_C3R, PIXELS(32f))
MOK_REG(TimccTwist, qoriColorTwist_32f_C4R, PIXELS(32f))
MOK_REG(TimccTwist, qoriColorTwist_32f_IP3R, PLANES_IN_PLACE(32f))
MOK_REG(TimccTwist, qoriColorTwist_32f_P3R, PLANES(32f))
