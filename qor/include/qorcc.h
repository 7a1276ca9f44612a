// qorcc.h: how is an image converted from one colour format to another?
//
// The functions stand in qorccfunctions.def, one row each; a row such as
//   QORCC_FUNCTION(qoriYCbCr420ToBGR_8u_P3C4R, PlanesSteps, Packed, Alpha, 8u, 8u, ...)
// declares, by the macros below,
//   QorStatus qoriYCbCr420ToBGR_8u_P3C4R(const Qor8u* const pSrc[3], const int srcStep[3],
//                                        Qor8u* pDst, int dstStep, QoriSize roiSize, Qor8u aval);
// May be included from C.
//
// Arguments. Steps are bytes from row to row, padding included. roiSize is in
// pixels of the full image. A call first checks its arguments; a negative
// status means that nothing was written:
//   qorStsNullPtrErr  a pointer, a plane or an array of steps is null
//   qorStsSizeErr     width or height below 1
//   qorStsStepErr     a step is smaller than a row of its plane
//   qorStsBadArgErr   a layout or another parameter that isn't listed below
// Pointers and steps need no alignment. Source and destination mustn't overlap.
// Functions with an I in their layout work in place.
//
// Names. qori, source space To destination space, _, variant, _, element types
// (one if alike), _, layouts (one if alike). C3: 3 channels interleaved. P3: 3
// planes. AC4, AP4: 4 channels of which the fourth, alpha, isn't read and isn't
// written; AP4 takes three pointers. C4 as a source: the fourth isn't read; as a
// destination: it gets aval. Where source and destination differ and both have
// alpha, AC4P4 and AP4C4, it is copied.
//
// Colour spaces; 8u stands for 0..255:
//   RGB, BGR    first-named channel first. SBGR: the same, signed.
//   RGB565 ...  16-bit pixels, first-named colour in the lowest bits; 555 and 444
//               leave the upper 1 and 4 bits 0. Packing cuts the low bits of a
//               channel, unpacking repeats its high bits below. Dither adds an
//               ordered 4x4 Bayer threshold (B. E. Bayer, 1973) before cutting.
//   YCbCr       ITU-R BT.601, Y in 16..235, Cb and Cr in 16..240 about 128.
//               YCrCb: Cr comes before Cb, as plane or in packed pixels.
//     709HDTV   ITU-R BT.709, same ranges.   709CSC: BT.709, all of 0..255.
//     Gamma     RGB is linear and gets BT.709's transfer curve first.
//   YUV         Y = 0.299R + 0.587G + 0.114B, U = 0.492(B - Y) + 128,
//               V = 0.877(R - Y) + 128: PAL's analogue differences, full range.
//   YCC         Kodak PhotoYCC: Y' / 1.402, 111.40(B' - Y') + 156, 135.64(R' - Y') +
//               137, of primaries in 0..1 that are already BT.709-coded; the
//               results count in 255ths. Wider types scale by their own range.
//   XYZ         CIE 1931, BT.709 primaries, white D65, from linear RGB.
//   LUV, Lab    CIE 1976 (CIE 15), same white, from linear RGB. Integers hold
//               L/100; (u + 134)/354, (v + 140)/262; (a + 128)/255, (b + 128)/255
//               as fractions of their range; floats hold the plain values.
//   HLS, HSV    double hexcone and hexcone (A. R. Smith 1978; Foley, van Dam et
//               al.), all in 0..1, a full turn of hue being 1.
//   YCoCg       Y = (R + 2G + B)/4, Co = (R - B)/2, Cg = (2G - R - B)/4 (Malvar and
//               Sullivan, JVT-I014), rounded half up; in 8u, Co and Cg + 128.
//     Rev       YCoCg-R of the same source, lossless: Co = R - B, t = B + (Co >> 1),
//               Cg = G - t, Y = t + (Cg >> 1), each step modulo 2^16 (2^32 for
//               32s), undone in reverse order.
//   Gray        0.299R + 0.587G + 0.114B; ColorToGray: coeffs in channel order.
//   ToneMap     Linear: the image's minimum to 0 and maximum to 255. Mean: mean
//               value mapping, the image's mean to 127.5. No finite spread, or no
//               positive mean: all 0.
// 16u fills 0..65535, 16s -32768..32767 and 32f 0..1 as 8u fills 0..255, YCoCg and
// gray apart, which are plain numbers. Integers are rounded to nearest and
// saturated; 32f isn't clamped.
//
// Chroma. 422: one sample for 2 pixels, 420: for 2x2, 411: for 4x1, 1620: for 4x4.
// Writing takes the mean of a block's pixels, each rounded and saturated first, and
// rounds it half up; reading repeats the sample.
// Planes have ceil(width / h) x ceil(height / v) chroma samples; the last block
// covers what is left. P2: a plane of Y, a plane of Cb, Cr pairs.
// Packed: YCbCr422 and YUV422 Y0 Cb Y1 Cr, YCrCb422 Y0 Cr Y1 Cb, CbYCr422
// Cb Y0 Cr Y1. A row has 2 * width bytes: an odd last pixel has its Y and the
// first chroma sample; the other is read from the pair before (128 if there is
// none) and not written.
//   _Interlace  chroma lines belong alternately to the even and the odd lines of a
//               group of four; a last group of two lines shares one chroma line.
//   _Filter     chroma is interpolated vertically when read, 3/4 of the nearer and
//               1/4 of the farther line, rounded, samples lying between two luma
//               lines. Written as 420 again, chroma is smoothed vertically.
#ifndef QORCC_H
#define QORCC_H

#include "qordefs.h"

// What a slice is of its image, for _Filter functions with a layout: an upper,
// middle or lower slice has neighbours, and the chroma line beyond its inner
// edges is read too. The whole image has none.
enum { qoriSliceUpper = 0x11, qoriSliceMiddle = 0x12, qoriSliceLower = 0x14, qoriSliceWhole = 0x15 };

#define QORCC_SRC_Packed(T) const T *pSrc, int srcStep
#define QORCC_SRC_Planes(T) const T *const pSrc[], int srcStep
#define QORCC_SRC_PlanesSteps(T) const T *const pSrc[3], const int srcStep[3]
#define QORCC_SRC_Pair(T) const T *pSrcY, int srcYStep, const T *pSrcCbCr, int srcCbCrStep
// Tight: no step, rows follow each other without padding.
#define QORCC_SRC_PackedTight(T) const T* pSrc
#define QORCC_SRC_PlanesTight(T) const T* const pSrc[3]

#define QORCC_DST_Packed(T) T *pDst, int dstStep
#define QORCC_DST_Planes(T) T *const pDst[], int dstStep
#define QORCC_DST_PlanesSteps(T) T *const pDst[3], const int dstStep[3]
#define QORCC_DST_Pair(T) T *pDstY, int dstYStep, T *pDstCbCr, int dstCbCrStep
#define QORCC_DST_PackedTight(T) T* pDst
#define QORCC_DST_PlanesTight(T) T* const pDst[3]

#define QORCC_EXTRA_None(T)
#define QORCC_EXTRA_Alpha(T) , T aval  // written to the fourth channel
#define QORCC_EXTRA_Coeffs(T) , const Qor32f coeffs[3]
#define QORCC_EXTRA_Layout(T) , int layout

#define QORCC_EXTRA_Twist(T) , const Qor32f twist[][4]
#define QORCC_EXTRA_Span(T) , Qor32f vMin, Qor32f vMax

#define QORCC_IMAGES_Packed(T) QORCC_SRC_Packed(T), QORCC_DST_Packed(T)
#define QORCC_IMAGES_Planes(T) QORCC_SRC_Planes(T), QORCC_DST_Planes(T)
#define QORCC_IMAGES_PackedInPlace(T) T *pSrcDst, int srcDstStep
#define QORCC_IMAGES_PlanesInPlace(T) T *const pSrcDst[], int srcDstStep

#define QORCC_POINTWISE_PARAMETERS(images, extra, type) \
  QORCC_IMAGES_##images(Qor##type), QoriSize roiSize QORCC_EXTRA_##extra(Qor##type)

#define QORCC_REDUCE_PARAMETERS(sourceType, destinationType)                                              \
  QORCC_SRC_Packed(Qor##sourceType), QORCC_DST_Packed(Qor##destinationType), QoriSize roiSize, int noise, \
      QoriDitherType dtype, int levels

#define QORCC_PARAMETERS(source, destination, extra, sourceType, destinationType)     \
  QORCC_SRC_##source(Qor##sourceType), QORCC_DST_##destination(Qor##destinationType), \
      QoriSize roiSize QORCC_EXTRA_##extra(Qor##destinationType)

#ifdef __cplusplus
extern "C" {
#endif

// Never null; the fields never change.
QOR_API const QorLibraryVersion* qorccGetLibVersion(void);

#define QORCC_FUNCTION(name, source, destination, extra, sourceType, destinationType, sourceFormat, \
                       sourceOrder, destinationFormat, destinationOrder, transform)                 \
  QOR_API QorStatus name(QORCC_PARAMETERS(source, destination, extra, sourceType, destinationType));
#include "qorccfunctions.def"
#undef QORCC_FUNCTION

// The functions with parameters stand in qorccparameters.def. A function whose
// layout has an I works in place.
//
// ColorTwist. d[i] = twist[i][0] a + twist[i][1] b + twist[i][2] c + twist[i][3] for
// the three channels a, b, c, computed in single precision; the fourth column
// counts in the type's own units. Rows 0..2 are read. C4 reads rows 0..3: the
// matrix is applied to the pixel's four channels, as in P. Haeberli, Matrix
// Operations for Image Processing (1993), so a fourth channel of 1 makes the
// fourth column an offset again.
//
// Gamma. Fwd is the opto-electronic transfer function of ITU-R BT.709-6, item 1.2,
// with its rounded constants: 4.5 L below 0.018, else 1.099 L^0.45 - 0.099. Inv is its
// inverse: V / 4.5 below 0.081, else ((V + 0.099) / 1.099)^(1/0.45). Integers
// fill their range as usual. Floats: vMin..vMax is brought to 0..1 before the
// curve and back behind it; what lies outside counts as the nearer bound, NaN as
// vMin. qorStsBadArgErr unless vMin < vMax, both and their difference finite.
#define QORCC_POINTWISE(name, images, extra, type, ...) \
  QOR_API QorStatus name(QORCC_POINTWISE_PARAMETERS(images, extra, type));
#include "qorccparameters.def"

// ReduceBits. Each channel, all four of C4, keeps `levels` levels, evenly spaced over
// the destination type's range, both ends among them; levels is 2..256 for 8u, else
// 2..65536. Floats saturate at 0 and 1, NaN is 0. The source's place between two
// levels decides, by a threshold:
//   qorDitherNone    half a step, so that the nearest level is taken
//   qorDitherBayer   an ordered 8x8 matrix (B. E. Bayer, 1973), the same for all
//                    channels, which begins at the image's upper left corner
//   qorDitherFS, JJN, Stucki   half a step; what is cut is spread over the pixels
//                    to come, row by row from the left (R. W. Floyd and L. Steinberg
//                    1976; J. F. Jarvis, C. N. Judice and W. H. Ninke 1976; P. Stucki
//                    1981). What falls off the image is lost.
// noise, 0..100, moves each threshold by up to that percentage of half a step, as
// a hash of place and channel says (MurmurHash3's final mix): each call draws the
// same noise.
// Anything else in noise, dtype or levels: qorStsBadArgErr. A working buffer of some
// rows comes from the heap; qorStsNoMemErr if there is none.
#define QORCC_REDUCE(name, sourceType, destinationType, ...) \
  QOR_API QorStatus name(QORCC_REDUCE_PARAMETERS(sourceType, destinationType));
#include "qorccparameters.def"

// Mosaics. pSrc is the upper left corner of the whole source image of srcSize, and
// grid tells the colours of that corner's 2x2 cell. srcRoi, in its pixels, is what is
// converted; pDst gets srcRoi.width x srcRoi.height pixels R, G, B. Pixels outside
// of srcRoi are read as far as srcSize goes; beyond, the image is mirrored about its
// outermost pixels, which keeps the colours of the mosaic. A colour that the mosaic
// has at a pixel is taken as it is.
//   qorStsSizeErr    srcRoi is empty, or srcSize is below 2x2, the least with all colours
//   qorStsBadArgErr  srcRoi isn't inside srcSize; no such grid; no such interpolation

// Bilinear: the mean of the 2 or 4 nearest pixels that have the colour, rounded
// half up. interpolation is 0.
QOR_API QorStatus qoriCFAToRGB_8u_C1C3R(const Qor8u* pSrc, QoriRect srcRoi, QoriSize srcSize, int srcStep,
                                        Qor8u* pDst, int dstStep, QoriBayerGrid grid, int interpolation);
QOR_API QorStatus qoriCFAToRGB_16u_C1C3R(const Qor16u* pSrc, QoriRect srcRoi, QoriSize srcSize, int srcStep,
                                         Qor16u* pDst, int dstStep, QoriBayerGrid grid, int interpolation);

// Adaptive homogeneity-directed (K. Hirakawa and T. W. Parks, IEEE Transactions on
// Image Processing 14 (3), 2005). Green is interpolated along the row and along
// the column, with the paper's filter (-1 2 2 2 -1) / 4; red and blue follow in
// both images by bilinear interpolation of their difference to green. At each
// pixel the image wins that is more homogeneous in CIELab: neighbours are the four
// nearest, tolerances adaptive, counts summed over 3x3; a draw takes the mean. The
// values are taken as linear BT.709 for that. The paper's optional median
// filtering isn't done.
//
// pTmp is scratch of 30 rows of srcRoi.width + 6 elements, of which the call leaves
// any contents: it holds three colours of both images for five rows.
QOR_API QorStatus qoriDemosaicAHD_8u_C1C3R(const Qor8u* pSrc, QoriRect srcRoi, QoriSize srcSize, int srcStep,
                                           Qor8u* pDst, int dstStep, QoriBayerGrid grid, Qor8u* pTmp,
                                           int tmpStep);
QOR_API QorStatus qoriDemosaicAHD_16u_C1C3R(const Qor16u* pSrc, QoriRect srcRoi, QoriSize srcSize,
                                            int srcStep, Qor16u* pDst, int dstStep, QoriBayerGrid grid,
                                            Qor16u* pTmp, int tmpStep);

#ifdef __cplusplus
}
#endif

#endif
