// images.h: image memory in which a stray read or write shows.
//
// The last byte of each plane lies before a page that can't be touched; bytes
// between rows are known and compared.
#ifndef QOR_TESTS_IMAGES_H
#define QOR_TESTS_IMAGES_H

#include <cstdint>
#include <memory>
#include <random>
#include <vector>

#include "layouts.h"

// Bytes that end at a forbidden page.
class EdgeBlock {
 public:
  explicit EdgeBlock(size_t bytes);
  ~EdgeBlock();
  EdgeBlock(const EdgeBlock&) = delete;

  uint8_t* data() const { return data_; }
  size_t size() const { return size_; }
  std::vector<uint8_t> copy() const { return {data_, data_ + size_}; }

 private:
  uint8_t* map_;
  size_t mapped_;
  uint8_t* data_;
  size_t size_;
};

class Image {
 public:
  // padding: bytes behind each row; all planes have the same one.
  Image(const Layout&, int width, int height, int padding);

  const Layout layout;
  const int width, height;

  // Random values over the type's range (0..1 for floats, small enough for its
  // colours if the space is LUV).
  void fillRandom(std::mt19937& random);
  void fillBytes(uint8_t value);
  void copyPixels(const Image& from);  // of the same layout and size

  uint8_t* plane(int p) const { return planes_[p]->data(); }
  int step(int p) const { return steps_[p]; }
  int planeCount() const { return static_cast<int>(planes_.size()); }
  std::vector<std::vector<uint8_t>> copy() const;

  double value(const Location&) const;  // 16-bit pixels: the whole word
  void setValue(const Location&, double);

  // Component c at full resolution: chroma is repeated, 16-bit pixels are
  // unpacked to 0..255.
  double component(int c, int x, int y) const;

  std::vector<bool> mask(int p) const { return std::vector<bool>(planes_[p]->size()); }
  size_t offset(const Location&) const;  // bytes from the plane's first

 private:
  double filtered(int c, int x, int y, const Location& near) const;

  std::vector<std::unique_ptr<EdgeBlock>> planes_;
  std::vector<int> steps_;
};

#endif
