// The pixels of an image: rows, fills, single elements, text.
#include "mokfill.h"
#include "mokimage.h"

int mokImage::getNumRows() const {
  return m_size.height * numPlanes();
}

int mokImage::getRowLen() const {
  return isPlane(m_func) ? m_size.width : m_size.width * numChannels(m_func);
}

int mokImage::numItems() const {
  return m_size.width * m_size.height * numChannels(m_func);
}

int mokImage::numActualItems() const {
  return m_size.width * m_size.height * numActualChannels(m_func);
}

void* mokImage::getRowPointer(int row) {
  void* base = m_data;
  if (!base && m_size.height > 0) {
    base = m_plane[row / m_size.height];
    row %= m_size.height;
  }
  return base ? static_cast<char*>(base) + static_cast<long long>(row) * m_step : nullptr;
}

const void* mokImage::getRowPointer(int row) const {
  return const_cast<mokImage*>(this)->getRowPointer(row);
}

void* mokImage::getPointerAt(int x, int y, int c) {
  const bool planar = isPlane(m_func);
  void* const row = getRowPointer(planar ? c * m_size.height + y : y);
  const long long element = planar ? x : static_cast<long long>(numChannels(m_func)) * x + c;
  return row ? static_cast<char*>(row) + element * mokTypeSize(m_type) : nullptr;
}

const void* mokImage::getPointerAt(int x, int y, int c) const {
  return const_cast<mokImage*>(this)->getPointerAt(x, y, c);
}

void mokImage::setConst(double re, double im) {
  const int rows = getNumRows();
  const int length = getRowLen();
  for (int row = 0; row < rows; ++row) setDataConst(getRowPointer(row), length, re, im);
}

void mokImage::setRandom(double low, double high) {
  const int rows = getNumRows();
  const int length = getRowLen();
  for (int row = 0; row < rows; ++row) setDataRandom(getRowPointer(row), length, low, high);
}

void mokImage::setSequence(double first, double last) {
  const int length = getRowLen();
  if (length == 1) return setConst(first, 0.0);
  setSequence(first, last, (last - first) / (length - 1), true);
}

void mokImage::setSequence(double first, double last, double step, bool wrap) {
  const int rows = getNumRows();
  const int length = getRowLen();
  for (int row = 0; row < rows; ++row) setDataSequence(getRowPointer(row), length, first, last, step, wrap);
}

// Each channel is a surface of its own; the imaginary parts lie one component behind the real ones.
void mokImage::setJaehne(double magnitude) {
  const int parts = mokIsComplex(m_type) ? 2 : 1;
  const int pixelStep = parts * (isPlane(m_func) ? 1 : numChannels(m_func));
  const int componentSize = mokTypeSize(m_type) / parts;
  for (int c = 0; c < numChannels(m_func); ++c) {
    char* const surface = static_cast<char*>(getPointerAt(0, 0, c));
    if (!surface) return;
    for (int part = 0; part < parts; ++part) {
      setPlaneJaehne(surface + part * componentSize, pixelStep, magnitude);
    }
  }
}

void mokImage::setPlaneJaehne(void* data, int pixelStep, double magnitude) {
  double offset = 0.0;
  if (!updateJaehneMagn(magnitude, offset)) return;
  // The surface is a sine plus 1: lowered by its magnitude, it stays inside an integer type.
  if (!mokIsFloat(m_type)) offset -= magnitude;
  mokWithComponent(m_type, [&](auto zero) {
    setRealJaehne(static_cast<decltype(zero)*>(data), m_size.width, m_size.height, pixelStep, m_step,
                  magnitude, offset);
  });
}

void mokImage::setImageAt(int x, int y, int c, double re, double im) {
  if (void* const p = getPointerAt(x, y, c)) setDataConst(p, 1, re, im);
}

void mokImage::getImageAt(int x, int y, int c, double& re, double& im) const {
  if (const void* const p = getPointerAt(x, y, c)) getElement(p, re, im);
}

double mokImage::getImageAt(int x, int y, int c) const {
  const void* const p = getPointerAt(x, y, c);
  return p ? getElement(p) : 0.0;
}

void mokImage::setIndex(int x, int y, int c, SetMode, double re, double im) {
  setImageAt(x, y, c, re, im);
}

void mokImage::getIndex(int x, int y, int c, double& re, double& im) const {
  getImageAt(x, y, c, re, im);
}

double mokImage::getIndex(int x, int y, int c) const {
  return getImageAt(x, y, c);
}

zebString mokImage::getString() const {
  zebString text;
  const int rows = getNumRows();
  const int length = getRowLen();
  for (int row = 0; row < rows; ++row) {
    if (row > 0) text << (row % m_size.height ? "\n" : "\n\n");
    text << getDataString(getRowPointer(row), length);
  }
  return text;
}
