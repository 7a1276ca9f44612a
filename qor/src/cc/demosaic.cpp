// demosaic.cpp: adaptive homogeneity-directed demosaicing (K. Hirakawa and T. W. Parks, 2005).
//
// Tiles of columns; in each the rows run through five stages, of which each
// lags behind the one before by the rows that it needs below itself:
//   mosaic  row j + 2        green   row j          red and blue, Lab  row j - 1
//   count   row j - 2        choice  row j - 3
// Rows and columns are counted from the region's and the tile's first.
#include "defaultfloats.h"
#include "homogeneity.h"
#include "mosaic.h"
#include "qorcc.h"
#include "transforms.h"

namespace qor {
namespace {

// Columns beyond a tile's sides that each stage fills.
constexpr int kMosaicEdge = 5, kGreenEdge = 3, kLabEdge = 2, kCountEdge = 1;
constexpr int kTmpRows = 5;
// rgbToLab works on whole tiles.
constexpr int kColumns = kWidePixels - 2 * kLabEdge;

enum Image { kAlong, kAcross, kImages };  // the row, the row's normal

template <class T>
inline int saturated(int v) {
  constexpr int kMost = static_cast<int>(Range<T>::span);
  const int atLeast0 = v > 0 ? v : 0;
  return atLeast0 < kMost ? atLeast0 : kMost;
}

template <class T>
class Demosaic {
 public:
  using E = Element<T>;

  Demosaic(const MosaicCall& call, T* tmp, int tmpStep)
      : call_(call), mosaic_(mosaicOf(call)), tmp_(reinterpret_cast<uint8_t*>(tmp)), tmpStep_(tmpStep) {}

  void tile(int left, int n) {
    x_ = call_.roi.x + left;
    n_ = n;
    for (int j = -5; j < -1; ++j) load(j);
    for (int j = -3; j < call_.roi.height + 3; ++j) {
      load(j + 2);
      green(j);
      if (j >= -1) chroma(j - 1, kAlong), chroma(j - 1, kAcross);
      if (j >= -1) lab(j - 1, kAlong), lab(j - 1, kAcross);
      if (j >= 1) count(j - 2);
      if (j >= 3) choose(j - 3, targetRow<T>(call_, j - 3) + ptrdiff_t{left} * 3);
    }
  }

 private:
  // Column 0 of row j.
  uint16_t* sourceRow(int j) { return rows_[j & 7] + kMosaicEdge; }
  E* tmpRow(int j, Image image, int colour) const {
    const int row = ((j + kTmpRows) % kTmpRows * kImages + image) * 3 + colour;
    return reinterpret_cast<E*>(tmp_ + row * tmpStep_) + kGreenEdge;
  }
  // From column -kCountEdge on.
  LabRow labRow(int j, Image image) const {
    const auto& planes = lab_[j & 3][image];
    constexpr int kFirst = kLabEdge - kCountEdge;
    return {planes[0] + kFirst, planes[1] + kFirst, planes[2] + kFirst};
  }
  LabRows labRows(int j, Image image) const {
    return {labRow(j - 1, image), labRow(j, image), labRow(j + 1, image)};
  }
  bool isGreen(int j, int i) const { return ((x_ + i) & 1) != mosaic_.chromaColumn(call_.roi.y + j); }

  void load(int j) { mosaic_.load<T>(call_.roi.y + j, x_ - kMosaicEdge, n_ + 2 * kMosaicEdge, rows_[j & 7]); }

  void green(int j) {
    const uint16_t *m = sourceRow(j), *up = sourceRow(j - 1), *up2 = sourceRow(j - 2),
                   *down = sourceRow(j + 1), *down2 = sourceRow(j + 2);
    E *along = tmpRow(j, kAlong, 1), *across = tmpRow(j, kAcross, 1);
    for (int i = -kGreenEdge; i < n_ + kGreenEdge; ++i) {
      const int h = (2 * (m[i - 1] + m[i] + m[i + 1]) - m[i - 2] - m[i + 2] + 2) >> 2;
      const int v = (2 * (up[i] + m[i] + down[i]) - up2[i] - down2[i] + 2) >> 2;
      const bool known = isGreen(j, i);
      along[i].bits = known ? m[i] : saturated<T>(h);
      across[i].bits = known ? m[i] : saturated<T>(v);
    }
  }

  // The row's own chroma lies left and right of a green pixel, the other above
  // and below; at a pixel of the own one the other lies at the corners.
  void chroma(int j, Image image) {
    const int own = mosaic_.hasRed(call_.roi.y + j) ? 0 : 2;
    const uint16_t *m = sourceRow(j), *up = sourceRow(j - 1), *down = sourceRow(j + 1);
    const E *g = tmpRow(j, image, 1), *gUp = tmpRow(j - 1, image, 1), *gDown = tmpRow(j + 1, image, 1);
    E *ownRow = tmpRow(j, image, own), *otherRow = tmpRow(j, image, 2 - own);
    for (int i = -kLabEdge; i < n_ + kLabEdge; ++i) {
      const int beside = difference(m, g, i - 1) + difference(m, g, i + 1);
      const int column = difference(up, gUp, i) + difference(down, gDown, i);
      const int corners = difference(up, gUp, i - 1) + difference(up, gUp, i + 1) +
                          difference(down, gDown, i - 1) + difference(down, gDown, i + 1);
      const bool known = isGreen(j, i);
      ownRow[i].bits = known ? saturated<T>(g[i].bits + ((beside + 1) >> 1)) : m[i];
      otherRow[i].bits = saturated<T>(g[i].bits + (known ? (column + 1) >> 1 : (corners + 2) >> 2));
    }
  }

  static int difference(const uint16_t* m, const E* g, int i) { return m[i] - g[i].bits; }

  void lab(int j, Image image) {
    const int n = n_ + 2 * kLabEdge;
    TileRows out = {};
    for (int p = 0; p < 3; ++p) {
      __builtin_memcpy(colours_.bytes[p][0], tmpRow(j, image, p) - kLabEdge, n * sizeof(E));
      out.plane[p] = reinterpret_cast<uint8_t*>(lab_[j & 3][image][p]);
    }
    constexpr uint8_t kInOrder[kMostPlanes] = {0, 1, 2, 3};
    rgbToLab<T, Qor32f>(colours_.rows(kInOrder), out, n, {});
  }

  void count(int j) {
    countNeighbours(labRows(j, kAlong), labRows(j, kAcross), n_ + 2 * kCountEdge, count_[j & 3][kAlong],
                    count_[j & 3][kAcross]);
  }

  // Neighbours of the 3x3 pixels about pixel i of row j.
  int homogeneity(int j, Image image, int i) const {
    int sum = 0;
    for (int r = -1; r <= 1; ++r) {
      const uint8_t* row = count_[(j + r) & 3][image] + kCountEdge + i;
      sum += row[-1] + row[0] + row[1];
    }
    return sum;
  }

  void choose(int j, E* out) const {
    const E* colours[kImages][3];
    for (int p = 0; p < 3; ++p) {
      colours[kAlong][p] = tmpRow(j, kAlong, p);
      colours[kAcross][p] = tmpRow(j, kAcross, p);
    }
    for (int i = 0; i < n_; ++i, out += 3) {
      const int better = homogeneity(j, kAlong, i) - homogeneity(j, kAcross, i);
      for (int p = 0; p < 3; ++p) {
        const int h = colours[kAlong][p][i].bits, v = colours[kAcross][p][i].bits;
        out[p].bits = better > 0 ? h : better < 0 ? v : (h + v + 1) >> 1;
      }
    }
  }

  const MosaicCall call_;
  const Mosaic mosaic_;
  uint8_t* const tmp_;
  const ptrdiff_t tmpStep_;
  int x_ = 0, n_ = 0;  // of the tile: first column in the source, columns
  // Rings of rows, by the lowest bits of the row.
  uint16_t rows_[8][kColumns + 2 * kMosaicEdge];
  alignas(64) float lab_[4][kImages][3][kWidePixels];
  uint8_t count_[4][kImages][kColumns + 2 * kCountEdge];
  Tile colours_;
};

template <class T>
QorStatus demosaic(const MosaicCall& call, T* tmp, int tmpStep) {
  if (!tmp) return qorStsNullPtrErr;
  const QorStatus status = check(call, sizeof(T));
  if (status != qorStsNoErr) return status;
  if (tmpStep < (int64_t{call.roi.width} + 2 * kGreenEdge) * static_cast<int>(sizeof(T)))
    return qorStsStepErr;
  const DefaultFloats floats;
  Demosaic<T> work(call, tmp, tmpStep);
  for (int left = 0; left < call.roi.width; left += kColumns) {
    const int rest = call.roi.width - left;
    work.tile(left, rest < kColumns ? rest : kColumns);
  }
  return qorStsNoErr;
}

}  // namespace

QorStatus qoriDemosaicAHD_8u_C1C3R(const Qor8u* pSrc, QoriRect srcRoi, QoriSize srcSize, int srcStep,
                                   Qor8u* pDst, int dstStep, QoriBayerGrid grid, Qor8u* pTmp, int tmpStep) {
  return demosaic({pSrc, srcRoi, srcSize, srcStep, pDst, dstStep, grid}, pTmp, tmpStep);
}

QorStatus qoriDemosaicAHD_16u_C1C3R(const Qor16u* pSrc, QoriRect srcRoi, QoriSize srcSize, int srcStep,
                                    Qor16u* pDst, int dstStep, QoriBayerGrid grid, Qor16u* pTmp,
                                    int tmpStep) {
  return demosaic({pSrc, srcRoi, srcSize, srcStep, pDst, dstStep, grid}, pTmp, tmpStep);
}

}  // namespace qor
