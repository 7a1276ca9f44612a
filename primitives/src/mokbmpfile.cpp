// From the file to an image without pixels: headers, their checks, and the reading.
#include "mokbmpfile.h"

#include <climits>
#include <cstdlib>
#include <cstring>

#include "mokimage.h"
#include "zebostream.h"
#include "zebstream.h"

namespace {

constexpr int normalMagic = 19778;   // "BM"
constexpr int swappedMagic = 16973;  // "MB"

// Reverses the bytes of each field; widths in bytes, 0 ends them.
void reverseFields(void* header, const int* widths) {
  unsigned char* field = static_cast<unsigned char*>(header);
  for (; *widths; field += *widths++) {
    for (int i = 0, j = *widths - 1; i < j; ++i, --j) {
      const unsigned char byte = field[i];
      field[i] = field[j];
      field[j] = byte;
    }
  }
}

void reverseFileHeader(tagBITMAPFILEHEADER* header) {
  static const int widths[] = {2, 4, 2, 2, 4, 0};
  reverseFields(header, widths);
}

void reverseInfoHeader(tagBITMAPINFOHEADER* header) {
  static const int widths[] = {4, 4, 4, 2, 2, 4, 4, 4, 4, 4, 4, 0};
  reverseFields(header, widths);
}

// What the file lacks becomes 0.
void readOrZero(FILE* file, void* data, size_t bytes) {
  memset(data, 0, bytes);
  const size_t got = fread(data, 1, bytes, file);
  memset(static_cast<char*>(data) + got, 0, bytes - got);
}

// 0 for a depth that can't be read.
int channelsOf(int bits, bool gray) {
  switch (bits) {
    case 1:
    case 4:
    case 8:
      return gray ? 1 : 3;
    case 16:
    case 24:
    case 32:
      return bits / 8;
  }
  return 0;
}

}  // namespace

mokBmpFile::mokBmpFile(mokImage* image)
    : m_image(image), m_fileHeader(), m_infoHeader(), m_palette(), m_gray(false) {}

bool mokBmpFile::error(zebString text) {
  g_ostrm << msgErr << "--- Can't load file " << m_fileName << ": " << text << "\n" << msgEnd;
  return false;
}

bool mokBmpFile::readInfoHeader(zebString name) {
  m_fileName = name;
  const i_stream file(name, streamRead | streamBinary, true);
  return file.m_file ? readHeaders(file.m_file) : error("Open error");
}

bool mokBmpFile::load(zebString name, int align) {
  m_fileName = name;
  const i_stream stream(name, streamRead | streamBinary, true);
  FILE* const file = stream.m_file;
  if (!file) return error("Open error");
  if (!readHeaders(file)) return false;
  readOrZero(file, m_palette, GetPaletteNum() * sizeof m_palette[0]);
  if (!CreateImage(align)) return false;
  return readPixels(file);
}

bool mokBmpFile::readHeaders(FILE* file) {
  readOrZero(file, &m_fileHeader, sizeof m_fileHeader);
  bool swapped = false;
  if (!ValidFileHeader(swapped)) return error("Bitmap files are valid only");
  if (swapped) reverseFileHeader(&m_fileHeader);
  readOrZero(file, &m_infoHeader, sizeof m_infoHeader);
  if (swapped) reverseInfoHeader(&m_infoHeader);
  return true;
}

bool mokBmpFile::readPixels(FILE* file) {
  // 64 bits: the offset is any number that the file's author liked.
  if (fseeko64(file, m_fileHeader.bfOffBits, SEEK_SET) != 0) return false;
  if (IsCompressed()) return readIndexes(file);
  // In one piece: rows line up only if those of the image have the same length.
  [[maybe_unused]] const size_t got = fread(m_image->m_data, 1, m_image->size(), file);
  return true;
}

bool mokBmpFile::readIndexes(FILE* file) {
  const size_t bytes = GetDataSize();
  void* const data = malloc(bytes);
  const bool complete = data && fread(data, 1, bytes, file) == bytes;
  if (complete) SetImageData(static_cast<unsigned char*>(data));
  free(data);
  return complete;
}

bool mokBmpFile::ValidFileHeader(bool& swapped) const {
  swapped = m_fileHeader.bfType == swappedMagic;
  return swapped || m_fileHeader.bfType == normalMagic;
}

bool mokBmpFile::CreateImage(int align) {
  mokType type = mokUndef;
  int width = 0, height = 0, channels = 0;
  bool plane = false;
  if (!ValidCompression() || !SetImageWidth(width) || !SetImageHeight(height)) return false;
  if (!SetImageType(type) || !SetImagePlane(plane) || !SetImageChannels(channels)) return false;
  m_image->init(type, channels, plane);
  return m_image->createImage(width, height, -1, align, false);
}

bool mokBmpFile::ValidCompression() {
  return m_infoHeader.biCompression == 0 || error("Compression is not valid");
}

bool mokBmpFile::SetImageWidth(int& width) {
  width = m_infoHeader.biWidth;
  return width > 0 || error("Bitmap header is corrupted: biWidth is invalid");
}

bool mokBmpFile::SetImageHeight(int& height) {
  height = m_infoHeader.biHeight;
  return height > 0 || error("Bitmap header is corrupted: biHeight is invalid");
}

bool mokBmpFile::SetImageType(mokType& type) {
  type = mok8u;
  const bool valid = m_infoHeader.biCompression == 0 && channelsOf(m_infoHeader.biBitCount, m_gray) > 0;
  return valid || error("Bitmap header is corrupted: biBitCount is invalid");
}

bool mokBmpFile::SetImagePlane(bool& plane) {
  plane = false;
  const bool valid = m_infoHeader.biCompression == 0 && m_infoHeader.biPlanes == 1;
  return valid || error("Bitmap header is corrupted: biPlanes is invalid");
}

bool mokBmpFile::SetImageChannels(int& channels) {
  m_gray = IsGrayPalette();
  channels = channelsOf(m_infoHeader.biBitCount, m_gray);
  return channels > 0 || error("Bitmap header is corrupted: biBitCount is invalid");
}

int mokBmpFile::GetPaletteNum() const {
  if (m_infoHeader.biCompression != 0 || m_infoHeader.biBitCount > 8) return 0;
  const uint32_t all = 1u << m_infoHeader.biBitCount;
  const uint32_t used = m_infoHeader.biClrUsed;
  return used == 0 || used > all ? all : used;
}

bool mokBmpFile::IsGrayPalette() const {
  for (int i = 0; i < GetPaletteNum(); ++i) {
    const mokBmpColor& c = m_palette[i];
    if (c.blue != c.green || c.green != c.red) return false;
  }
  return true;
}

int mokBmpFile::GetDataStep() const {
  const long long bits = static_cast<long long>(m_infoHeader.biBitCount) * m_infoHeader.biWidth;
  const long long bytes = (bits + 31) / 32 * 4;
  return bytes > INT_MAX ? INT_MAX : static_cast<int>(bytes);
}

int mokBmpFile::GetDataSize() const {
  return mokBytes(mokBytes(GetDataStep(), m_infoHeader.biHeight), m_infoHeader.biPlanes);
}

bool mokBmpFile::IsCompressed() const {
  return m_infoHeader.biCompression == 0 && m_infoHeader.biBitCount < 9;
}
