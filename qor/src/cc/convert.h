// convert.h: how is one row of the function table carried out?
#ifndef QOR_CC_CONVERT_H
#define QOR_CC_CONVERT_H

#include "formats.h"
#include "transforms.h"

namespace qor {

// One function of the library.
struct Function {
  int sourceSize, targetSize;  // bytes of an element
  const Format& source;
  const uint8_t* sourceOrder;
  const Format& target;
  const uint8_t* targetOrder;
  const Transform& transform;
};

// Tile planes a, b, c, alpha as a format has them.
constexpr uint8_t kOrder_abc[kMostPlanes] = {0, 1, 2, 3};
constexpr uint8_t kOrder_cba[kMostPlanes] = {2, 1, 0, 3};
constexpr uint8_t kOrder_acb[kMostPlanes] = {0, 2, 1, 3};

// An image as an argument, not yet checked: plane pointers and steps as they
// come, null included.
struct Argument {
  const void* plane[kMostPlanes] = {};
  int step[kMostPlanes] = {};
  bool hasNull = false;  // an array of planes or of steps was null
  bool isTight = false;  // steps are to be what the format's rows take
};

// The arguments behind the images, with what stands for none.
struct Extras {
  const void* alpha = nullptr;  // an element of the destination's type
  const Qor32f* coeffs = nullptr;
  bool hasCoeffs = false;
  int layout = 0x15;                // qoriSliceWhole
  const Matrix* matrix = nullptr;   // in place of the transform's own
  QorStatus problem = qorStsNoErr;  // with the extras themselves
};

QorStatus convert(const Function&, Argument source, Argument target, QoriSize, const Extras&);

}  // namespace qor

#endif
