// zebcolumnstore.h: where do the rows of a table wait?
//
// A store is an array of columnCount lists, one per column. A row is the i-th
// entry of each list, so all lists have the same length.
#ifndef ZEBCOLUMNSTORE_H
#define ZEBCOLUMNSTORE_H

#include "zebstringlist.h"

constexpr int columnCount = 32;

void clearStore(zebStringList* store);
void addStore(zebStringList* store, const zebString* row);  // row: columnCount texts
int getStoreCount(zebStringList* store);                    // rows

// it: columnCount iterators, set to the first row.
void resetStoreIterator(zebStringList* store, zebList<zebString>::iterator* it);

// Copies the next row; false at the end of the store.
bool getStoreNext(zebStringList* store, zebString* row, zebList<zebString>::iterator* it);

#endif
