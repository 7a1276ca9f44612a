// moktype.h: what are the elements of a data argument, and which argument is meant?
//
// The value of a type is built from bit fields: the low byte is the size in bits
// of an element, of a complex one the size of a component; the flags tell the
// kind. The values count: tests are sorted by them.
#ifndef MOKTYPE_H
#define MOKTYPE_H

constexpr int mokSizeMask = 0xff;
constexpr int mokSignedFlag = 0x100;  // signed integer
constexpr int mokFloatFlag = 0x200;
constexpr int mokComplexFlag = 0x400;

enum mokType : int {
  mokUndef = 0,
  mok8u = 0x008,
  mok16u = 0x010,
  mok32u = 0x020,
  mok64u = 0x040,
  mok8s = 0x108,
  mok16s = 0x110,
  mok32s = 0x120,
  mok64s = 0x140,
  mok32f = 0x220,
  mok64f = 0x240,
  mok16uc = 0x410,
  mok8sc = 0x508,
  mok16sc = 0x510,
  mok32sc = 0x520,
  mok64sc = 0x540,
  mok32fc = 0x620,
  mok64fc = 0x640,
};

// A data argument of a function.
enum mokArg : int {
  mokArgSrc = 1,
  mokArgSrc2 = 2,
  mokArgDst = 4,
  mokArgDst2 = 8,
};

constexpr bool mokIsFloat(mokType t) {
  return t & mokFloatFlag;
}
constexpr bool mokIsComplex(mokType t) {
  return t & mokComplexFlag;
}
constexpr mokType mokRealForm(mokType t) {
  return static_cast<mokType>(t & ~mokComplexFlag);
}
constexpr mokType mokComplexForm(mokType t) {
  return static_cast<mokType>(t | mokComplexFlag);
}

// Bytes of one element, both components of a complex one.
constexpr int mokTypeSize(mokType t) {
  return (t & mokSizeMask) / 8 * (mokIsComplex(t) ? 2 : 1);
}

#endif
