// transforms.cpp: the table of transforms with their matrices.
#include "transforms.h"

#include "matrices.h"

namespace qor {
namespace {

// Matrix columns of transforms.def. What is linear without an offset maps
// 16s's numbers as they are, hence kGray's range of 1.
#define QORCC_MATRIX(name, map, type, low, span) \
  constexpr Matrix kMatrix##name##type = forRange(map, low, span);
#define QORCC_MATRIX_BOTH(space, type, low, span)       \
  QORCC_MATRIX(RgbTo##space, k##space, type, low, span) \
  QORCC_MATRIX(space##ToRgb, inverse(k##space), type, low, span)
#define QORCC_MATRIX_TYPES(space)               \
  QORCC_MATRIX_BOTH(space, _8u, 0, 255)         \
  QORCC_MATRIX_BOTH(space, _16u, 0, 65535)      \
  QORCC_MATRIX_BOTH(space, _16s, -32768, 65535) \
  QORCC_MATRIX_BOTH(space, _32f, 0, 1)

constexpr Matrix toColours(const Linear& space, int times) {
  Matrix r = forRange(inverse(space), 0, 255);
  r.fromLuma = fromLuma(inverse(space), times);
  return r;
}
#define QORCC_MATRIX_LUMA(space, times)          \
  QORCC_MATRIX(RgbTo##space, k##space, , 0, 255) \
  constexpr Matrix kMatrix##space##ToRgb = toColours(k##space, times);

// Of all widths that hold the sums these err for the fewest of the 2^24 colours.
QORCC_MATRIX_LUMA(Ycbcr601, 535)
QORCC_MATRIX_LUMA(Ycbcr709Hdtv, 306)
QORCC_MATRIX_LUMA(Ycbcr709Csc, 508)
QORCC_MATRIX_LUMA(Yuv, 542)
QORCC_MATRIX_TYPES(Ycc)
QORCC_MATRIX_TYPES(Xyz)
QORCC_MATRIX(Gray, kGray, , 0, 1)
QORCC_MATRIX(Gray, kGray, _8u, 0, 255)
constexpr Matrix kMatrixNone = {};

}  // namespace

#define QORCC_TRANSFORM(name, apply, matrix, prepare) \
  const Transform k##name = {apply, &kMatrix##matrix, prepare};
#include "transforms.def"
#undef QORCC_TRANSFORM

}  // namespace qor
