// The process-wide watchers. They stand in one file because their order matters: the units have their
// defaults before a signal can come from them.
#include "zeb87.h"
#include "zebsignal.h"
#include "zebssx.h"

zebSSX g_ssx;
zeb87 g_ctrl87;
tsSignal _g_signal;
