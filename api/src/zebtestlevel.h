// zebtestlevel.h: the output level that holds outside of a measurement.
#ifndef ZEBTESTLEVEL_H
#define ZEBTESTLEVEL_H

#include "zebostream.h"

// Saved at the start of a run and before each measurement; restored after a measurement or an exception.
extern OutputLevel OldOutLevel;

#endif
