// mosaic.h: how is a Bayer mosaic read, beyond its edges too?
#ifndef QOR_CC_MOSAIC_H
#define QOR_CC_MOSAIC_H

#include "ranges.h"
#include "tile.h"

namespace qor {

// An element in memory of any alignment.
template <class T>
struct ElementOf;
template <>
struct ElementOf<Qor8u> {
  using type = Bytes1;
};
template <>
struct ElementOf<Qor16u> {
  using type = Bytes2;
};
template <class T>
using Element = typename ElementOf<T>::type;

// About the outermost pixels, which aren't repeated: colours keep their parity.
// count is at least 2.
inline int mirrored(int i, int count) {
  const int period = 2 * (count - 1);
  const int j = (i % period + period) % period;
  return j < count ? j : period - j;
}

struct Mosaic {
  const void* data;
  ptrdiff_t step;  // bytes
  QoriSize size;
  int redX, redY;  // of the 2x2 cell's red pixel

  bool hasRed(int y) const { return (y & 1) == redY; }
  // 0 or 1: the columns of row y that aren't green are those of this parity.
  int chromaColumn(int y) const { return hasRed(y) ? redX : 1 - redX; }

  // n pixels of row y from column x on.
  template <class T>
  void load(int y, int x, int n, uint16_t* out) const {
    const auto* row = reinterpret_cast<const Element<T>*>(static_cast<const uint8_t*>(data) +
                                                          mirrored(y, size.height) * step);
    int i = 0;
    for (; i < n && x + i < 0; ++i) out[i] = row[mirrored(x + i, size.width)].bits;
    for (; i < n && x + i < size.width; ++i) out[i] = row[x + i].bits;
    for (; i < n; ++i) out[i] = row[mirrored(x + i, size.width)].bits;
  }
};

// What a call is given, not yet checked.
struct MosaicCall {
  const void* source;
  QoriRect roi;  // of the source
  QoriSize size;
  int sourceStep;
  void* target;  // R, G, B
  int targetStep;
  QoriBayerGrid grid;
};

QorStatus check(const MosaicCall&, int elementSize);
Mosaic mosaicOf(const MosaicCall&);

template <class T>
Element<T>* targetRow(const MosaicCall& call, int y) {
  return reinterpret_cast<Element<T>*>(static_cast<uint8_t*>(call.target) + ptrdiff_t{y} * call.targetStep);
}

}  // namespace qor

#endif
