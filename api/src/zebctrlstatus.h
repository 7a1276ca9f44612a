// zebctrlstatus.h: was the floating-point state disturbed, by both watchers together?
#ifndef ZEBCTRLSTATUS_H
#define ZEBCTRLSTATUS_H

void zebInitCtrlStatus();   // defaults in both units, nothing seen
void zebClearCtrlStatus();  // flags cleared, nothing seen
// True if either is bad.
bool zebBadCtrlStatus(bool& bad87, bool& badSSX);
// One line per bad unit, at level msgWarn.
void zebPrintCtrlStatus(bool bad87, bool badSSX);

#endif
