// zebregister.h: what do test sources hand to the framework before main?
//
// Each call returns 1 so that it can initialise a static of its own (two say
// when not). All lists are made on demand: nothing fixes the order in which the
// static initialisers of the sources run.
#ifndef ZEBREGISTER_H
#define ZEBREGISTER_H

#include "qordefs.h"
#include "zeblist.h"
#include "zebstringlist.h"

class zebParameter;
class zebSession;
class zebTest;
class zebTestList;
class zebTool;

using QorVersionFunc = const QorLibraryVersion* (*)();

bool zebRegTest(zebTest* test);             // the list owns the test from here on
bool zebRegParm(zebParameter& parm);        // a common parameter; isn't owned
bool zebRegParmFunc(void (*func)());        // called once, before the common parameters are selected
bool zebRegCmdLine(const zebString& text);  // keys for a run that gets no arguments
bool zebRegQorVersion(QorVersionFunc func);
bool zebRegQorEnvironment(void (*func)());        // fills the hooks of zebhooks.h
bool zebRegTimingMethod(void (*func)(zebTool&));  // sets the dialog's default method
bool zebRegHotFunction(const zebString& name);
bool zebRegSession(zebSession* session);    // what main uses in place of a plain session
bool zebRegLibInfo(const zebString& text);  // 0 and no effect when the text is there already
bool zebRegLibFunc(const zebString& name);  // 0 and no effect for an empty name

// Null until the first registration of their kind.
extern zebTestList* pTestList;
extern zebList<zebParameter*>* g_pParmList;
extern zebStringList* g_pHotList;
extern zebStringList* g_pLibInfoList;
extern zebStringList* g_pLibFuncList;
extern zebList<QorVersionFunc>* qorVersionList;
extern void (*s_parmFunc)();
extern void (*initTimingMethod)(zebTool&);
extern zebSession* pSession;

// What zebRegCmdLine has collected, empty when nothing.
const zebString& builtInCommandLine();

#endif
