#include "zebostests.h"

#include "zebhost.h"
#include "zebostream.h"

static const char s_os[] = " OS       : ";
static const char shost[] = " Computer : ";

void __zebOSTest::printInformation() {
  g_ostrm << s_os << os.text() << "\n";
}

void __zebHostTest::printInformation() {
  g_ostrm << shost << host.text() << "\n";
}
