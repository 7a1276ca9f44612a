#include "zebhost.h"

#include <sys/utsname.h>
#include <unistd.h>

#include <cstdio>

zebHost host;
zebOS os;

zebHost::zebHost() : m_text{} {
  // One byte less: a name that is cut comes without its terminator.
  gethostname(m_text, sizeof(m_text) - 1);
}

zebOS::zebOS() : m_text{} {
  utsname name;
  if (uname(&name) == -1) return;
  snprintf(m_text, sizeof(m_text), "%s (%s, %s)", name.sysname, name.release, name.machine);
}

int zebGetNumOfProcessors() {
  const long count = sysconf(_SC_NPROCESSORS_ONLN);
  return count > 1 ? static_cast<int>(count) : 1;
}
