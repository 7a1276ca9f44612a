// dispatch.cpp: the exported functions; each hands its arguments to the path in force.
#include "dispatch.h"

namespace qorpath {

const Path* const kPaths[] = {&sse2::kPath, &sse4::kPath, &avx2::kPath,
#ifdef __x86_64__
                              &avx512::kPath
#endif
};

}  // namespace qorpath

#define QORCC_PASS_SRC_Packed pSrc, srcStep
#define QORCC_PASS_SRC_Planes pSrc, srcStep
#define QORCC_PASS_SRC_PlanesSteps pSrc, srcStep
#define QORCC_PASS_SRC_Pair pSrcY, srcYStep, pSrcCbCr, srcCbCrStep
#define QORCC_PASS_SRC_PackedTight pSrc
#define QORCC_PASS_SRC_PlanesTight pSrc
#define QORCC_PASS_DST_Packed pDst, dstStep
#define QORCC_PASS_DST_Planes pDst, dstStep
#define QORCC_PASS_DST_PlanesSteps pDst, dstStep
#define QORCC_PASS_DST_Pair pDstY, dstYStep, pDstCbCr, dstCbCrStep
#define QORCC_PASS_DST_PackedTight pDst
#define QORCC_PASS_DST_PlanesTight pDst
#define QORCC_PASS_IMAGES_Packed pSrc, srcStep, pDst, dstStep
#define QORCC_PASS_IMAGES_Planes pSrc, srcStep, pDst, dstStep
#define QORCC_PASS_IMAGES_PackedInPlace pSrcDst, srcDstStep
#define QORCC_PASS_IMAGES_PlanesInPlace pSrcDst, srcDstStep
#define QORCC_PASS_Twist , twist
#define QORCC_PASS_Span , vMin, vMax
#define QORCC_PASS_None
#define QORCC_PASS_Alpha , aval
#define QORCC_PASS_Coeffs , coeffs
#define QORCC_PASS_Layout , layout

extern "C" {

#define QORCC_FUNCTION(name, source, destination, extra, sourceType, destinationType, ...)    \
  QorStatus name(QORCC_PARAMETERS(source, destination, extra, sourceType, destinationType)) { \
    return qorpath::current().name(QORCC_PASS_SRC_##source, QORCC_PASS_DST_##destination,     \
                                   roiSize QORCC_PASS_##extra);                               \
  }
#include "qorccfunctions.def"
#undef QORCC_FUNCTION

#define QORCC_POINTWISE(name, images, extra, type, ...)                                     \
  QorStatus name(QORCC_POINTWISE_PARAMETERS(images, extra, type)) {                         \
    return qorpath::current().name(QORCC_PASS_IMAGES_##images, roiSize QORCC_PASS_##extra); \
  }
#define QORCC_REDUCE(name, sourceType, destinationType, ...)                                     \
  QorStatus name(QORCC_REDUCE_PARAMETERS(sourceType, destinationType)) {                         \
    return qorpath::current().name(pSrc, srcStep, pDst, dstStep, roiSize, noise, dtype, levels); \
  }
#include "qorccparameters.def"

QorStatus qoriCFAToRGB_8u_C1C3R(const Qor8u* pSrc, QoriRect srcRoi, QoriSize srcSize, int srcStep,
                                Qor8u* pDst, int dstStep, QoriBayerGrid grid, int interpolation) {
  return qorpath::current().qoriCFAToRGB_8u_C1C3R(pSrc, srcRoi, srcSize, srcStep, pDst, dstStep, grid,
                                                  interpolation);
}

QorStatus qoriCFAToRGB_16u_C1C3R(const Qor16u* pSrc, QoriRect srcRoi, QoriSize srcSize, int srcStep,
                                 Qor16u* pDst, int dstStep, QoriBayerGrid grid, int interpolation) {
  return qorpath::current().qoriCFAToRGB_16u_C1C3R(pSrc, srcRoi, srcSize, srcStep, pDst, dstStep, grid,
                                                   interpolation);
}

QorStatus qoriDemosaicAHD_8u_C1C3R(const Qor8u* pSrc, QoriRect srcRoi, QoriSize srcSize, int srcStep,
                                   Qor8u* pDst, int dstStep, QoriBayerGrid grid, Qor8u* pTmp, int tmpStep) {
  return qorpath::current().qoriDemosaicAHD_8u_C1C3R(pSrc, srcRoi, srcSize, srcStep, pDst, dstStep, grid,
                                                     pTmp, tmpStep);
}

QorStatus qoriDemosaicAHD_16u_C1C3R(const Qor16u* pSrc, QoriRect srcRoi, QoriSize srcSize, int srcStep,
                                    Qor16u* pDst, int dstStep, QoriBayerGrid grid, Qor16u* pTmp,
                                    int tmpStep) {
  return qorpath::current().qoriDemosaicAHD_16u_C1C3R(pSrc, srcRoi, srcSize, srcStep, pDst, dstStep, grid,
                                                      pTmp, tmpStep);
}
}
