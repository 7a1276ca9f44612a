// functions.cpp: the functions of one code path, one per row of the lists.
//
// Each collects its arguments into two images and hands them on with its row.
#include "convert.h"
#include "qorcc.h"

namespace qor {
namespace {

enum Index {
#define QORCC_FUNCTION(name, ...) kIndex_##name,
#include "qorccfunctions.def"
#undef QORCC_FUNCTION
};

constexpr Function kFunctions[] = {
#define QORCC_FUNCTION(name, source, destination, extra, sourceType, destinationType, sourceFormat, \
                       sourceOrder, destinationFormat, destinationOrder, transform)                 \
  {sizeof(Qor##sourceType), sizeof(Qor##destinationType), k##sourceFormat, kOrder_##sourceOrder,    \
   k##destinationFormat,    kOrder_##destinationOrder,    k##transform},
#include "qorccfunctions.def"
#undef QORCC_FUNCTION
};

Argument packed(const void* data, int step) {
  Argument a;
  a.plane[0] = data;
  a.step[0] = step;
  return a;
}

Argument pair(const void* y, int yStep, const void* cbCr, int cbCrStep) {
  Argument a;
  a.plane[0] = y;
  a.plane[1] = cbCr;
  a.step[0] = yStep;
  a.step[1] = cbCrStep;
  return a;
}

// Reads as many pointers as the format has, never more.
template <class T>
Argument planes(T* const* data, const Format& format) {
  Argument a;
  a.hasNull = !data;
  for (int p = 0; data && p < format.pointers; ++p) a.plane[p] = data[p];
  return a;
}

template <class T>
Argument planes(T* const* data, const Format& format, int step) {
  Argument a = planes(data, format);
  for (int& s : a.step) s = step;
  return a;
}

template <class T>
Argument planes(T* const* data, const Format& format, const int* steps) {
  Argument a = planes(data, format);
  a.hasNull |= !steps;
  for (int p = 0; steps && p < format.pointers; ++p) a.step[p] = steps[p];
  return a;
}

Argument tight(Argument a) {
  a.isTight = true;
  return a;
}

#define QORCC_TAKE_SRC_Packed(f) packed(pSrc, srcStep)
#define QORCC_TAKE_SRC_Planes(f) planes(pSrc, f.source, srcStep)
#define QORCC_TAKE_SRC_PlanesSteps(f) planes(pSrc, f.source, srcStep)
#define QORCC_TAKE_SRC_Pair(f) pair(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep)
#define QORCC_TAKE_SRC_PackedTight(f) tight(packed(pSrc, 0))
#define QORCC_TAKE_SRC_PlanesTight(f) tight(planes(pSrc, f.source))

#define QORCC_TAKE_DST_Packed(f) packed(pDst, dstStep)
#define QORCC_TAKE_DST_Planes(f) planes(pDst, f.target, dstStep)
#define QORCC_TAKE_DST_PlanesSteps(f) planes(pDst, f.target, dstStep)
#define QORCC_TAKE_DST_Pair(f) pair(pDstY, dstYStep, pDstCbCr, dstCbCrStep)
#define QORCC_TAKE_DST_PackedTight(f) tight(packed(pDst, 0))
#define QORCC_TAKE_DST_PlanesTight(f) tight(planes(pDst, f.target))

// Null: any matrix, as the call is going to be refused.
Matrix twistMatrix(const Qor32f twist[][4], int rows) {
  Matrix m = {};
  for (int row = 0; twist && row < 3; ++row) {
    for (int i = 0; i < 3; ++i) m.m[row][i] = twist[row][i];
    m.offset[row] = twist[row][3];
  }
  for (int i = 0; twist && rows > 3 && i < 4; ++i) m.fourth[i] = twist[3][i];
  return m;
}

Matrix spanMatrix(Qor32f vMin, Qor32f vMax) {
  Matrix m = {};
  m.m[0][0] = vMin;
  m.m[0][1] = vMax;
  return m;
}

bool isSpan(Qor32f vMin, Qor32f vMax) {
  return vMin < vMax && vMax - vMin < __builtin_huge_valf();
}

#define QORCC_TAKE_IMAGES_Packed packed(pSrc, srcStep), packed(pDst, dstStep)
#define QORCC_TAKE_IMAGES_Planes planes(pSrc, f.source, srcStep), planes(pDst, f.target, dstStep)
#define QORCC_TAKE_IMAGES_PackedInPlace packed(pSrcDst, srcDstStep), packed(pSrcDst, srcDstStep)
#define QORCC_TAKE_IMAGES_PlanesInPlace \
  planes(pSrcDst, f.source, srcDstStep), planes(pSrcDst, f.target, srcDstStep)

#define QORCC_TAKE_Twist                                       \
  const Matrix matrix = twistMatrix(twist, f.source.channels); \
  extras.matrix = &matrix;                                     \
  extras.problem = twist ? qorStsNoErr : qorStsNullPtrErr;
#define QORCC_TAKE_Span                         \
  const Matrix matrix = spanMatrix(vMin, vMax); \
  extras.matrix = &matrix;                      \
  extras.problem = isSpan(vMin, vMax) ? qorStsNoErr : qorStsBadArgErr;
#define QORCC_TAKE_None
#define QORCC_TAKE_Alpha extras.alpha = &aval;
#define QORCC_TAKE_Coeffs extras.coeffs = coeffs, extras.hasCoeffs = true;
#define QORCC_TAKE_Layout extras.layout = layout;

#define QORCC_FUNCTION(name, source, destination, extra, sourceType, destinationType, ...)            \
  QorStatus name(QORCC_PARAMETERS(source, destination, extra, sourceType, destinationType)) {         \
    const Function& f = kFunctions[kIndex_##name];                                                    \
    Extras extras;                                                                                    \
    QORCC_TAKE_##extra return convert(f, QORCC_TAKE_SRC_##source(f), QORCC_TAKE_DST_##destination(f), \
                                      roiSize, extras);                                               \
  }
#include "qorccfunctions.def"
#undef QORCC_FUNCTION

#define QORCC_POINTWISE(name, images, extra, type, format, transform)                             \
  QorStatus name(QORCC_POINTWISE_PARAMETERS(images, extra, type)) {                               \
    static constexpr Function f = {sizeof(Qor##type), sizeof(Qor##type), k##format,   kOrder_abc, \
                                   k##format,         kOrder_abc,        k##transform};           \
    Extras extras;                                                                                \
    QORCC_TAKE_##extra return convert(f, QORCC_TAKE_IMAGES_##images, roiSize, extras);            \
  }
#include "qorccparameters.def"

}  // namespace
}  // namespace qor
