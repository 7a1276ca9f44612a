// tile.h: where do pixels stay between the stages of a conversion?
//
// A row is cut into tiles that stay in the first cache. A load stage takes the
// source format apart into the planes of a tile, a transform works on planes, a
// store stage packs the destination format. Planes hold full resolution: chroma
// is repeated on loading and averaged on storing.
#ifndef QOR_CC_TILE_H
#define QOR_CC_TILE_H

#include <stddef.h>
#include <stdint.h>

#include "qordefs.h"

namespace qor {

// 1 KB per plane measured best: 1024 pixels of bytes, 256 of 32 bits. A multiple of
// every chroma block, so that no block straddles tiles.
constexpr int kTileBytes = 1024;
constexpr int kTilePixels = kTileBytes;      // the most
constexpr int kWidePixels = kTileBytes / 4;  // of 32 bits

// Vectors may work on a whole one behind the last pixel; it also keeps planes from
// lying 4 KB apart, where loads wait for stores that they don't depend on.
constexpr int kRowBytes = kTileBytes + 64;

// The rows of a chroma block, of an interlaced group, of 16:2:0.
constexpr int kMostRows = 4;
constexpr int kMostPlanes = 4;

// Elements of image memory: it may be aligned to nothing and its true type may
// be any of that size. Structures, since a template argument loses attributes.
struct Bytes1 {
  uint8_t bits;
};
struct [[gnu::packed, gnu::may_alias]] Bytes2 {
  uint16_t bits;
};
struct [[gnu::packed, gnu::may_alias]] Bytes4 {
  uint32_t bits;
};

// An image in memory. Steps are bytes.
struct Source {
  const uint8_t* plane[kMostPlanes] = {};
  ptrdiff_t step[kMostPlanes] = {};
  // Filtered formats interpolate between these chroma lines, both included.
  // Beyond the image in the middle of a larger one.
  int firstChroma = 0, lastChroma = 0;

  const uint8_t* row(int p, int y) const { return plane[p] + y * step[p]; }
};

struct Target {
  uint8_t* plane[kMostPlanes] = {};
  ptrdiff_t step[kMostPlanes] = {};

  uint8_t* row(int p, int y) const { return plane[p] + y * step[p]; }
};

// The pixels at hand: n in a row from x, and `rows` rows from y of an image of
// that height.
struct Place {
  int x, y, n, rows, height;
};

// Planes of a tile in the format's own order; row r of plane p starts r *
// kRowBytes behind its first.
struct TileRows {
  uint8_t* plane[kMostPlanes];

  uint8_t* row(int p, int r) const { return plane[p] + r * kRowBytes; }
};

// Row 0 of the first three planes.
template <class T>
struct Planes {
  T *a, *b, *c;

  explicit Planes(const TileRows& rows)
      : a(reinterpret_cast<T*>(rows.plane[0])),
        b(reinterpret_cast<T*>(rows.plane[1])),
        c(reinterpret_cast<T*>(rows.plane[2])) {}
};

struct alignas(64) Tile {
  uint8_t bytes[kMostPlanes][kMostRows][kRowBytes];

  // Planes a, b, c of the colour space are the format's planes order[0..2].
  TileRows rows(const uint8_t order[kMostPlanes]) {
    return {{bytes[order[0]][0], bytes[order[1]][0], bytes[order[2]][0], bytes[order[3]][0]}};
  }
};

}  // namespace qor

#endif
