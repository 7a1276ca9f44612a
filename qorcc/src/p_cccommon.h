// p_cccommon.h: what do all test sources of this suite share?
#ifndef P_CCCOMMON_H
#define P_CCCOMMON_H

#include "qorcc.h"
#include "qorcore.h"
// The library's headers come first: mok.h binds the hooks of those that it finds.
#include "mok.h"

// Pixels; the user may give another list, so each test reads value().
extern zebEnumIterator<QoriSize> g_imageSize;

// The first cell of a mosaic, by name; all four run unless the user gives others.
void initGrid(zebMapIterator<QoriBayerGrid>& grid);

// Random data from the source's name: the whole range of an integer type, 0 to 1 of a floating one.
bool initSource(mokImage& image, const mokFunc& func, QoriSize size);
// The default constant of the destination's type.
bool initDestination(mokImage& image, const mokFunc& func, QoriSize size);

#endif
