// zebcpucache.h: how many bytes has the processor's largest cache?
//
// Processors tell it by CPUID function 4, older ones by the descriptor bytes
// of function 2. All sizes are bytes.
#ifndef ZEBCPUCACHE_H
#define ZEBCPUCACHE_H

#include "qordefs.h"
#include "zebcpuregs.h"

// One cache as an entry of function 4 describes it.
struct zebCacheParms {
  explicit zebCacheParms(const CPUID& regs);

  unsigned int type;  // 0: the list ends here, 1: data, 2: instruction, 3: unified
  unsigned int sets;
  unsigned int line;  // bytes
  unsigned int partitions;
  unsigned int ways;

  unsigned int size() const { return sets * line * partitions * ways; }
};

// No list is longer; a processor that answers every index alike ends here.
constexpr unsigned int zebMaxCaches = 32;

struct zebCacheDescriptor {
  unsigned char key;
  int size;
};

// The largest first; ends with a key of 0.
extern const zebCacheDescriptor tableCache[];

// The first size of the table whose descriptor function 2 names; -1 if there is none.
int ownGetCacheSize(const zebCacheDescriptor* table);

// What the library's own query would answer; it asks the processor once.
struct zebCacheQuery {
  // 0 and the size, 36 on a processor that isn't genuine, or 37 if none was found, both with size 0.
  QorStatus ask(int* size);

  int ownStatus = 1;  // 1: not yet asked
  int cacheSize = 0;

 private:
  void askProcessor();
};

QorStatus zeb_qorGetMaxCacheSizeB(int* size);

int getCacheSizeB(unsigned int index);  // -1 if the list of function 4 ends there
int getMaxCacheSizeB();                 // 0 without function 4

// The answer for reports, on any processor; 0 if unknown.
int zebGetMaxCacheSizeB();

#endif
