// How the vectors of a data set get their misalignment and their mutual shift.
#include "zebmemory.h"
#include "zebobject.h"
#include "zebtest.h"

namespace {

constexpr int s_shiftWrap = 32768;  // bytes: the size of a common first-level cache

// Bytes. Below 0: the setting, in elements of -align bytes.
int misalignment(int align) {
  if (align >= 0) return align;
  if (AlignSrc && zebTest::m_vectorNum != 0) return 0;
  return -align * VectorAlign;
}

}  // namespace

void* zebTest::allocate(int size, int align) {
  return allocate(size, align, nullptr);
}

void* zebTest::allocate(int size, int align, void* owner) {
  if (!owner) owner = MEM_OBJECT_IS_BUFFER;
  void* const p = zebMalloc(size, misalignment(align), m_vectorShift, owner);
  if (!p) return nullptr;
  ++m_vectorNum;
  const long long shift = static_cast<long long>(m_vectorShift) + VectorShift;
  m_vectorShift = shift < s_shiftWrap ? static_cast<int>(shift) : 0;
  return p;
}

void zebTest::deallocate(void* p) {
  zebFree(p);
}
