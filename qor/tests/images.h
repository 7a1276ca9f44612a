// images.h: image memory in which a stray read or write shows.
#ifndef QOR_TESTS_IMAGES_H
#define QOR_TESTS_IMAGES_H

#include <cstdint>
#include <memory>
#include <random>
#include <vector>

#include "layouts.h"

// Rows lie one behind the other or each on pages of its own, at the first or the last bytes of
// them, between pages that can't be touched.
enum class Rows { together, atPageStart, atPageEnd };

// Without steps: all rows of a plane are one.
struct Spacing {
  int padding = 0;  // bytes behind each row; all planes have the same ones
  Rows rows = Rows::together;
  bool hasSteps = true;
};

// The pixels of each plane, without padding.
using Bytes = std::vector<std::vector<uint8_t>>;

class Image {
 public:
  Image(const Layout&, int width, int height, const Spacing&);
  Image(const Image&) = delete;

  const Layout layout;
  const int width, height;

  // Random values over the type's range (0..1 for floats, small enough for its
  // colours if the space is LUV).
  void fillRandom(std::mt19937& random);
  void fillBytes(uint8_t value);
  void copyPixels(const Image& from);  // of the same layout and size
  Bytes copy() const;

  int planeCount() const { return static_cast<int>(planes_.size()); }
  uint8_t* row(int p, int y) const { return planes_[p].first.get() + ptrdiff_t{y} * step(p); }
  int step(int p) const { return planes_[p].step; }
  std::vector<Location> locations() const;

  double value(const Location&) const;  // 16-bit pixels: the whole word
  void setValue(const Location&, double);

  // Component c at full resolution: chroma is repeated, 16-bit pixels are
  // unpacked to 0..255.
  double component(int c, int x, int y) const;

 private:
  struct Plane {
    std::shared_ptr<uint8_t> first;
    int step;  // bytes
  };

  static Plane together(int rows, int bytes, int padding);
  static Plane fenced(int rows, int bytes, Rows);
  int rowBytes(int p) const { return rowElements(layout, p, width) * layout.elementSize(); }
  uint8_t* address(const Location&) const;
  double filtered(int c, int x, int y, const Location& near) const;

  std::vector<Plane> planes_;
};

#endif
