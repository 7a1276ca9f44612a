// zebmemory.h: where do test data lie, and who owns them?
//
// The speed of a primitive depends on the alignment of each vector to the cache
// line and on how far the vectors stand from one another. Every block of test
// data is placed at a chosen distance from a 64-byte boundary, behind a chosen
// offset, and is entered in one registry together with its owner.
//
// One allocation, from low to high addresses:
//   block of malloc, gap of 129 to 192 bytes (128 bytes in front of address: the
//   pointer to that block), address (64-byte aligned), shift and misalignment,
//   alignedPointer, size bytes of the caller, at least 64 bytes more
#ifndef ZEBMEMORY_H
#define ZEBMEMORY_H

#include "zeblist.h"
#include "zebstring.h"

struct Address {
  void* address = nullptr;         // 64-byte aligned, as the inner allocator gave it
  void* alignedPointer = nullptr;  // what the caller got
  int size = 0;                    // bytes the caller asked for; no shift, alignment or overhead
  void* object = nullptr;          // a zebObject, converted from zebObject* and from nothing else
};

// In order of allocation.
class AddressList : public zebList<Address> {
 public:
  AddressList() : m_cursor(end()) {}

  bool find(void* alignedPointer, Address& out);
  bool getInfo(void* alignedPointer, int* size, void** object);
  // The block at pos, null at the end; leaves the cursor behind it.
  void* getNext(iterator pos, int* size, void** object);
  // Returns the inner block of the erased entry, null when there is none.
  void* remove(void* alignedPointer);

  iterator m_cursor;  // next block of the walk by zebMallocFirst and zebMallocNext

 private:
  iterator position(void* alignedPointer);
};

extern AddressList* pAddressList;  // null until the first allocation
extern int VectorShift;            // bytes between successive vectors of a data set
extern int VectorAlign;            // distance of a vector from the 64-byte boundary, below 64
extern bool AlignSrc;              // only the first vector of a data set is misaligned
extern bool AlignByByte;           // VectorAlign counts bytes, else elements

// Inner allocator: 64-byte aligned, at least size + 64 bytes; null on failure.
void* zeb_malloc(int size);
void zeb_free(void* p);
// The pointer lies align bytes above a multiple of 64, and shift + align above address, if shift is a
// multiple of 64. Null on failure, which a negative shift is too: it would point in front of the block.
void* zeb_malloc(void*& address, int size, int align, int shift);

// Allocate and register; null on failure, which is reported. object is the owner, null for none.
void* zebMalloc(int size, int align, int shift, void* object);
void* zebMalloc(void*& p, int size, int align, int shift);
void zebFree(void* alignedPointer);

// Fill what isn't null. A walk must not allocate or free: there is one cursor.
bool zebMallocInfo(void* alignedPointer, int* size, void** object);
void* zebMallocFirst(int* size, void** object);
void* zebMallocNext(int* size, void** object);

// Forgets the registry and frees nothing: the process is about to end.
void zebFreeAll();

// Save the data of all owners, or bring them back. The number of successes.
int zebReserveAllVectors();
int zebResetAllVectors();

int zebGetVectorShift();
void zebSetVectorShift(int bytes);
int zebGetVectorAlign();
void zebSetVectorAlign(int align);  // keeps the remainder by 64
bool zebGetAlignSrc();
void zebSetAlignSrc(bool firstOnly);
bool zebGetAlignByByte();
void zebSetAlignByByte(bool bytes);

#endif
