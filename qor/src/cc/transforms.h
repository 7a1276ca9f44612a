// transforms.h: what can be done to the planes of a tile?
#ifndef QOR_CC_TRANSFORMS_H
#define QOR_CC_TRANSFORMS_H

#include "tile.h"

namespace qor {

// A matrix for bytes in fixed point: out = (m (a, b, c, twice) + offset) >> shift. The
// channel `twice` has two factors, the sum of which may be larger than a word.
struct Fixed {
  int16_t m[3][4] = {};
  int32_t offset[3] = {};
  int shift = 0;  // 15 or 14
  int twice = 0;
};

// The first row for bytes: the upper byte of the sum of an offset and, for each byte, the
// upper word of (byte << 8) and its factor.
struct Luma {
  uint16_t of[3] = {}, offset = 0;
  bool isKnown = false;  // the matrix can be done like this
};

// The other rows, for sums of four samples a, b, c: (m (a - b, c - b) + offset) >> 17.
struct ToHalf {
  int16_t m[2][2] = {};
  int32_t offset[2] = {};
  bool isKnown = false;
};

// Luma a and chroma b, c to red, green and blue, which is 128 more than sum times >> 16.
// The sum is (luma a >> 8) + offset and, with x * y = (x y + 2^14) >> 15 and
// v' = (v - 128) << 8, greenB * b' + greenC * c' or, of words that saturate, red * c' or
// blue * b'; if halved, these twice.
struct FromLuma {
  uint16_t luma = 0;
  int16_t offset = 0;
  int16_t red = 0, greenB = 0, greenC = 0, blue = 0;
  int16_t times = 0;  // 0: the matrix can't be done like this
  bool halved = false;
};

struct Matrix {
  float m[3][3];
  float offset[3];
  float fourth[4] = {};  // applyTwist4's last row
  // If made for bytes.
  Fixed fixed = {};
  Luma luma = {};
  ToHalf toHalf = {};
  FromLuma fromLuma = {};
};

// Where three channels of bytes go: to the planes of a tile, or at once to packed pixels
// of 3 or 4 bytes, of which no byte behind the last is written.
struct BytesOut {
  uint8_t* plane[3];
  uint8_t* pixels = nullptr;  // null: to the planes
  int stride = 3;
  bool swapped = false;  // channel c first
  uint8_t alpha = 0;     // of pixels of 4
};

// Rows of an image or a tile that are made together.
struct RowSet {
  int count = 1;
  ptrdiff_t inStep = 0, outStep = 0;  // bytes from row to row
};

// One row of n pixels from the planes `in` to the planes `out`, both of a tile.
using Apply = void (*)(const TileRows& in, const TileRows& out, int n, const Matrix&);

// The same of n packed pixels of three elements, without a tile; no byte behind the last is
// touched.
using Fused = void (*)(const uint8_t* in, uint8_t* out, int n, const Matrix&);
void lumaOfThree(const uint8_t* in, uint8_t* out, int n, const Matrix&);  // bytes to a plane
void grayOfThree(const uint8_t* in, uint8_t* out, int n, const Matrix&);  // floats to a plane

struct Transform {
  Apply apply;           // null: the planes are taken as they are
  const Matrix* matrix;  // all zero if it has none, or one that is known at the call only
  // Makes that matrix from the whole source, or is null.
  Matrix (*prepare)(const Source&, QoriSize);
};

#define QORCC_TRANSFORM(name, apply, matrix, prepare) extern const Transform k##name;
#include "transforms.def"
#undef QORCC_TRANSFORM

// transforms_linear.cpp
template <class T>
void applyMatrix(const TileRows& in, const TileRows& out, int n, const Matrix&);
// Bytes.
void applyFixed(const TileRows& in, const TileRows& out, int n, const Matrix&);
void multiplyFixed(const TileRows& in, const BytesOut&, int n, const Matrix&);
// transforms_luma.cpp: luma and chroma to colours. Where two pixels share a chroma sample,
// what a line of them adds to the pixels of all its rows.
struct ChromaTerms {
  static constexpr int kSize = kTilePixels + 64;
  alignas(64) int16_t red[kSize], green[kSize], blue[kSize];  // for each pixel
};
// Chroma samples for n pixels, one for two: in the planes b and c, or as pairs in plane
// b whose first bytes are b's, or c's.
enum class ChromaOrder { planes, pairs, swappedPairs };
void termsOfChroma(const TileRows& in, ChromaOrder, int n, const FromLuma&, ChromaTerms&);
// n pixels of each row of the given luma, of which no byte more is read.
void applyTerms(const uint8_t* luma, const RowSet&, const ChromaTerms&, const BytesOut&, int n,
                const FromLuma&);
// n pixels of packed 4:2:2: luma at every second byte from `lumaAt`. An odd last pixel
// has the second chroma byte that is given.
void applyPacked(const uint8_t* in, int lumaAt, bool swapped, uint8_t lastChroma, const BytesOut&, int n,
                 const FromLuma&);
// Each pixel with chroma of its own.
void coloursOfPlanes(const TileRows& in, const BytesOut&, int n, const FromLuma&);

// transforms_half.cpp: bytes, row 0 only; writes none behind the last.
void applyLuma(const TileRows& in, const TileRows& out, int n, const Matrix&);
// One row of packed pixels of three bytes, or two that share their chroma, and where their luma goes.
struct PixelRows {
  const uint8_t* pixels[2];  // the second may be null
  uint8_t* luma[2];
};
// n pixels of each; (n + 1) / 2 samples of chroma go to rows of a tile.
void halveThree(const PixelRows&, bool swapped, int n, uint8_t* b, uint8_t* c, const Matrix&);
// Chroma of n pixels in one or two rows of a tile, `apart` bytes from each other, to
// (n + 1) / 2 samples in the planes b and c. The pixel behind an odd last one is
// overwritten.
void chromaOfPairs(const TileRows& in, int rows, int apart, const TileRows& out, int n, const ToHalf&);

template <class T>
void applyGray(const TileRows& in, const TileRows& out, int n, const Matrix&);  // row 0 only
void applyGammaMatrix(const TileRows& in, const TileRows& out, int n, const Matrix&);
void applyTwist4(const TileRows& in, const TileRows& out, int n, const Matrix&);  // alpha takes part
void applyTone(const TileRows& in, const TileRows& out, int n, const Matrix&);    // m[0][0], offset[0]
Matrix linearTone(const Source&, QoriSize);
Matrix meanTone(const Source&, QoriSize);

// transforms_gamma.cpp
enum class Direction { forward, inverse };
template <class T, Direction>
void applyGamma(const TileRows& in, const TileRows& out, int n, const Matrix&);
template <Direction>
void applyFloatGamma(const TileRows& in, const TileRows& out, int n, const Matrix&);  // span m[0][0..1]

// transforms_hue.cpp
template <class T>
void rgbToHls(const TileRows& in, const TileRows& out, int n, const Matrix&);
template <class T>
void hlsToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&);
template <class T>
void rgbToHsv(const TileRows& in, const TileRows& out, int n, const Matrix&);
template <class T>
void hsvToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&);

// transforms_cie.cpp
template <class T>
void rgbToLuv(const TileRows& in, const TileRows& out, int n, const Matrix&);
template <class T>
void luvToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&);
template <class S, class D>
void rgbToLab(const TileRows& in, const TileRows& out, int n, const Matrix&);
template <class S, class D>
void labToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&);

// transforms_ycocg.cpp
template <class S, class D>
void rgbToYcocg(const TileRows& in, const TileRows& out, int n, const Matrix&);
template <class S, class D>
void ycocgToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&);
template <class S, class D>
void rgbToYcocgRev(const TileRows& in, const TileRows& out, int n, const Matrix&);
template <class S, class D>
void ycocgRevToRgb(const TileRows& in, const TileRows& out, int n, const Matrix&);

}  // namespace qor

#endif
