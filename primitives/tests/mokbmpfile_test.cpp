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

// What loading gives; failures are part of it.
struct Loaded {
  explicit Loaded(const zebString& name) {
    Capture screen(outErr);
    good = image.loadImage(name, -1);
    messages = screen.text();
  }

  // The image as its descriptor and its rows, such as "_8u_C1: 01 02/ 03 04"; "none" without data.
  zebString text() const {
    if (!image.m_data) return "none";
    zebString all = image.m_func + ":";
    for (int row = 0; row < image.getNumRows(); ++row) {
      all << (row ? "/" : "") << mokVector::getByteString(image.getRowPointer(row), image.getRowLen());
    }
    return all;
  }

  mokImage image;
  bool good;
  zebString messages;
};

Loaded loaded(const std::string& bytes) {
  TempFile file;
  std::ofstream(file.name().c_str(), std::ios::binary) << bytes;
  return Loaded(file.name());
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
      {{4, 5, 2, 4, "00000000 11111100 22222200 33333300", "01231F00 32100000"},
       "_8u_C1: 00 11 22 33 11/ 33 22 11 00 00"},
      {{1, 12, 2, 1000, "44444400 55555500", "A59F0000 00600000"},
       "_8u_C1: 55 44 55 44 44 55 44 55 55 44 44 55/ 44 44 44 44 44 44 44 44 44 55 55 44"},
      {{8, 3, 1, 2, "01020300 04050600", "00010100", "MB"}, "_8u_C3: 01 02 03 04 05 06 04 05 06"},
      // The colours that a short palette lacks are black.
      {{8, 4, 1, 0, "11111100 22222200", "", "BM", 58}, "_8u_C1: 00 00 00 11"},
      {{24, 3, 1, 0, "", "1112131415"}, "_8u_C3: 11 12 13 14 15 02 02 02 02"},
  };
  for (const auto& c : cases) {
    const Loaded result = loaded(c.file.bytes());
    EXPECT_TRUE(result.good) << result.messages.c_str();
    EXPECT_EQ(result.text(), c.image);
    EXPECT_EQ(result.messages, "");
  }
}

TEST(BitmapReader, TellsWhatItCannotRead) {
  const struct {
    Bmp file;
    const char* why;
  } cases[] = {{{.height = -1}, "Bitmap header is corrupted: biHeight is invalid"},
               {{.width = 0}, "Bitmap header is corrupted: biWidth is invalid"},
               {{.planes = 2}, "Bitmap header is corrupted: biPlanes is invalid"},
               {{.bits = 12}, "Bitmap header is corrupted: biBitCount is invalid"},
               {{.compression = 1}, "Compression is not valid"},
               {{.magic = "PK"}, "Bitmap files are valid only"},
               // No block holds these.
               {{.width = 0x7FFFFFFF, .height = 0x7FFFFFFF}, ""},
               {{.bits = 32, .width = 0x40000000, .height = 4}, ""},
               {{.bits = 8, .width = 65536, .height = 65536}, ""},
               {{.width = 0x55555556}, ""}};
  for (const auto& c : cases) {
    const Loaded result = loaded(c.file.bytes());
    EXPECT_FALSE(result.good);
    EXPECT_TRUE(contains(result.messages, *c.why ? zebString(": ") + c.why + "\n" : "-- "))
        << result.messages.c_str();
    EXPECT_EQ(result.text(), "none");
  }
  EXPECT_EQ(
      Loaded("/nowhere/at.bmp").messages,
      "-- Can't open file /nowhere/at.bmp to read: \n--- Can't load file /nowhere/at.bmp: Open error\n");
  EXPECT_TRUE(contains(Loaded("/tmp").messages, "/tmp: Bitmap files are valid only\n"));
}

TEST(BitmapReader, SurvivesAPaletteFileCutAnywhere) {
  Bmp file = {4, 9, 2, 2, "11111100 22222200", "0101010100000000 1010101010000000"};
  const std::string bytes = file.bytes();
  EXPECT_TRUE(loaded(bytes).good);
  for (size_t n = 0; n < bytes.size(); ++n) EXPECT_FALSE(loaded(bytes.substr(0, n)).good) << n;
  file.offset = 0xFFFFFFF0u;
  EXPECT_FALSE(loaded(file.bytes()).good);
}

// Blue, green or red of the pictures in the files of another program, row 0 on top.
int colourOf(const zebString& name, int x, int y, int channel) {
  const int deep[] = {10 * (x + y), 60 * y + 11, 40 * x + 7};
  if (contains(name, "24")) return deep[channel];
  if (name == "colour4") return (x + y) >> (2 - channel) & 1 ? 255 : 0;
  return (x * y + x) % 3 == 0 ? 255 : 0;
}

TEST(BitmapReader, ReadsTheFilesOfAnotherProgram) {
  const struct {
    const char* name;
    int width, channels;
  } cases[] = {{"true24", 5, 3}, {"new24", 5, 3}, {"colour4", 5, 3}, {"black1", 11, 1}};
  const zebString folder = BITMAP_DATA "/";
  for (const auto& c : cases) {
    const Loaded result(folder + c.name + ".bmp");
    ASSERT_TRUE(result.good) << c.name;
    ASSERT_EQ(result.image.m_size.width, c.width);
    ASSERT_EQ(result.image.m_size.height, 3);
    ASSERT_EQ(mokImage::numChannels(result.image.m_func), c.channels);
    for (int i = 0; i < c.width * 3 * c.channels; ++i) {
      const int channel = i % c.channels, x = i / c.channels % c.width, y = i / c.channels / c.width;
      EXPECT_EQ(result.image.getImageAt(x, 2 - y, channel), colourOf(c.name, x, y, channel))
          << c.name << x << y;
    }
  }
  EXPECT_TRUE(contains(Loaded(folder + "alpha32.bmp").messages, ": Compression is not valid\n"));
}

}  // namespace
