// zebreportlist.h: which tests are selected, or which functions does the library have?
#ifndef ZEBREPORTLIST_H
#define ZEBREPORTLIST_H

#include "zebconditions.h"
#include "zebcstream.h"
#include "zebostream.h"
#include "zebtestlist.h"

// Cells of a table, row by row; "\n" ends a row.
class zebReportList : public zebList<zebString> {
 public:
  // mode 0: the selected tests. 1: all functions of the library, those with a
  // test marked; -1: those without a test. Without registered functions the
  // tests are listed in any mode.
  zebReportList(zebTestList& list, zebConditions& conditions, int mode);

 private:
  bool createFuncList();  // fills the list with names alone; false if there are none
  void makeFuncTable(const zebTestList& list, int mode);
  void makeTestTable(const zebTestList& list, zebConditions& conditions);
  void addFuncRow(const zebString& mark, const zebString& name);
};

bool presentInTestList(const zebTestList& list, const zebString& function);

zebOStream& operator<<(zebOStream& out, const zebReportList& report);  // a tab behind each cell
zebCStream& operator<<(zebCStream& out, const zebReportList& report);

#endif
