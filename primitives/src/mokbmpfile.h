// mokbmpfile.h: how does a test get a picture of the user's instead of generated data?
//
// Reads an uncompressed Windows bitmap into a mokImage of 8-bit elements; the
// layout follows from the bits per pixel: 1, 4 and 8 go through the palette and
// give C1 if it is gray, else C3 (blue, green, red); 16, 24 and 32 bits are taken
// as bytes and give C2, C3 and AC4. No row is turned over: row 0 is the bottom of
// the picture. Headers may have their bytes reversed, palette and pixels not.
// All other files are refused with a message.
#ifndef MOKBMPFILE_H
#define MOKBMPFILE_H

#include <cstdint>
#include <cstdio>

#include "moktype.h"
#include "zebstring.h"

class mokImage;

// The headers as they stand in the file.
struct [[gnu::packed]] tagBITMAPFILEHEADER {
  uint16_t bfType;
  uint32_t bfSize;
  uint16_t bfReserved1;
  uint16_t bfReserved2;
  uint32_t bfOffBits;  // bytes from the start of the file to the pixels
};

struct [[gnu::packed]] tagBITMAPINFOHEADER {
  uint32_t biSize;
  int32_t biWidth;   // pixels
  int32_t biHeight;  // pixels
  uint16_t biPlanes;
  uint16_t biBitCount;  // bits of a pixel
  uint32_t biCompression;
  uint32_t biSizeImage;
  int32_t biXPelsPerMeter;
  int32_t biYPelsPerMeter;
  uint32_t biClrUsed;  // palette entries, 0: as many as the bits can name
  uint32_t biClrImportant;
};

struct mokBmpColor {
  uint8_t blue, green, red, reserved;
};

class mokBmpFile {
 public:
  explicit mokBmpFile(mokImage* image);  // not owned
  virtual ~mokBmpFile() = default;

  // align as for mokImage::createImage. False on failure, which is told, but for a palette image whose pixels
  // end early. Where those of another image do, the rest keeps the default constant, and the result is true.
  bool load(zebString name, int align);
  bool readInfoHeader(zebString name);  // the headers alone
  bool error(zebString text);           // tells why the file can't be loaded; false

  bool ValidFileHeader(bool& swapped) const;
  bool CreateImage(int align);

  // Each takes one thing from the headers, or tells what is wrong with it and gives false.
  bool ValidCompression();
  bool SetImageWidth(int& width);
  bool SetImageHeight(int& height);
  bool SetImageType(mokType& type);
  bool SetImagePlane(bool& plane);
  bool SetImageChannels(int& channels);

  int GetPaletteNum() const;  // entries
  bool IsGrayPalette() const;
  int GetDataStep() const;    // bytes of a row of the file; INT_MAX if it isn't an int
  int GetDataSize() const;    // bytes of all rows; INT_MAX alike
  bool IsCompressed() const;  // the pixels are indexes into the palette

  // Expand the rows of the file into those of the image.
  void SetImageData(unsigned char* data);
  void SetImageData_8(unsigned char* data);
  void SetImageData_4(unsigned char* data);
  void SetImageData_1(unsigned char* data);
  void SetPixel(unsigned char index, unsigned char* row, int x);

  mokImage* m_image;
  zebString m_fileName;
  tagBITMAPFILEHEADER m_fileHeader;
  tagBITMAPINFOHEADER m_infoHeader;
  mokBmpColor m_palette[256];

 private:
  bool readHeaders(FILE* file);
  bool readPixels(FILE* file);
  bool readIndexes(FILE* file);

  bool m_gray;  // the palette gives one channel
};

#endif
