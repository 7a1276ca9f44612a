// zebcputype.h: what are the types of processors called?
//
// A type is an int code of the library. Its key is what the command line takes
// and shows; its name is for people.
#ifndef ZEBCPUTYPE_H
#define ZEBCPUTYPE_H

#include "qordefs.h"
#include "zebcpuid.h"
#include "zebstring.h"

class zebCpuType {
 public:
  static int cpuType(const zebString& key);  // compared exactly; -1 if there is none
  static zebString cpuLabel(QorCpuType code);
  static zebString cpuName(QorCpuType code);
  static zebString optimizedList();  // one line per code that the library is optimised for
  // Tells dual and quad cores of the one type that is sold as both.
  static zebString updateCpuName(QorCpuType code, const zebString& name);
};

// The type of a processor by its record; other vendors are told by their instruction sets alone.
QorCpuType zebDecideCpuType(const QorCpuRec& rec, bool genuine);

#endif
