// layouts.h: what does a function's name say of its two images?
//
// Read from the name alone, so that a wrong row in the library's list shows.
#ifndef QOR_TESTS_LAYOUTS_H
#define QOR_TESTS_LAYOUTS_H

#include <optional>
#include <string>

struct Layout {
  std::string space;  // "RGB", "YCbCr", "HLS", ...: components in this order are 0, 1, 2; 3 is alpha
  std::string type;   // "8u", "16s", ...
  int channels = 0;   // per pixel in memory: 1 to 4, 2 for packed 4:2:2
  bool planar = false;
  bool hasAlpha = false;        // a fourth component is read or written
  int order[4] = {0, 1, 2, 3};  // component of each channel or plane
  int bits16[3] = {};           // sizes of the fields of a 16-bit pixel, from the lowest; 0: none
  bool dither = false;
  int blockWidth = 1, blockHeight = 1;  // pixels per chroma sample
  bool interlaced = false, filtered = false;
  bool lumaFirst = true;  // in a packed pair

  bool subsampled() const { return blockWidth > 1; }
  int pointers() const { return planar ? channels : 1; }
  int components() const { return channels == 1 && !bits16[0] ? 1 : 3; }  // but for alpha
  int elementSize() const;
  double low() const, high() const;  // of the type; 0 and 1 for floats
  // Of a 16-bit pixel, for a component.
  int fieldBits(int component) const { return bits16[order[component]]; }
  int field(int word, int component) const;
};

struct Names {
  std::string base, variant;  // "YCbCr420ToBGR", "709HDTV"
  Layout source, target;
};

Names parse(const std::string& function);

// Where a sample lies: element `index` of row `row` of a plane.
struct Location {
  int plane, row, index;

  auto operator<=>(const Location&) const = default;
};

// Of component c of pixel x, y. None: the image doesn't hold it (second chroma
// sample of an odd last pixel). 16-bit pixels have one location for all.
std::optional<Location> locate(const Layout&, int c, int x, int y, int width, int height);

// Whether a field of the 16-bit pixel at x, y comes from an 8-bit value within the tolerance.
bool fieldFits(const Layout&, int word, int x, int y, int component, double wanted, double tolerance);

// The threshold at x, y of an ordered dither, by B. E. Bayer's recursive definition (ICC 1973): each
// number below 4^bits once among 2^bits rows and columns.
int bayer(int x, int y, int bits);

// Elements of a row and rows of a plane.
int rowElements(const Layout&, int plane, int width);
int rowCount(const Layout&, int plane, int height);

#endif
