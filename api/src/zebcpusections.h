// zebcpusections.h: the sections of the processor report, below its head.
//
// Each writes to g_ostrm at the present level, or nothing if the processor
// lacks the CPUID function that it tells about.
#ifndef ZEBCPUSECTIONS_H
#define ZEBCPUSECTIONS_H

#include "zebstring.h"

// Rules of 79 characters and a line feed.
extern const char starLine[];
extern const char doubleLine[];
extern const char singleLine[];

void printSignature();
void printFlags();
void printMultiThreading();
void printCacheParms();
void printL2Features();

// The heading of a section.
void printTitle(const char* rule, const zebString& title);

// A label of fixed width, the number in decimal, and what stands behind it.
void printValue(const char* label, unsigned int value, const char* behind = "");

// A number by a printf format.
zebString formatNumber(const char* format, unsigned int value);

#endif
