#include "zebmemory.h"

#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "zebobject.h"
#include "zebostream.h"

AddressList* pAddressList = nullptr;
int VectorShift = 512;
int VectorAlign = 0;
bool AlignSrc = true;
bool AlignByByte = true;

namespace {

constexpr int s_line = 64;         // bytes of a cache line
constexpr int s_overhead = 256;    // bytes of malloc's block beyond the request
constexpr int s_firstByte = 192;   // the aligned block begins at most this far into malloc's block
constexpr int s_linkOffset = 128;  // the pointer to malloc's block stands this far in front

// For p a multiple of 64 the result is p + align: the mask lets exactly the low bits of align through.
void* getAlignedPtr(void* p, int align) {
  const intptr_t mask = static_cast<intptr_t>(align) - s_line;
  return reinterpret_cast<void*>((reinterpret_cast<intptr_t>(p) + s_line - 1) & mask);
}

zebString blockText(const Address& block) {
  zebString text = "size:";
  text << block.size << "  address:" << block.address << "  alignedPointer:" << block.alignedPointer;
  return text;
}

void fillInfo(const Address& block, int* size, void** object) {
  if (size) *size = block.size;
  if (object) *object = block.object;
}

int forAllOwners(bool (zebObject::*step)()) {
  int successes = 0;
  void* owner = nullptr;
  for (void* p = zebMallocFirst(nullptr, &owner); p; p = zebMallocNext(nullptr, &owner)) {
    if (owner && (static_cast<zebObject*>(owner)->*step)()) ++successes;
  }
  return successes;
}

}  // namespace

AddressList::iterator AddressList::position(void* alignedPointer) {
  iterator it = begin();
  while (it != end() && it->alignedPointer != alignedPointer) ++it;
  return it;
}

bool AddressList::find(void* alignedPointer, Address& out) {
  const iterator it = position(alignedPointer);
  if (it == end()) return false;
  out = *it;
  return true;
}

bool AddressList::getInfo(void* alignedPointer, int* size, void** object) {
  Address block;
  if (!find(alignedPointer, block)) return false;
  fillInfo(block, size, object);
  return true;
}

void* AddressList::getNext(iterator pos, int* size, void** object) {
  m_cursor = pos;
  if (pos == end()) return nullptr;
  ++m_cursor;
  fillInfo(*pos, size, object);
  return pos->alignedPointer;
}

void* AddressList::remove(void* alignedPointer) {
  const iterator it = position(alignedPointer);
  if (it == end()) return nullptr;
  void* const address = it->address;
  if (m_cursor == it) ++m_cursor;
  erase(it);
  return address;
}

void* zeb_malloc(int size) {
  if (size < 0) return nullptr;
  void* const block = malloc(static_cast<size_t>(size) + s_overhead);
  if (!block) return nullptr;
  const uintptr_t first = reinterpret_cast<uintptr_t>(block) + s_firstByte;
  char* const address = reinterpret_cast<char*>(first / s_line * s_line);
  memcpy(address - s_linkOffset, &block, sizeof block);
  return address;
}

void zeb_free(void* p) {
  if (!p) return;
  void* block = nullptr;
  memcpy(&block, static_cast<char*>(p) - s_linkOffset, sizeof block);
  free(block);
}

void* zeb_malloc(void*& address, int size, int align, int shift) {
  const int misalign = align % s_line;
  const long long total = static_cast<long long>(size) + shift + misalign + s_line;
  address = nullptr;
  if (size < 0 || shift < 0 || total > INT_MAX) return nullptr;
  address = zeb_malloc(static_cast<int>(total));
  return address ? getAlignedPtr(static_cast<char*>(address) + shift, misalign) : nullptr;
}

void* zebMalloc(int size, int align, int shift, void* object) {
  Address block;
  block.size = size;
  block.object = object;
  block.alignedPointer = zeb_malloc(block.address, size, align, shift);
  if (!block.alignedPointer) {
    g_ostrm << msgErr << "-- Memory error: can't allocate " << size << " bytes\n" << msgEnd;
    return nullptr;
  }
  if (!pAddressList) pAddressList = new AddressList;
  pAddressList->push_back(block);
  g_ostrm << msgMem << " - zebMalloc: " << blockText(block) << "\n" << msgEndFlush;
  return block.alignedPointer;
}

void* zebMalloc(void*& p, int size, int align, int shift) {
  p = zebMalloc(size, align, shift, nullptr);
  return p;
}

void zebFree(void* alignedPointer) {
  if (!pAddressList || !alignedPointer) return;
  Address block;
  const bool found = pAddressList->find(alignedPointer, block);
  g_ostrm << msgMem << " - zebFree: " << (found ? blockText(block) : zebString()) << "\n" << msgEndFlush;
  zeb_free(pAddressList->remove(alignedPointer));
}

bool zebMallocInfo(void* alignedPointer, int* size, void** object) {
  return pAddressList && pAddressList->getInfo(alignedPointer, size, object);
}

void* zebMallocFirst(int* size, void** object) {
  return pAddressList ? pAddressList->getNext(pAddressList->begin(), size, object) : nullptr;
}

void* zebMallocNext(int* size, void** object) {
  return pAddressList ? pAddressList->getNext(pAddressList->m_cursor, size, object) : nullptr;
}

void zebFreeAll() {
  pAddressList = nullptr;
}

int zebReserveAllVectors() {
  return forAllOwners(&zebObject::reserveCopy);
}
int zebResetAllVectors() {
  return forAllOwners(&zebObject::setReservedCopy);
}

int zebGetVectorShift() {
  return VectorShift;
}
void zebSetVectorShift(int bytes) {
  VectorShift = bytes;
}
int zebGetVectorAlign() {
  return VectorAlign;
}
void zebSetVectorAlign(int align) {
  VectorAlign = align % s_line;
}
bool zebGetAlignSrc() {
  return AlignSrc;
}
void zebSetAlignSrc(bool firstOnly) {
  AlignSrc = firstOnly;
}
bool zebGetAlignByByte() {
  return AlignByByte;
}
void zebSetAlignByByte(bool bytes) {
  AlignByByte = bytes;
}
