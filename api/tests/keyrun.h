// keyrun.h: what do these keys do to a fresh session?
//
// The program is <folder>/bin/prog and runs in <folder>/work, both new and
// empty. All that keys set outside of the session is at its start value.
#ifndef KEYRUN_H
#define KEYRUN_H

#include "capture.h"
#include "zebistream.h"
#include "zeboption.h"
#include "zebsession.h"
#include "zebtest.h"
#include "zebtestlist.h"
#include "zebtool.h"

class KeyRun {
 public:
  explicit KeyRun(QorStatus coreAnswer = 0) : m_capture(outPerf) {
    create_directory(m_folder.path("bin"));
    create_directory(m_folder.path("work"));
    current_path(m_folder.path("work"));
    s_coreAnswer = coreAnswer;
    qor_Init = [] { return s_coreAnswer; };
    qorEnvironment = [] {};
    setStartValues();
    m_session.initSession();
  }
  KeyRun(const KeyRun&) = delete;
  KeyRun& operator=(const KeyRun&) = delete;
  ~KeyRun() {
    current_path(m_oldFolder);
    setStartValues();
  }

  // This line as the program's arguments, cut as a shell would cut it.
  bool parse(const char* line) {
    zebStringList words;
    zebString(line).parse(words, " ");
    words.insert(words.begin(), m_folder.text("bin/prog"));
    char* argv[32];
    int argc = 0;
    for (zebString& word : words) argv[argc++] = const_cast<char*>(word.c_str());
    return m_session.parseCommandLine(argc, argv);
  }

  TempFolder m_folder;
  zebSession m_session;
  Capture m_capture;

 private:
  static void setStartValues() {
    for (zebCStream* table : {&g_cstrm, &g_qstrm, &g_ustrm}) {
      for (o_stream* file : *table) delete file;
      table->clear();
    }
    g_istrm.deleteIniFile();
    g_istrm.m_dataList.clear();
    zebTool::m_priority = 0;
    zebTest::m_hot = 0;
    zebTest::m_cache = false;
    zebTestList::m_startFunc = "";
    zebSession::m_exitLevel = exitNone;
    s_version = false;
    s_cpuType = -1;
    s_numThreads = 0;
  }

  static inline QorStatus s_coreAnswer = 0;
  std::filesystem::path m_oldFolder = std::filesystem::current_path();
};

#endif
