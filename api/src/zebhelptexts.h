// zebhelptexts.h: what does the help say of each key?
#ifndef ZEBHELPTEXTS_H
#define ZEBHELPTEXTS_H

struct zebHelpText {
  const char* help;   // short help: the first lines of a key
  const char* descr;  // extended help; a tab holds the place of the list of processors
};

extern const zebHelpText helpBatch, helpAsk, helpData, helpReadIni, helpWriteIni, helpPressing;
extern const zebHelpText helpNewListing, helpAddListing, helpLevel;
extern const zebHelpText helpNewTable, helpAddTable, helpNameTable, helpNameExit;
extern const zebHelpText helpNewSummary, helpAddSummary, helpSignal;
extern const zebHelpText helpDefName, helpInDir, helpOutDir;
extern const zebHelpText helpFunction, helpTest, helpStart, helpPriority, helpHot;
extern const zebHelpText helpCpu, helpThreads, helpSetUse, helpCache;
extern const zebHelpText helpSort, helpEnumerate, helpVersion, helpHelp, helpHiddenHelp;

#endif
