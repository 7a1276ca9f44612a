// zebsession.h: what happens in one run of the program, and in which order?
#ifndef ZEBSESSION_H
#define ZEBSESSION_H

#include "zebconditions.h"
#include "zebhooks.h"
#include "zebostream.h"
#include "zebpaths.h"
#include "zebregister.h"
#include "zebstring.h"

struct zebOption;
class zebCommandList;

constexpr const char* ZEB_version = "2.0";
constexpr const char* ZEB_buildDate = "Mar 16 2010";

// Bits of m_askMode: what the console asks.
enum AskMode { askTiming = 1, askParms = 2, askAlign = 4, askTests = 8, askAll = 15 };

// What stops the run after the keys.
enum ExitLevel { exitNone = 0, exitByEnumeration = 1, exitByHelp = 2, exitByVersion = 3 };

constexpr int noEnumeration = 100;  // m_enumMode without key -e

class zebSession : public zebPaths {
 public:
  zebSession();
  zebSession(const zebSession&) = delete;
  zebSession& operator=(const zebSession&) = delete;
  virtual ~zebSession();

  virtual void initSession();
  virtual int run(int argc, char** argv);  // the exit status
  virtual void funcTitleToCStream();
  virtual void parmsTitleToCStream();
  virtual void resultTitleToCStream();
  virtual void putTableTitle();
  virtual void putTableTitleLine();
  virtual bool startSession();  // false vetoes the run
  virtual void updateOptions();
  virtual bool parseCommandLine(int argc, char** argv);  // false ends the run, which has been told
  virtual void listTests(int mode);
  virtual void hint(char arg, bool hide);
  virtual void hint_quick(bool hide);
  virtual void hint_full(bool hide);
  virtual void hint_descr(char key);
  virtual void outputHeader();
  virtual void outputFooter();
  virtual void outputSignal();
  virtual void readCommonData();

  void prepareRun();            // from the choice of processor to the title of the tables
  bool quickOutput();           // answers that need no measurement; true ends the run
  void selectTestParameters();  // common parameters that no selected test uses aren't asked for
  void beginCommonData();
  void endCommonData();
  void deleteTestList();

  bool readTimingMethod();  // these three: true when the console was asked
  bool readTestParameters();
  bool readDataOffset();
  static zebString getEnterTitle(const zebString& title);

  void initOption(char key, const zebString& help, zebString (*info)(zebString),
                  void (*apply)(zebString, zebSession*), const zebString& descr, bool hidden);
  zebOption* getOption(char key) const;  // null when there is no such key
  bool readCfgFile(zebString& line, zebString& name);
  void applyOption(char key, const zebString& arg);

  static bool isExit(int level) { return m_exitLevel >= level; }
  static zebString getExitInfo();  // the echo of a key that has no effect because the run will stop

  void addAskMode(int bits) { m_askMode |= bits; }
  void addLevelMode(int level) { m_levelMode = static_cast<OutputLevel>(m_levelMode | level); }
  void setQuickMode(bool on) { m_quickMode = on; }
  void setEnumMode(int mode) { m_enumMode = mode; }
  void setIniMode(const zebString& name, bool write);
  void addCondition(RunCondition* condition) { m_pConditions->push_back(condition); }  // owned from here on
  void unopenedFile() { m_unopenedFile = true; }
  void setSglName(const zebString& name) { m_sglName = genOutPath(name, extSgl); }

  zebConditions* m_pConditions;
  zebList<zebOption*> m_options;
  int m_askMode;
  bool m_batch;
  OutputLevel m_levelMode;  // during the tests
  bool m_quickMode;         // key -s-: don't sort
  int m_enumMode;           // noEnumeration, or 0 for -e, 1 for -e+, -1 for -e-
  bool m_unopenedFile;      // an output file named by a key couldn't be opened
  zebString m_iniName;
  bool m_iniWrite;
  zebString m_commandInfo;  // the echo of the keys
  zebString m_sglName;      // complete path of the signal file, empty if none

  static int m_nameMode;   // bit 1: name lines into the result tables; bit 2: into the name table
  static bool m_nameExit;  // key -Q
  static int m_exitLevel;  // what stops the run after the keys, an ExitLevel

  // Cells of the table title in place of the plain ones; null for those.
  static void (*m_funcTitle)();
  static void (*m_parmsTitle)();

 private:
  void clearCommand(const zebString& exePath);
  void readKeys(int argc, char** argv, zebCommandList& keys);
  bool openKeyFiles();
};

// The plain title cells: "function", and "Parm1" to "Parm8".
void zebFuncTitleToCStream();
void zebParmsTitleToCStream();

extern bool s_version;   // key -v
extern char s_hintArg;   // keys -h, -?: 0 not given, 1 general help, else the key asked about
extern bool s_hintHide;  // leave developers' keys out of the help

#endif
