// The process-wide streams. They stand in one file because their order matters: each is built before, and
// destroyed after, those that follow and may still write to it.
#include "zebcstream.h"
#include "zebistream.h"
#include "zebostream.h"
#include "zebstream.h"
#include "zebtrace.h"

zebOStream g_ostrm;
zebCStream g_cstrm;
zebCStream g_qstrm;
zebCStream g_ustrm;
zebCStream g_mstrm;
zebIStream g_istrm;
zebTrace g_trace;

// Never destroyed: g_ostrm still holds standard output when it closes its files.
i_stream& c_in = *new i_stream(stdin, "standard input");
o_stream& c_out = *new o_stream(stdout, "standard output");
