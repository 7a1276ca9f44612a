// reduce.cpp: the functions that cut bits, one per row of the list.
#include "defaultfloats.h"
#include "qorcc.h"
#include "quantise.h"
#include "ranges.h"
#include "tile.h"

namespace qor {
namespace {

// `channels` of each pixel's perPixel elements.
struct Shape {
  int perPixel, channels;
};

// top: the highest level. NaN counts as 0.
template <class S>
void loadPlaces(const uint8_t* row, int width, Shape shape, int top, uint32_t* out) {
  const double scale = top / static_cast<double>(Range<S>::span), low = Range<S>::low;
  for (ptrdiff_t x = 0; x < width; ++x)
    for (int c = 0; c < shape.channels; ++c) {
      S v;
      __builtin_memcpy(&v, row + (x * shape.perPixel + c) * ptrdiff_t{sizeof(S)}, sizeof(S));
      const float inside = atMost(atLeast(v, Range<S>::low), Range<S>::low + Range<S>::span);
      const double place = (inside - low) * scale;
      const int below = static_cast<int>(place);
      *out++ = (static_cast<uint32_t>(below) << 16) + static_cast<uint32_t>((place - below) * 65536 + 0.5);
    }
}

template <class D>
void storeLevels(const int* levels, int width, Shape shape, int top, uint8_t* row) {
  const double span = Range<D>::span, all = top;
  for (ptrdiff_t x = 0; x < width; ++x)
    for (int c = 0; c < shape.channels; ++c) {
      const int value = static_cast<int>(*levels++ * span / all + 0.5) + static_cast<int>(Range<D>::low);
      const D v = static_cast<D>(value);
      __builtin_memcpy(row + (x * shape.perPixel + c) * ptrdiff_t{sizeof(D)}, &v, sizeof(D));
    }
}

struct ReduceFunction {
  int sourceSize, targetSize;  // bytes of an element
  void (*load)(const uint8_t* row, int width, Shape, int top, uint32_t* out);
  void (*store)(const int* levels, int width, Shape, int top, uint8_t* row);
  Shape shape;
};

bool isReduction(const Reduction& r, int targetSize) {
  const bool isDither = r.dither >= qorDitherNone && r.dither <= qorDitherBayer;
  return r.noise >= 0 && r.noise <= 100 && isDither && r.levels >= 2 && r.levels <= 1 << 8 * targetSize;
}

QorStatus check(const ReduceFunction& f, const void* source, int sourceStep, const void* target,
                int targetStep, QoriSize size, const Reduction& reduction) {
  if (!source || !target) return qorStsNullPtrErr;
  if (size.width < 1 || size.height < 1) return qorStsSizeErr;
  const int64_t row = int64_t{size.width} * f.shape.perPixel;
  if (sourceStep < row * f.sourceSize || targetStep < row * f.targetSize) return qorStsStepErr;
  return isReduction(reduction, f.targetSize) ? qorStsNoErr : qorStsBadArgErr;
}

// Once, not in each of the functions.
[[gnu::noinline]] QorStatus reduceBits(const ReduceFunction& f, const void* source, int sourceStep,
                                       void* target, int targetStep, QoriSize size,
                                       const Reduction& reduction) {
  const QorStatus status = check(f, source, sourceStep, target, targetStep, size, reduction);
  if (status != qorStsNoErr) return status;
  const DefaultFloats floats;
  Quantiser quantiser(reduction, size.width, f.shape.channels);
  if (!quantiser.isReady()) return qorStsNoMemErr;
  const int top = reduction.levels - 1;
  for (ptrdiff_t y = 0; y < size.height; ++y) {
    f.load(static_cast<const uint8_t*>(source) + y * sourceStep, size.width, f.shape, top,
           quantiser.places());
    const int* levels = quantiser.row(static_cast<int>(y));
    f.store(levels, size.width, f.shape, top, static_cast<uint8_t*>(target) + y * targetStep);
  }
  return qorStsNoErr;
}

}  // namespace

#define QORCC_REDUCE(name, sourceType, destinationType, perPixel, channels)              \
  QorStatus name(QORCC_REDUCE_PARAMETERS(sourceType, destinationType)) {                 \
    static constexpr ReduceFunction f = {sizeof(Qor##sourceType),                        \
                                         sizeof(Qor##destinationType),                   \
                                         loadPlaces<Qor##sourceType>,                    \
                                         storeLevels<Qor##destinationType>,              \
                                         {perPixel, channels}};                          \
    return reduceBits(f, pSrc, srcStep, pDst, dstStep, roiSize, {noise, dtype, levels}); \
  }
#include "qorccparameters.def"

}  // namespace qor
