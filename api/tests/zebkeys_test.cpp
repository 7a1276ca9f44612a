// What the keys tell.
#include <gtest/gtest.h>

#include "keyrun.h"

namespace {

zebString echo(KeyRun& run, char key, const char* arg) {
  return run.m_session.getOption(key)->m_info(arg);
}

}  // namespace

TEST(KeyEcho, TellsWhatAKeyWillDo) {
  const struct {
    char key;
    const char *arg, *text;
  } cases[] = {
      {'q', "+x", "add function parameter name lines to csv files defined by -r & -R keys"},
      {'t', "=", "ignored: empty test pattern"},
      {'Y', "high", "ignored: incorrect process priority value"},
      {'T', "", "ignored: incorrect CPU type"},
      {'N', "many", "ignored: incorrect number of threads"},
      {'e', "", "enumerate tested functions and exit"},
      {'e', "+", "enumerate applied and not applied library functions and exit"},
      {'e', "-", "enumerate not applied library functions and exit"},
      {'v', "", "type the version number of the Zeb and exit"},
      {'h', "h", "type extended help and exit"},
      {'h', "Tx", "type extended help for -T key and exit"},
      {'?', "", "type short help with hidden key sand exit"},
      {'?', "h", "type extended help for -h key and exit"},
  };
  KeyRun run;
  for (const auto& c : cases) EXPECT_EQ(echo(run, c.key, c.arg), c.text) << "-" << c.key << c.arg;
  qorEnvironment = nullptr;
  const char* const noLibrary = "ignored: <qorcore.h> is not included before <mok.h> in test files";
  EXPECT_EQ(echo(run, 'T', "Tarn2"), noLibrary);
  EXPECT_EQ(echo(run, 'N', ""), noLibrary);
}

TEST(KeyTable, LacksProcessorAndThreadsOnlyWithoutALibraryCore) {
  for (QorStatus core : {0, -1, zebNoCore}) {
    KeyRun run(core);
    EXPECT_EQ(run.m_session.getOption('T') == nullptr, core == zebNoCore);
    EXPECT_EQ(run.m_session.m_options.size(), core == zebNoCore ? 31 : 33);
  }
}
