// The table of keys. Its order is the order of the help.
#include "zebconditions.h"
#include "zebhelptexts.h"
#include "zebhooks.h"
#include "zebkeys.h"
#include "zebsession.h"

namespace {

enum Needs { needsNothing, needsQKeys, needsCore };

struct Row {
  char key;
  bool hidden;
  Needs needs;
  const zebHelpText& text;
  zebString (*info)(zebString arg);
  void (*apply)(zebString arg, zebSession* session);
};

constexpr bool shown = false;
constexpr bool hidden = true;

// clang-format off: one line is one key.
const Row rows[] = {
    {'B', shown, needsNothing, helpBatch, unlessExit<1, infoBatch>, applyBatch},
    {'A', shown, needsNothing, helpAsk, unlessExit<1, infoAsk>, applyAsk},
    {'d', shown, needsNothing, helpData, unlessExit<1, infoData>, applyData},
    {'i', shown, needsNothing, helpReadIni, unlessExit<1, infoReadIni>, applyReadIni},
    {'I', shown, needsNothing, helpWriteIni, unlessExit<1, infoWriteIni>, applyWriteIni},
    {'P', shown, needsNothing, helpPressing, unlessExit<1, infoPressing>, applyPressing},
    {'o', shown, needsNothing, helpNewListing, infoNewListing, applyNewListing},
    {'O', shown, needsNothing, helpAddListing, infoAddListing, applyAddListing},
    {'L', shown, needsNothing, helpLevel, unlessExit<1, infoLevel>, applyLevel},
    {'r', shown, needsNothing, helpNewTable, infoNewTable, applyNewTable},
    {'R', shown, needsNothing, helpAddTable, infoAddTable, applyAddTable},
    {'q', shown, needsQKeys, helpNameTable, unlessExit<1, infoNameTable>, applyNameTable},
    {'Q', shown, needsQKeys, helpNameExit, unlessExit<1, infoNameExit>, applyNameExit},
    {'u', shown, needsNothing, helpNewSummary, unlessExit<1, infoNewSummary>, applyNewSummary},
    {'U', shown, needsNothing, helpAddSummary, unlessExit<1, infoAddSummary>, applyAddSummary},
    {'g', shown, needsNothing, helpSignal, infoSignal, applySignal},
    {'n', shown, needsNothing, helpDefName, infoDefName, applyNothing},
    {'p', shown, needsNothing, helpInDir, infoInDir, applyNothing},
    {'l', shown, needsNothing, helpOutDir, infoOutDir, applyNothing},
    {'f', shown, needsNothing, helpFunction, unlessExit<2, infoFunction>, applyFunction},
    {'t', shown, needsNothing, helpTest, unlessExit<2, infoTest>, applyTest},
    {'F', shown, needsNothing, helpStart, unlessExit<1, infoStart>, applyStart},
    {'Y', shown, needsNothing, helpPriority, unlessExit<1, infoPriority>, applyPriority},
    {'H', shown, needsNothing, helpHot, unlessExit<2, infoHot>, applyHot},
    {'T', shown, needsCore, helpCpu, infoCpu, applyCpu},
    {'N', shown, needsCore, helpThreads, infoThreads, applyThreads},
    {'S', hidden, needsNothing, helpSetUse, unlessExit<1, infoSetUse>, applySetUse},
    {'C', hidden, needsNothing, helpCache, unlessExit<1, infoCache>, applyCache},
    {'s', shown, needsNothing, helpSort, unlessExit<2, infoSort>, applySort},
    {'e', shown, needsNothing, helpEnumerate, infoEnumerate, applyEnumerate},
    {'v', shown, needsNothing, helpVersion, infoVersion, applyVersion},
    {'h', shown, needsNothing, helpHelp, infoHelp, applyHelp},
    {'?', shown, needsNothing, helpHiddenHelp, infoHiddenHelp, applyHiddenHelp},
};
// clang-format on

bool qKeys = true;

// A library whose core isn't linked can't be given a processor or threads.
bool coreAnswers() {
  return qor_Init && qor_Init() != zebNoCore;
}

}  // namespace

bool zebRegQKeys() {
  qKeys = true;
  return true;
}

void zebSession::initSession() {
  m_pConditions = new zebConditions;
  m_batch = false;
  m_quickMode = false;
  m_askMode = 0;
  m_enumMode = noEnumeration;
  m_levelMode = outErr;
  const bool has[] = {true, qKeys, coreAnswers()};  // indexed by Needs
  for (const Row& row : rows) {
    if (!has[row.needs]) continue;
    initOption(row.key, row.text.help, row.info, row.apply, row.text.descr, row.hidden);
  }
}
