// The pixels of palette bitmaps, from indexes to bytes of an image.
#include "mokbmpfile.h"
#include "mokimage.h"

void mokBmpFile::SetImageData(unsigned char* data) {
  switch (m_infoHeader.biBitCount) {
    case 8:
      return SetImageData_8(data);
    case 4:
      return SetImageData_4(data);
    case 1:
      return SetImageData_1(data);
  }
}

void mokBmpFile::SetImageData_8(unsigned char* data) {
  for (int y = 0; y < m_image->m_size.height; ++y, data += GetDataStep()) {
    unsigned char* const row = static_cast<unsigned char*>(m_image->getRowPointer(y));
    for (int x = 0; x < m_image->m_size.width; ++x) SetPixel(data[x], row, x);
  }
}

// The first of two pixels stands in the high half.
void mokBmpFile::SetImageData_4(unsigned char* data) {
  for (int y = 0; y < m_image->m_size.height; ++y, data += GetDataStep()) {
    unsigned char* const row = static_cast<unsigned char*>(m_image->getRowPointer(y));
    for (int x = 0; x < m_image->m_size.width; ++x) {
      SetPixel(x % 2 ? data[x / 2] & 15 : data[x / 2] >> 4, row, x);
    }
  }
}

// The first of eight pixels is the highest bit. A set bit is the last colour.
void mokBmpFile::SetImageData_1(unsigned char* data) {
  for (int y = 0; y < m_image->m_size.height; ++y, data += GetDataStep()) {
    unsigned char* const row = static_cast<unsigned char*>(m_image->getRowPointer(y));
    for (int x = 0; x < m_image->m_size.width; ++x) {
      SetPixel(data[x / 8] & 128 >> x % 8 ? 255 : 0, row, x);
    }
  }
}

void mokBmpFile::SetPixel(unsigned char index, unsigned char* row, int x) {
  const int last = GetPaletteNum() - 1;
  const mokBmpColor& c = m_palette[index > last ? last : index];
  if (m_gray) {
    row[x] = c.blue;
    return;
  }
  row[3 * x] = c.blue;
  row[3 * x + 1] = c.green;
  row[3 * x + 2] = c.red;
}
