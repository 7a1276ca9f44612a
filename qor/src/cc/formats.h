// formats.h: how does each pixel format lie in memory, who loads and who stores it?
#ifndef QOR_CC_FORMATS_H
#define QOR_CC_FORMATS_H

#include "tile.h"

namespace qor {

// Loads one row into row 0 of the tile (place.rows is 1).
using Load = void (*)(const Source&, const Place&, const TileRows& out);

// Stores place.rows rows, a whole group of the format or what is left of it.
using Store = void (*)(const Target&, const Place&, const TileRows& in);

// The lines of a group that share a chroma line.
struct LineSet {
  int first, apart, count;
};

// For the second sample of a row of one packed pixel, which doesn't hold it.
constexpr uint8_t kNeutralChroma = 128;

// A format in which two pixels of a row share a chroma sample, worked on without
// spreading it: (n + 1) / 2 samples for n pixels.
struct HalfChroma {
  bool isPacked;                      // luma and chroma bytes in turn
  int lumaAt;                         // 0, or 1 if it comes second there
  int elements;                       // bytes of a sample together: 2, or 1 in planes
  int (*line)(int y, int height);     // the same for rows with the same chroma
  LineSet (*lines)(int c, int rows);  // of chroma line c of a group; count 0: there is none
  Load load;                          // chroma as it lies to planes b and c, or pairs to b; null if packed
  Load split;                         // chroma to planes b and c; with luma if packed
  Store store;  // chroma line c of the group from row c of planes b and c; with luma if packed
};

struct Format {
  int pointers;   // in the argument: 1 packed, 2 luma and chroma pairs, 3 or 4 planes
  int perPixel;   // elements of one pixel behind the first pointer
  int perChroma;  // elements of one sample behind the others; 0 if there are none
  int hshift;     // pixels per chroma sample in a row, as a power of two
  int groupRows;  // rows that are stored together
  int channels;   // planes of a tile that it fills or uses
  Load load[3];   // for elements of 1, 2 and 4 bytes; null: no function needs it
  Store store[3];
  const HalfChroma* half = nullptr;  // null: not such a format
  bool isPlaced = false;             // what is stored depends on the pixel's place

  // Each channel has a plane of the image's resolution.
  bool isPlanar() const { return perPixel == 1 && hshift == 0 && pointers == channels; }

  // Bytes of a row behind pointer p that a call reads or writes.
  int64_t rowBytes(int p, int width, int elementSize) const {
    if (p == 0) return int64_t{width} * perPixel * elementSize;
    const int shift = p == 3 ? 0 : hshift;
    return ((int64_t{width} + (1 << shift) - 1) >> shift) * perChroma * elementSize;
  }
};

// Some rows, from the first to before the last.
struct Share {
  int first, last;
};

// A conversion that rearranges samples without a tile.
struct Move {
  const Source& source;
  const Target& target;
  const uint8_t *sourceOrder, *targetOrder;
  QoriSize size;
};
using Copy = void (*)(const Move&, const Share& rows);

// Whether Cb and Cr keep their order.
enum class ChromaMove { any, kept, swapped };

struct DirectCopy {
  const Format *source, *target;
  ChromaMove chroma;  // that it is for
  Copy copy;
};
extern const DirectCopy kDirectCopies[7];

extern const Format kC1, kC3, kAC4, kC4, kP3, kP4;
extern const Format kRgb565, kRgb555, kRgb444, kRgb565Dither, kRgb555Dither, kRgb444Dither;
extern const Format kYuyv, kUyvy;
extern const Format kP3x422, kP3x411, kP3x1620, kP3x420, kP3x420Interlaced, kP3x420Filtered;
extern const Format kP2x411, kP2x420, kP2x420Filtered;

}  // namespace qor

#endif
