// qorcore.cpp: what does a status mean?
#include "qorcore.h"

namespace {

struct StatusText {
  QorStatus status;
  const char* text;
};

constexpr StatusText kStatusTexts[] = {
    {qorStsNotSupportedCpu, "This processor lacks the code path, or the library has none for the code"},
    {qorStsStepErr, "A row step is smaller than a row"},
    {qorStsNoMemErr, "There is not enough memory for a working buffer"},
    {qorStsNullPtrErr, "A pointer is null"},
    {qorStsSizeErr, "A size or count is below 1"},
    {qorStsBadArgErr, "An argument has a value that is not allowed"},
    {qorStsNoErr, "No error"},
    {qorStsNoOperation, "The request has no effect"},
};

}  // namespace

extern "C" {

const char* qorGetStatusString(QorStatus status) {
  for (const StatusText& row : kStatusTexts)
    if (row.status == status) return row.text;
  return status < 0 ? "Unknown error" : "Unknown warning";
}
}
