// mosaic.cpp: a mosaic's arguments, and its bilinear interpolation.
#include "mosaic.h"

#include "qorcc.h"

namespace qor {
namespace {

bool isInside(QoriRect roi, QoriSize size) {
  return roi.x >= 0 && roi.y >= 0 && roi.x <= size.width - roi.width && roi.y <= size.height - roi.height;
}

// The rows about a pixel; [-1] and [n] may be read.
struct Rows {
  const uint16_t *above, *here, *below;
};

// Pixel i and column x of the image have the same parity.
template <class E>
void interpolate(const Rows& m, int x, int n, int chromaColumn, bool hasRed, E* out) {
  const int own = hasRed ? 0 : 2, other = 2 - own;
  for (int i = 0; i < n; ++i, out += 3) {
    const int beside = m.here[i - 1] + m.here[i + 1], column = m.above[i] + m.below[i];
    const int corners = m.above[i - 1] + m.above[i + 1] + m.below[i - 1] + m.below[i + 1];
    const bool green = ((x + i) & 1) != chromaColumn;
    out[own].bits = green ? (beside + 1) >> 1 : m.here[i];
    out[1].bits = green ? m.here[i] : (beside + column + 2) >> 2;
    out[other].bits = green ? (column + 1) >> 1 : (corners + 2) >> 2;
  }
}

template <class T>
void bilinearRow(const MosaicCall& call, const Mosaic& mosaic, int row) {
  uint16_t rows[3][kWidePixels + 2];
  for (int left = 0; left < call.roi.width; left += kWidePixels) {
    const int x = call.roi.x + left, y = call.roi.y + row, rest = call.roi.width - left;
    const int n = rest < kWidePixels ? rest : kWidePixels;
    for (int r = 0; r < 3; ++r) mosaic.load<T>(y + r - 1, x - 1, n + 2, rows[r]);
    interpolate({rows[0] + 1, rows[1] + 1, rows[2] + 1}, x, n, mosaic.chromaColumn(y), mosaic.hasRed(y),
                targetRow<T>(call, row) + ptrdiff_t{left} * 3);
  }
}

template <class T>
QorStatus bilinear(const MosaicCall& call, int interpolation) {
  const QorStatus status = check(call, sizeof(T));
  if (status != qorStsNoErr) return status;
  if (interpolation != 0) return qorStsBadArgErr;
  const Mosaic mosaic = mosaicOf(call);
  const int threads = qorGetState().threads;
  if (threads == 1 || call.roi.height == 1) {
    for (int row = 0; row < call.roi.height; ++row) bilinearRow<T>(call, mosaic, row);
    return qorStsNoErr;
  }
#pragma omp parallel for num_threads(threads)
  for (int row = 0; row < call.roi.height; ++row) bilinearRow<T>(call, mosaic, row);
  return qorStsNoErr;
}

}  // namespace

QorStatus check(const MosaicCall& c, int elementSize) {
  if (!c.source || !c.target) return qorStsNullPtrErr;
  if (c.roi.width < 1 || c.roi.height < 1 || c.size.width < 2 || c.size.height < 2) return qorStsSizeErr;
  const bool shortSource = c.sourceStep < int64_t{c.size.width} * elementSize;
  if (shortSource || c.targetStep < int64_t{c.roi.width} * 3 * elementSize) return qorStsStepErr;
  const bool isGrid = c.grid >= qoriBayerBGGR && c.grid <= qoriBayerGRBG;
  return isGrid && isInside(c.roi, c.size) ? qorStsNoErr : qorStsBadArgErr;
}

Mosaic mosaicOf(const MosaicCall& c) {
  const bool redLeft = c.grid == qoriBayerRGGB || c.grid == qoriBayerGBRG;
  const bool redAbove = c.grid == qoriBayerRGGB || c.grid == qoriBayerGRBG;
  return {c.source, c.sourceStep, c.size, redLeft ? 0 : 1, redAbove ? 0 : 1};
}

QorStatus qoriCFAToRGB_8u_C1C3R(const Qor8u* pSrc, QoriRect srcRoi, QoriSize srcSize, int srcStep,
                                Qor8u* pDst, int dstStep, QoriBayerGrid grid, int interpolation) {
  return bilinear<Qor8u>({pSrc, srcRoi, srcSize, srcStep, pDst, dstStep, grid}, interpolation);
}

QorStatus qoriCFAToRGB_16u_C1C3R(const Qor16u* pSrc, QoriRect srcRoi, QoriSize srcSize, int srcStep,
                                 Qor16u* pDst, int dstStep, QoriBayerGrid grid, int interpolation) {
  return bilinear<Qor16u>({pSrc, srcRoi, srcSize, srcStep, pDst, dstStep, grid}, interpolation);
}

}  // namespace qor
