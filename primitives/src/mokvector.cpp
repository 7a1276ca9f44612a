// The life of a vector: type, memory, reserved copy.
#include "mokvector.h"

#include <climits>
#include <cstdlib>
#include <cstring>

#include "zebmemory.h"
#include "zebostream.h"
#include "zebtest.h"

bool memError(int bytes) {
  g_ostrm << msgErr << "-- Memory error: can't allocate " << bytes << " bytes\n" << msgEnd;
  return false;
}

int mokBytes(int length, int size) {
  const long long bytes = static_cast<long long>(length) * size;
  if (bytes > INT_MAX) return INT_MAX;
  return bytes < INT_MIN ? INT_MIN : static_cast<int>(bytes);
}

mokVector::~mokVector() {
  mokVector::deleteVector();
}

void mokVector::deleteVector() {
  zebTest::deallocate(m_data);
  m_data = nullptr;
  m_length = 0;
  mokVector::deleteReservedCopy();
  setViews(nullptr);
}

void mokVector::setViews(void* data) {
#define MOK_VIEW(name, T) p##name = m_type == mok##name ? static_cast<T*>(data) : nullptr;
  MOK_ELEMENTS(MOK_VIEW)
#undef MOK_VIEW
}

void mokVector::init(mokType t) {
  deleteVector();
  m_type = t;
  m_func = zebString("_") + mokFunc::typeToString(t) + "_";
}

void mokVector::init(const mokFunc& f, int which) {
  // f may be this vector's own name.
  const zebString channels = f.channelsName(which);
  init(f.type(which));
  m_func += channels;
}

void mokVector::init(const mokFunc& f, mokArg arg) {
  const zebString channels = f.channelsName(arg);
  init(f.type(arg));
  m_func += channels;
}

bool mokVector::allocateVector(int bytes, int align, void* object) {
  deleteVector();
  if (bytes < 1) return memError(bytes);
  if (align < 0) align = zebGetAlignByByte() ? -1 : -mokTypeSize(m_type);
  // The registry reads owners back as zebObject*.
  void* const owner = object ? object : static_cast<zebObject*>(this);
  m_data = zebTest::allocate(bytes, align, owner);
  if (!m_data) return false;
  memset(m_data, 0, bytes);
  setViews(m_data);
  return true;
}

bool mokVector::createVector(int length, int align, void* object) {
  if (!allocateVector(mokBytes(length, mokTypeSize(m_type)), align, object)) return false;
  m_length = length;
  setConst();
  return true;
}

bool mokVector::createVector(int length, int align) {
  return createVector(length, align, nullptr);
}

bool mokVector::createVector(int length, SetMode mode, double re, double im) {
  if (!createVector(length, -1)) return false;
  setVector(mode, re, im);
  return true;
}

int mokVector::item(const mokFunc& f) {
  return mokTypeSize(f.type(1));
}

zebString mokVector::objectInfo() const {
  zebString text = "Vector ";
  text << mokFunc::typeToString(m_type) << " len=" << m_length;
  return text;
}

bool mokVector::allocateReserved() {
  deleteReservedCopy();
  const int bytes = size();
  if (bytes < 1) return false;
  m_reserved = calloc(bytes, 1);
  return m_reserved;
}

bool mokVector::reserveCopy() {
  if (!m_data || !allocateReserved()) return false;
  memcpy(m_reserved, m_data, size());
  return true;
}

bool mokVector::setReservedCopy() {
  if (!m_reserved || !m_data) return false;
  memcpy(m_data, m_reserved, size());
  return true;
}

void mokVector::deleteReservedCopy() {
  free(m_reserved);
  m_reserved = nullptr;
}
