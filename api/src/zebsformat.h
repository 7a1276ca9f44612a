// zebsformat.h: texts and numbers padded to a width.
#ifndef ZEBSFORMAT_H
#define ZEBSFORMAT_H

#include "zebstring.h"

class zebTool;

// Blanks on the left for a positive width, on the right for a negative one; longer texts stay whole.
zebString sFormat(const zebString& s, int width);
zebString sFormat(double value, int width);
zebString sFormat(int value, int width);        // in the double form if it overruns width and 9 characters
zebString sFormat(long long value, int width);  // in the double form unless it fits 32 bits

// Microseconds of one call.
zebString usecString(const zebTool& tool);

#endif
