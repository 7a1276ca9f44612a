// transforms.h: what can be done to the planes of a tile?
#ifndef QOR_CC_TRANSFORMS_H
#define QOR_CC_TRANSFORMS_H

#include "tile.h"

namespace qor {

// A matrix for bytes in fixed point: out = (m (a', b', c', twice') + offset) >> shift,
// a' being a - 128 and so on. The channel `twice` has two factors, the sum of
// which may be larger than a word.
struct Fixed {
  int16_t m[3][4] = {};
  int32_t offset[3] = {};
  int shift = 0;  // 15 or 14
  int twice = 0;
};

struct Matrix {
  float m[3][3];
  float offset[3];
  float fourth[4] = {};  // applyTwist4's last row
  Fixed fixed = {};      // if made for bytes
};

// One row of n pixels from the planes `in` to the planes `out`, both of a tile.
using Apply = void (*)(const TileRows& in, const TileRows& out, int n, const Matrix&);

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
void applyFixed(const TileRows& in, const TileRows& out, int n, const Matrix&);      // bytes
void applyFixedGray(const TileRows& in, const TileRows& out, int n, const Matrix&);  // row 0 only
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
