// The contents of all test data, block by block, as the key for data output shows them.
#include "mokimage.h"
#include "moktest.h"
#include "zebmemory.h"
#include "zebostream.h"
#include "zebtrace.h"

int mokTest::printAllMemoryBlocks(const zebString& text) {
  if (!g_ostrm.beginMessage(msgData)) return 0;
  g_trace.traceIn("printAllMemoryBlocks");
  printFirstDebugLine(text);

  int n = 0;
  int size = 0;
  void* owner = nullptr;
  for (void* p = zebMallocFirst(&size, &owner); p; p = zebMallocNext(&size, &owner)) {
    zebObject* object = static_cast<zebObject*>(owner);
    if (!object || object == MEM_OBJECT_IS_SUBOBJECT) continue;
    printBlock(++n, p, size, object);
  }

  printLastDebugLine(text);
  g_trace.traceOut("printAllMemoryBlocks");
  g_ostrm.endMessage();
  return n;
}

void mokTest::printBlock(int n, void* data, int size, zebObject* owner) {
  printFirstBlockLine(n, owner, size);
  if (owner == MEM_OBJECT_IS_BUFFER) {
    printByteBlock(data, size);
  } else {
    printVectorBlock(static_cast<mokVector*>(owner));
  }
  printLastBlockLine(n, owner);
}

void mokTest::printFirstDebugLine(const zebString& text) {
  g_ostrm << msgData << "======== OBJECTS OUTPUT START === " << text << " === OBJECTS OUTPUT START ========\n"
          << msgEnd;
}

void mokTest::printLastDebugLine(const zebString& text) {
  g_ostrm << msgData << "======== OBJECTS OUTPUT END === " << text << " === OBJECTS OUTPUT END ========\n"
          << msgEnd;
}

void mokTest::printFirstBlockLine(int n, zebObject* object, int size) {
  g_ostrm << msgData << "======== Object " << n << ": ";
  if (object) {
    g_ostrm << object->objectInfo();
  } else {
    g_ostrm << "MemoryBlock size=" << size;
  }
  g_ostrm << "\n" << msgEnd;
}

void mokTest::printLastBlockLine(int, zebObject*) {
  g_ostrm << msgData << "\n" << msgEnd;
}

void mokTest::printVectorBlock(mokVector* vector) {
  if (!g_ostrm.beginMessage(msgData)) return;
  g_ostrm << vector->getString() << "\n";
  g_ostrm.endMessage();
}

void mokTest::printByteBlock(void* data, int size) {
  if (!g_ostrm.beginMessage(msgData)) return;
  g_ostrm << mokVector::getByteString(data, size) << "\n";
  g_ostrm.endMessage();
}
