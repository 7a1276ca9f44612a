// The life of an image: layout, memory, reserved copy.
#include "mokimage.h"

#include <climits>
#include <cstring>

#include "mokfuncgrammar.h"
#include "zebgeometry.h"
#include "zebobject.h"
#include "zebtest.h"

namespace {

// Bytes: rows begin at multiples of 16 from one another. INT_MAX where the row is too long for any block.
int defaultStep(int width, int pixelBytes) {
  constexpr int grain = 16;
  const int bytes = mokBytes(width, pixelBytes);
  return bytes > INT_MAX - grain ? INT_MAX : (bytes + grain - 1) & ~(grain - 1);
}

}  // namespace

zebString channelString(int channels, bool plane) {
  zebString text = channels == 4 ? "A" : "";
  text << (plane ? "P" : "C") << channels;
  return text;
}

bool mokImage::isPlane(const mokFunc& f) {
  return contains(f.descrName(), "P");
}

int mokImage::numChannels(const mokFunc& f) {
  const zebString descr = f.descrName();
  if (contains(descr, "4")) return 4;
  if (contains(descr, "3")) return 3;
  return contains(descr, "2") ? 2 : 1;
}

int mokImage::numActualChannels(const mokFunc& f) {
  const int channels = numChannels(f);
  return channels == 4 && contains(f.descrName(), "A") ? 3 : channels;
}

void mokImage::init(mokType t, int channels, bool plane) {
  init(t);
  m_func += channelString(channels, plane);
}

mokImage::~mokImage() {
  mokImage::deleteVector();
}

void mokImage::deleteVector() {
  mokVector::deleteVector();
  for (mokVector& vector : m_planeVector) vector.deleteVector();
  for (void*& plane : m_plane) plane = nullptr;
  m_size = {0, 0};
  m_step = 0;
#define MOK_VIEW(name, T) planes##name = nullptr;
  MOK_ELEMENTS(MOK_VIEW)
#undef MOK_VIEW
}

void mokImage::setPlanePtrs() {
  setViews(m_plane[0]);
#define MOK_VIEW(name, T) planes##name = m_type == mok##name ? reinterpret_cast<T**>(m_plane) : nullptr;
  MOK_ELEMENTS(MOK_VIEW)
#undef MOK_VIEW
}

bool mokImage::createImage(int width, int height, int step, int align, bool firstPlaneOnly) {
  deleteVector();
  // Two negative sides would make a positive size.
  if (width < 0 || height < 0) return memError(0);
  const bool planar = isPlane(m_func);
  const int pixelBytes = mokTypeSize(m_type) * (planar ? 1 : numChannels(m_func));
  if (step < 1) step = defaultStep(width, pixelBytes);

  const bool made = planar ? createPlanes(step, height, align, firstPlaneOnly)
                           : allocateVector(mokBytes(step, height), align, static_cast<zebObject*>(this));
  if (!made) return false;
  m_size = {width, height};
  m_step = step;
  setConst();
  return true;
}

bool mokImage::createPlanes(int step, int height, int align, bool firstPlaneOnly) {
  // All planes count as the same vector for the setting that misaligns the first one only.
  const int vectorNum = zebTest::m_vectorNum;
  for (int p = 0; p < numPlanes(); ++p) {
    zebTest::m_vectorNum = vectorNum;
    if (firstPlaneOnly && p != 0) align = 0;
    mokVector& vector = m_planeVector[p];
    vector.init(m_type);
    zebObject* const owner = p == 0 ? static_cast<zebObject*>(this) : MEM_OBJECT_IS_SUBOBJECT;
    // The length counts elements, so wide ones get more bytes than their rows use.
    if (!vector.createVector(mokBytes(step, height), align, owner)) return false;
    // The plane was filled as a vector, padding included.
    memset(vector.m_data, 0, vector.size());
    m_plane[p] = vector.m_data;
  }
  setPlanePtrs();
  return true;
}

bool mokImage::createImage(QoriSize size, int step, int align, bool firstPlaneOnly) {
  return createImage(size.width, size.height, step, align, firstPlaneOnly);
}

bool mokImage::createVector(int width, int height, SetMode mode, double re, double im) {
  if (!createImage(width, height, -1, -1, false)) return false;
  setVector(mode, re, im);
  return true;
}

bool mokImage::createVector(QoriSize size, SetMode mode, double re, double im) {
  return createVector(size.width, size.height, mode, re, im);
}

bool mokImage::createVectorExt(int width, int height, int, SetMode mode, double re, double im) {
  return createVector(width, height, mode, re, im);
}

bool mokImage::createVectorExt(QoriSize size, int, SetMode mode, double re, double im) {
  return createVector(size, mode, re, im);
}

bool mokImage::createImageExt(int width, int height, int, int, SetMode mode, double re, double im) {
  return createVector(width, height, mode, re, im);
}

bool mokImage::createImageExt(QoriSize size, int, int, SetMode mode, double re, double im) {
  return createVector(size, mode, re, im);
}

int mokImage::size() const {
  return m_step * getNumRows();
}

int mokImage::objectSize() const {
  return numItems() * mokTypeSize(m_type);
}

zebString mokImage::objectInfo() const {
  zebString text = "Image ";
  text << mokFunc::typeToString(m_type) << "_" << channelString(numChannels(m_func), isPlane(m_func));
  text << " size=" << m_size;
  return text;
}

bool mokImage::reserveCopy() {
  if (!isPlane(m_func)) return mokVector::reserveCopy();
  if (!allocateReserved()) return false;
  const int planeBytes = m_step * m_size.height;
  char* copy = static_cast<char*>(m_reserved);
  for (int p = 0; p < numPlanes(); ++p, copy += planeBytes) {
    if (!m_plane[p]) {
      deleteReservedCopy();
      return false;
    }
    memcpy(copy, m_plane[p], planeBytes);
  }
  return true;
}

bool mokImage::setReservedCopy() {
  if (!isPlane(m_func)) return mokVector::setReservedCopy();
  if (!m_reserved) return false;
  const int planeBytes = m_step * m_size.height;
  const char* copy = static_cast<const char*>(m_reserved);
  for (int p = 0; p < numPlanes(); ++p, copy += planeBytes) {
    if (!m_plane[p]) return false;
    memcpy(m_plane[p], copy, planeBytes);
  }
  return true;
}
