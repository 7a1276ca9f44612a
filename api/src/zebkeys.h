// zebkeys.h: what does each key tell in the echo, and what does it set?
//
// The functions of one key go by one name: info gives the echo's text and
// changes nothing; apply sets what the key asks for, even if the echo calls it
// ignored because the run will stop.
#ifndef ZEBKEYS_H
#define ZEBKEYS_H

#include "zebsession.h"
#include "zebstring.h"

// For a key that means nothing when the run stops at this exit level or above.
template <int level, zebString (*info)(zebString)>
zebString unlessExit(zebString arg) {
  return zebSession::isExit(level) ? zebSession::getExitInfo() : info(arg);
}

// zebkeysinput.cpp: what is asked, given, read and shown.
zebString infoBatch(zebString arg);
zebString infoAsk(zebString arg);
zebString infoData(zebString arg);
zebString infoReadIni(zebString arg);
zebString infoWriteIni(zebString arg);
zebString infoPressing(zebString arg);
zebString infoLevel(zebString arg);
void applyBatch(zebString arg, zebSession* session);
void applyAsk(zebString arg, zebSession* session);
void applyData(zebString arg, zebSession* session);
void applyReadIni(zebString arg, zebSession* session);
void applyWriteIni(zebString arg, zebSession* session);
void applyPressing(zebString arg, zebSession* session);
void applyLevel(zebString arg, zebSession* session);

int getAskLevel(const zebString& arg);  // bits of zebSession::m_askMode, never 0
int getLevel(const zebString& arg);     // bits of OutputLevel, 0 without any letter of a level

// zebkeysfile.cpp: output files, and the names that files have by default.
zebString infoNewListing(zebString arg);
zebString infoAddListing(zebString arg);
zebString infoNewTable(zebString arg);
zebString infoAddTable(zebString arg);
zebString infoNameTable(zebString arg);
zebString infoNameExit(zebString arg);
zebString infoNewSummary(zebString arg);
zebString infoAddSummary(zebString arg);
zebString infoSignal(zebString arg);
zebString infoDefName(zebString arg);
zebString infoInDir(zebString arg);
zebString infoOutDir(zebString arg);
void applyNewListing(zebString arg, zebSession* session);
void applyAddListing(zebString arg, zebSession* session);
void applyNewTable(zebString arg, zebSession* session);
void applyAddTable(zebString arg, zebSession* session);
void applyNameTable(zebString arg, zebSession* session);
void applyNameExit(zebString arg, zebSession* session);
void applyNewSummary(zebString arg, zebSession* session);
void applyAddSummary(zebString arg, zebSession* session);
void applySignal(zebString arg, zebSession* session);
void applyNothing(zebString arg,
                  zebSession* session);  // parseCommandLine sets name and directories beforehand

// zebkeysselect.cpp: which tests run, and in which order.
zebString infoFunction(zebString arg);
zebString infoTest(zebString arg);
zebString infoStart(zebString arg);
zebString infoHot(zebString arg);
zebString infoSort(zebString arg);
void applyFunction(zebString arg, zebSession* session);
void applyTest(zebString arg, zebSession* session);
void applyStart(zebString arg, zebSession* session);
void applyHot(zebString arg, zebSession* session);
void applySort(zebString arg, zebSession* session);

// zebkeysmeasure.cpp: how it is measured, and with which library settings.
zebString infoPriority(zebString arg);
zebString infoCpu(zebString arg);
zebString infoThreads(zebString arg);
zebString infoSetUse(zebString arg);
zebString infoCache(zebString arg);
void applyPriority(zebString arg, zebSession* session);
void applyCpu(zebString arg, zebSession* session);
void applyThreads(zebString arg, zebSession* session);
void applySetUse(zebString arg, zebSession* session);
void applyCache(zebString arg, zebSession* session);

// zebkeysanswer.cpp: answers that need no test.
zebString infoEnumerate(zebString arg);
zebString infoVersion(zebString arg);
zebString infoHelp(zebString arg);
zebString infoHiddenHelp(zebString arg);
void applyEnumerate(zebString arg, zebSession* session);
void applyVersion(zebString arg, zebSession* session);
void applyHelp(zebString arg, zebSession* session);
void applyHiddenHelp(zebString arg, zebSession* session);

// Makes -q and -Q part of the table, where they are from the start.
bool zebRegQKeys();

#endif
