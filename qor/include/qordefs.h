// qordefs.h: the plain types that cross the border of the Qor library.
//
// Nothing but types: whoever has to name a size or a status includes this
// header and links nothing.
#ifndef QORDEFS_H
#define QORDEFS_H

// Marks what a shared object exports; all else stays hidden.
#define QOR_API __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

typedef unsigned char Qor8u;
typedef signed char Qor8s;
typedef unsigned short Qor16u;
typedef short Qor16s;
typedef unsigned int Qor32u;
typedef int Qor32s;
typedef float Qor32f;

// Negative: error, nothing was written. Positive: warning. 0: success.
typedef int QorStatus;

enum {
  qorStsNotSupportedCpu = -9999,
  qorStsStepErr = -14,
  qorStsNoMemErr = -9,
  qorStsSizeErr = -6,
  qorStsNullPtrErr = -8,
  qorStsBadArgErr = -5,
  qorStsNoErr = 0,
  qorStsNoOperation = 1
};

// A code for the kind of processor; see qorGetCpuType.
typedef int QorCpuType;

// Pixels.
typedef struct {
  int width;
  int height;
} QoriSize;

// Pixels.
typedef struct {
  int x;
  int y;
} QoriPoint;

// Pixels; x and y are the upper left corner.
typedef struct {
  int x;
  int y;
  int width;
  int height;
} QoriRect;

// The colours of the upper left 2x2 cell of a Bayer mosaic, row by row.
typedef enum { qoriBayerBGGR = 0, qoriBayerRGGB = 1, qoriBayerGBRG = 2, qoriBayerGRBG = 3 } QoriBayerGrid;

// How rounding errors are spread when bits are cut.
typedef enum {
  qorDitherNone = 0,
  qorDitherFS = 1,
  qorDitherJJN = 2,
  qorDitherStucki = 3,
  qorDitherBayer = 4
} QoriDitherType;

// Strings are static and zero-terminated.
typedef struct {
  int major;
  int minor;
  int majorBuild;
  int build;
  char targetCpu[4];
  const char* name;
  const char* version;
  const char* buildDate;
} QorLibraryVersion;

#ifdef __cplusplus
}
#endif

#endif
