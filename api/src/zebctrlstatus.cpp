#include "zebctrlstatus.h"

#include "zeb87.h"
#include "zebostream.h"
#include "zebssx.h"

void zebInitCtrlStatus() {
  g_ctrl87.init();
  g_ssx.init();
}

void zebClearCtrlStatus() {
  g_ctrl87.clear();
  g_ssx.clear();
}

bool zebBadCtrlStatus(bool& bad87, bool& badSSX) {
  bad87 = g_ctrl87.badStatus();
  badSSX = g_ssx.badStatus();
  return bad87 || badSSX;
}

void zebPrintCtrlStatus(bool bad87, bool badSSX) {
  g_ostrm << msgWarn;
  if (bad87) g_ostrm << "-- Status    87: " << g_ctrl87.strSW() << "\n";
  if (badSSX) g_ostrm << "-- Status    SSX: " << g_ssx.strExceptionState() << "\n";
  g_ostrm << msgEnd;
}
