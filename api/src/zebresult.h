// zebresult.h: the shared scale of outcomes. The greater value is the more severe one and wins when results
// are folded together.
#ifndef ZEBRESULT_H
#define ZEBRESULT_H

#include "zebstring.h"

enum zebResult : int {
  resNotRun = 0,
  resOk = 1,
  resAccuracyWarning = 2,
  resCtrlStatus = 3,
  resDataWarning = 4,
  resLibWarning = 5,
  resWarning = 6,  // also the total of all warnings in the counters of the test list
  resAccuracyError = 7,
  resDataError = 8,
  resLibError = 9,
  resException = 10,
  resError = 11,  // also the total of all errors in the counters of the test list
};

constexpr int zebResultCount = 12;

inline bool zebIsWarning(zebResult r) {
  return r >= resAccuracyWarning && r <= resWarning;
}
inline bool zebIsError(zebResult r) {
  return r >= resAccuracyError;
}

zebString zebResultString(zebResult r);  // for sentences: "successfully"
zebString zebResultName(zebResult r);    // for tables and blocks: "OK"

#endif
