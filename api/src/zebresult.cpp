#include "zebresult.h"

namespace {

struct Outcome {
  const char* text;
  const char* name;
};

const Outcome s_outcomes[zebResultCount] = {
    {"was not run", "UNDEFINED"},
    {"successfully", "OK"},
    {"wrong measure accuracy", "ACCURWRN"},
    {"modified control status", "BADSTSWRN"},
    {"test data warning", "DATAWRN"},
    {"lib function warning", "FUNCWRN"},
    {"warning", "WARNING"},
    {"accuracy error", "ACCURFAIL"},
    {"test data error", "DATAFAIL"},
    {"lib function error", "FUNCFAIL"},
    {"exception", "EXCPTFAIL"},
    {"error", "FAIL"},
};

bool known(zebResult r) {
  return r >= 0 && r < zebResultCount;
}

}  // namespace

zebString zebResultString(zebResult r) {
  return known(r) ? s_outcomes[r].text : "unknown result";
}

zebString zebResultName(zebResult r) {
  return known(r) ? s_outcomes[r].name : "UNKNOWN";
}
