// zebgeometry.h: how do sizes, points and rectangles look as text?
//
// A size is "640x480", a point "(1,2)", a rectangle "(1,2)640x480"; pixels all.
// Reading is lenient about brackets, blanks and commas. A text that doesn't
// read sets m_failed of the string and leaves zeros or the parts that did read.
#ifndef ZEBGEOMETRY_H
#define ZEBGEOMETRY_H

#include "qordefs.h"
#include "zebstring.h"

zebString& operator<<(zebString& s, QoriSize size);
zebString& operator<<(zebString& s, QoriPoint point);
zebString& operator<<(zebString& s, QoriRect rect);

// Width and height must be 1 or more.
QoriSize& operator<<(QoriSize& size, zebString& s);
QoriPoint& operator<<(QoriPoint& point, zebString& s);
QoriRect& operator<<(QoriRect& rect, zebString& s);

inline bool operator==(const QoriSize& a, const QoriSize& b) {
  return a.width == b.width && a.height == b.height;
}

#endif
