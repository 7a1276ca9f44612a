#include "zebcommand.h"
#include "zebcputype.h"
#include "zebistream.h"
#include "zeboption.h"
#include "zebostream.h"
#include "zebregister.h"
#include "zebsession.h"

namespace {

int exitLevelOf(const zebCommandList& keys) {
  if (keys.isKey('?') || keys.isKey('h')) return exitByHelp;
  if (keys.isKey('e')) return exitByEnumeration;
  if (keys.isKey('v')) return exitByVersion;
  return exitNone;
}

// The last argument of a key, empty without the key.
zebString lastArg(const zebCommandList& keys, char key) {
  zebString arg;
  keys.getArg(key, arg);
  return arg;
}

// False when the file can't be opened; an empty file gives an empty line.
bool readFirstLine(const zebString& path, zebString& line) {
  i_stream file(path, streamRead | streamFullName, false);
  if (!file.m_file) return false;
  char buf[1024];
  line = fgets(buf, sizeof buf, file.m_file) ? buf : "";
  return true;
}

}  // namespace

void zebSession::initOption(char key, const zebString& help, zebString (*info)(zebString),
                            void (*apply)(zebString, zebSession*), const zebString& descr, bool hidden) {
  m_options.push_back(new zebOption{key, hidden, help, info, apply, descr});
}

zebOption* zebSession::getOption(char key) const {
  for (zebOption* option : m_options) {
    if (option->m_key == key) return option;
  }
  return nullptr;
}

bool zebSession::readCfgFile(zebString& line, zebString& name) {
  name = m_exePath.getFileTitle() + ".cfg";
  if (readFirstLine(name, line)) return true;
  name = m_exePath.getFileDir() + name;
  return readFirstLine(name, line);
}

zebString zebSession::getExitInfo() {
  switch (m_exitLevel) {
    case exitByEnumeration:
      return "ignored because of -e option";
    case exitByHelp:
      return "ignored because of -h option";
    case exitByVersion:
      return "ignored because of -v option";
    default:
      return "ignored";
  }
}

bool zebSession::parseCommandLine(int argc, char** argv) {
  clearCommand(argc > 0 ? argv[0] : "");
  zebCommandList keys;
  readKeys(argc, argv, keys);
  m_exitLevel = exitLevelOf(keys);
  // Before any file key, so that these hold wherever they stand.
  setInDir(lastArg(keys, 'p'));
  setOutDir(lastArg(keys, 'l'));
  setDefName(lastArg(keys, 'n'));
  g_ostrm.setOutLevel(outPerf);
  for (const zebCommandKey& key : keys) applyOption(key.m_key, key.m_arg);
  g_ostrm << m_commandInfo;
  m_commandInfo = "";
  if (!openKeyFiles()) return false;
  updateOptions();
  return true;
}

void zebSession::clearCommand(const zebString& exePath) {
  m_exePath = exePath;
  m_askMode = 0;
  m_batch = false;
  m_quickMode = false;
  m_nameMode = 0;
  m_nameExit = false;
  m_unopenedFile = false;
  m_enumMode = noEnumeration;
  m_iniName = "";
  m_commandInfo = "Command line options: ";
}

void zebSession::readKeys(int argc, char** argv, zebCommandList& keys) {
  zebString line;
  zebString name;
  if (argc > 1) {
    keys.setArgs(argc - 1, argv + 1);
    m_commandInfo += "\n";
  } else if (readCfgFile(line, name)) {
    keys.setArgs(line.c_str());
    m_commandInfo += "read from " + name + " file\n";
  } else if (!builtInCommandLine().empty()) {
    keys.setArgs(builtInCommandLine().c_str());
    m_commandInfo += "set by _FORCE_CMDLINE preprocessor definition\n";
  } else {
    m_commandInfo = "";
  }
}

void zebSession::applyOption(char key, const zebString& arg) {
  const zebOption* option = getOption(key);
  // Appended in one piece: each growth copies the whole text.
  const zebString info = option ? option->m_info(arg) : zebString("ignored: incorrect option key");
  m_commandInfo += zebString('-') + key + arg + ": " + info + "\n";
  if (option) option->m_apply(arg, this);
}

bool zebSession::openKeyFiles() {
  if (m_unopenedFile) {
    g_ostrm << "FATAL ERROR: can't open output file for writing\n";
    return false;
  }
  if (m_iniName.empty() || g_istrm.setIniFile(m_iniName, m_iniWrite) || !m_iniWrite) return true;
  g_ostrm << "FATAL ERROR: can't open ini-file for writing\n";
  return false;
}

void zebSession::updateOptions() {
  if (zebOption* option = getOption('T')) {
    const int tab = option->m_descr.find('\t');
    const int cut = tab == zebString::npos ? option->m_descr.length() : tab;
    option->m_descr =
        option->m_descr.substr(0, cut) + zebCpuType::optimizedList() + option->m_descr.substr(cut + 1);
  }
  if (m_batch) {
    m_askMode = 0;
  } else if (m_askMode == 0) {
    m_askMode = askTiming | askParms;
  }
}
