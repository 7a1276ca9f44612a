// The program: one session over all tests that were linked in.
#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include "zebmemory.h"
#include "zebsession.h"
#include "zebtrace.h"

// A file opened in the place of a closed standard stream would get that stream's text.
static void holdStandardStreams() {
  int file = 0;
  while (file >= 0 && file <= STDERR_FILENO) file = open("/dev/null", O_RDWR);
  if (file >= 0) close(file);
}

int main(int argc, char** argv) {
  holdStandardStreams();
  signal(SIGPIPE, SIG_IGN);  // the other files are still worth the run when a reader has gone
  g_trace.traceIn("main");
  if (!pSession) pSession = new zebSession;
  const int status = pSession->run(argc, argv);
  zebFreeAll();
  g_trace.traceOut("main");
  return status;
}
