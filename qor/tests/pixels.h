// pixels.h: interleaved or planar pixels of any element type, in guarded memory.
#ifndef QOR_TESTS_PIXELS_H
#define QOR_TESTS_PIXELS_H

#include <cmath>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "images.h"

// What an element type can hold; floats count as 0..1.
struct ElementType {
  int bytes;
  double low, high;
  bool isFloat;

  double span() const { return high - low; }
};

inline ElementType elementType(const std::string& name) {
  if (name == "8u") return {1, 0, 255, false};
  if (name == "8s") return {1, -128, 127, false};
  if (name == "16u") return {2, 0, 65535, false};
  if (name == "16s") return {2, -32768, 32767, false};
  return {4, 0, 1, true};
}

// Planes of rows, of which each ends `padding` bytes behind its last element.
class Pixels {
 public:
  Pixels(const std::string& type, int planes, int rowElements, int height, int padding)
      : type(elementType(type)), rowElements(rowElements), height(height) {
    step = rowElements * this->type.bytes + padding;
    for (int p = 0; p < planes; ++p) {
      blocks_.push_back(std::make_unique<EdgeBlock>(size_t(step) * (height - 1) + step - padding));
      std::memset(blocks_.back()->data(), 0xA5, blocks_.back()->size());
    }
  }

  const ElementType type;
  const int rowElements, height;
  int step;

  template <class T = void>
  T* plane(int p = 0) const {
    return reinterpret_cast<T*>(blocks_[p]->data());
  }

  double value(int p, int i, int y) const {
    const uint8_t* at = blocks_[p]->data() + size_t(y) * step + size_t(i) * type.bytes;
    if (type.isFloat) return read<float>(at);
    if (type.bytes == 1) return type.low < 0 ? read<int8_t>(at) : *at;
    return type.low < 0 ? read<int16_t>(at) : read<uint16_t>(at);
  }

  void set(int p, int i, int y, double v) {
    uint8_t* at = blocks_[p]->data() + size_t(y) * step + size_t(i) * type.bytes;
    const int32_t whole = type.isFloat ? 0 : static_cast<int32_t>(v);
    const float real = static_cast<float>(v);
    std::memcpy(at, type.isFloat ? static_cast<const void*>(&real) : &whole, type.bytes);
  }

  // f(plane, element of the row, row) gives each value.
  template <class F>
  void fill(F f) {
    for (int p = 0; p < int(blocks_.size()); ++p)
      for (int y = 0; y < height; ++y)
        for (int i = 0; i < rowElements; ++i) set(p, i, y, f(p, i, y));
  }

  void fillRandom(std::mt19937& random) {
    fill([&](int, int, int) {
      const double unit = random() / 4294967296.0;
      return type.isFloat ? unit : std::floor(type.low + unit * (type.span() + 1));
    });
  }

  std::vector<std::vector<uint8_t>> copy() const {
    std::vector<std::vector<uint8_t>> all;
    for (const auto& b : blocks_) all.push_back(b->copy());
    return all;
  }

  // The bytes between rows are still those of the constructor.
  bool hasCleanPadding() const {
    for (const auto& b : blocks_)
      for (size_t i = 0; i < b->size(); ++i)
        if (i % step >= size_t(rowElements) * type.bytes && b->data()[i] != 0xA5) return false;
    return true;
  }

 private:
  template <class T>
  static double read(const uint8_t* at) {
    T v;
    std::memcpy(&v, at, sizeof v);
    return v;
  }

  std::vector<std::unique_ptr<EdgeBlock>> blocks_;
};

#endif
