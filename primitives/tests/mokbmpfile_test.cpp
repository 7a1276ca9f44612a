#include "mokbmpfile.h"

#include <gtest/gtest.h>

#include <string>

#include "capture.h"
#include "mokimage.h"

namespace {

std::string bytesOf(const char* hex) {
  std::string bytes;
  unsigned int byte;
  for (int read; sscanf(hex, " %2x%n", &byte, &read) == 1; hex += read) bytes += static_cast<char>(byte);
  return bytes;
}

// What a file says, true or not.
struct Bmp {
  int bits = 24, width = 1, height = 1;
  int colours = 0;
  const char *palette = "", *pixels = "00000000";  // in hexadecimal
  const char* magic = "BM";  // with "MB" the numbers of the headers have their high byte first
  unsigned int offset = 0;   // 0: behind the palette
  int planes = 1, compression = 0;

  std::string bytes() const {
    const std::string table = bytesOf(palette);
    const unsigned int pixelsAt = offset ? offset : 54 + table.size();
    const int numbers[] = {0,           0, int(pixelsAt), 40,   width,   height, planes, bits,
                           compression, 0, 2835,          2835, colours, 0};
    std::string all = magic;
    for (const int& number : numbers) {
      const int size = &number == numbers + 6 || &number == numbers + 7 ? 2 : 4;
      for (int i = 0; i < size; ++i)
        all += static_cast<char>(number >> 8 * (*magic == 'M' ? size - 1 - i : i));
    }
    return all + table + bytesOf(pixels);
  }
};

// The image that loading gives, as its descriptor and its rows, such as "_8u_C1: 01 02/ 03 04", or "failed";
// then what was told.
zebString loaded(const zebString& name) {
  Capture screen(outErr);
  mokImage image;
  zebString text = image.loadImage(name, -1) ? image.m_func + ":" : "failed";
  for (int row = 0; row < image.getNumRows(); ++row) {
    text << (row ? "/" : "") << mokVector::getByteString(image.getRowPointer(row), image.getRowLen());
  }
  return text + screen.text();
}

zebString loaded(const std::string& bytes) {
  TempFile file;
  std::ofstream(file.name().c_str(), std::ios::binary) << bytes;
  return loaded(file.name());
}

TEST(BitmapReader, TakesDeepPixelsAsTheyStandAndLooksIndexesUpInThePalette) {
  const struct {
    Bmp file;
    const char* image;
  } cases[] = {
      {{16, 2, 1, 0, "", "01020304"}, "_8u_C2: 01 02 03 04"},
      {{32, 2, 1, 0, "", "01020304 05060708"}, "_8u_AC4: 01 02 03 04 05 06 07 08"},
      // The second row of the image begins at byte 16, that of the file at byte 12: the rows shift.
      {{24, 4, 2, 0, "", "000102030405060708090A0B 101112131415161718191A1B"},
       "_8u_C3: 00 01 02 03 04 05 06 07 08 09 0A 0B/ 14 15 16 17 18 19 1A 1B 02 02 02 02"},
      // A gray palette gives one channel, any other three: blue, green, red.
      {{8, 3, 2, 3, "10101000 20202000 30303000", "02000100 01010200"}, "_8u_C1: 30 10 20/ 20 20 30"},
      {{8, 2, 1, 2, "01020300 FFFFFF00", "00010000"}, "_8u_C3: 01 02 03 FF FF FF"},
      // An index beyond the palette is its last entry.
      {{8, 2, 1, 2, "10101000 20202000", "C8000000"}, "_8u_C1: 20 10"},
      {{1, 12, 2, 1000, "44444400 55555500", "A59F0000 00600000"},
       "_8u_C1: 55 44 55 44 44 55 44 55 55 44 44 55/ 44 44 44 44 44 44 44 44 44 55 55 44"},
      {{8, 3, 1, 2, "01020300 04050600", "00010100", "MB"}, "_8u_C3: 01 02 03 04 05 06 04 05 06"},
      // The colours that a short palette lacks are black.
      {{8, 4, 1, 0, "11111100 22222200", "", "BM", 58}, "_8u_C1: 00 00 00 11"},
      {{24, 3, 1, 0, "", "1112131415"}, "_8u_C3: 11 12 13 14 15 02 02 02 02"},
  };
  for (const auto& c : cases) EXPECT_EQ(loaded(c.file.bytes()), c.image);
}

TEST(BitmapReader, TellsWhatItCannotRead) {
  const struct {
    Bmp file;
    const char* why;
  } cases[] = {{{.height = -1}, ": Bitmap header is corrupted: biHeight is invalid\n"},
               {{.width = 0}, ": Bitmap header is corrupted: biWidth is invalid\n"},
               {{.planes = 2}, ": Bitmap header is corrupted: biPlanes is invalid\n"},
               {{.bits = 12}, ": Bitmap header is corrupted: biBitCount is invalid\n"},
               {{.compression = 1}, ": Compression is not valid\n"},
               {{.magic = "PK"}, ": Bitmap files are valid only\n"},
               // No block holds these.
               {{.bits = 32, .width = 0x40000000, .height = 4}, "failed-- "},
               {{.bits = 8, .width = 65536, .height = 65536}, "failed-- "},
               {{.width = 0x55555556}, "failed-- "}};
  for (const auto& c : cases) {
    const zebString text = loaded(c.file.bytes());
    EXPECT_TRUE(contains(text, "failed--") && contains(text, c.why)) << text.c_str();
  }
  EXPECT_EQ(loaded(zebString("/nowhere/at.bmp")),
            "failed-- Can't open file /nowhere/at.bmp to read: \n"
            "--- Can't load file /nowhere/at.bmp: Open error\n");
}

TEST(BitmapReader, SurvivesAPaletteFileCutAnywhere) {
  Bmp file = {4, 9, 2, 2, "11111100 22222200", "0101010100000000 1010101010000000"};
  const std::string bytes = file.bytes();
  for (size_t n = 0; n < bytes.size(); ++n) EXPECT_EQ(loaded(bytes.substr(0, n)).find("failed"), 0) << n;
  file.offset = 0xFFFFFFF0u;
  EXPECT_EQ(loaded(file.bytes()).find("failed"), 0);
}

// Pixel (x, y), row 0 on top, of those with 24 bits: blue 10 (x + y), green 60 y + 11, red 40 x + 7; with 4
// bits: the bits of x + y, blue the highest; with 1 bit: set where x y + x is a multiple of 3.
TEST(BitmapReader, ReadsTheFilesOfAnotherProgram) {
  const zebString deep = "_8u_C3: 14 83 07 1E 83 2F 28 83 57 32 83 7F 3C 83 A7/ 0A 47 07 14 47 2F";
  const zebString cases[][2] = {
      {"true24", deep},
      {"new24", deep},
      {"colour4", "_8u_C3: 00 FF 00 00 FF FF FF 00 00 FF 00 FF FF FF 00/ 00 00 FF 00 FF 00"},
      {"black1", "_8u_C1: FF FF FF FF FF FF FF FF FF FF FF/ FF 00 00 FF 00 00 FF 00 00 FF 00"},
  };
  // An image begins with the lowest row.
  for (const auto& [name, beginning] : cases) {
    const zebString image = loaded(zebString(BITMAP_DATA "/") + name + ".bmp");
    EXPECT_EQ(image.substr(0, beginning.length()), beginning);
  }
}

}  // namespace
