// homogeneity.h: which of two images is smoother at each pixel, to the eye?
//
// K. Hirakawa and T. W. Parks, Adaptive Homogeneity-Directed Demosaicing
// Algorithm (2005): a neighbour counts if it is near enough in lightness and in
// chroma, where "near" is what the smoother of both directions shows at the pixel.
#ifndef QOR_CC_HOMOGENEITY_H
#define QOR_CC_HOMOGENEITY_H

#include <stdint.h>

namespace qor {

// One row of CIELab planes: L*, a*, b*.
struct LabRow {
  const float *l, *a, *b;
};

// Three rows of an image; columns -1..n may be read.
struct LabRows {
  LabRow above, here, below;
};

// For n pixels and each image, interpolated along rows and along columns: how
// many of the four nearest neighbours are near.
void countNeighbours(const LabRows& along, const LabRows& across, int n, uint8_t* ofAlong, uint8_t* ofAcross);

}  // namespace qor

#endif
