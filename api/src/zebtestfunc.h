// zebtestfunc.h: in which forms can a test hand its function to the timing engine?
#ifndef ZEBTESTFUNC_H
#define ZEBTESTFUNC_H

#include "zebresult.h"

class zebTool;

// Runs the function numLoops times and stores the clocks spent.
typedef zebResult (*TestFuncLoop)(int numLoops, long long* clocks);

// Calls the function at least *numCalls times and until *clocks are spent; stores the calls made and the
// clocks spent.
typedef zebResult (*TestFuncStat)(int* numCalls, long long* clocks);

// One call; returns the library's status: negative error, positive warning, zero success. Also the form of
// the function that restores the input before a call.
typedef int (*TestFuncCall)();

// The old form: runs numLoops times and stores the clocks in the tool's m_numClocks.
typedef zebResult (*TestFuncOld)(zebTool& tool, int numLoops);

#endif
