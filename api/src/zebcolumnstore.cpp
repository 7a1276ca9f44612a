#include "zebcolumnstore.h"

void clearStore(zebStringList* store) {
  for (int i = 0; i < columnCount; ++i) store[i].clear();
}

void addStore(zebStringList* store, const zebString* row) {
  for (int i = 0; i < columnCount; ++i) store[i].push_back(row[i]);
}

int getStoreCount(zebStringList* store) {
  return store[0].size();
}

void resetStoreIterator(zebStringList* store, zebList<zebString>::iterator* it) {
  for (int i = 0; i < columnCount; ++i) it[i] = store[i].begin();
}

bool getStoreNext(zebStringList* store, zebString* row, zebList<zebString>::iterator* it) {
  for (int i = 0; i < columnCount; ++i) {
    if (it[i] == store[i].end()) return false;
    row[i] = *it[i]++;
  }
  return true;
}
