#include "images.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <stdexcept>

EdgeBlock::EdgeBlock(size_t bytes) : size_(bytes) {
  const size_t page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
  const size_t room = (bytes + page - 1) / page * page;
  mapped_ = room + page;
  void* map = mmap(nullptr, mapped_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (map == MAP_FAILED) throw std::runtime_error("no memory for a test image");
  map_ = static_cast<uint8_t*>(map);
  mprotect(map_ + room, page, PROT_NONE);
  data_ = map_ + room - bytes;
}

EdgeBlock::~EdgeBlock() {
  munmap(map_, mapped_);
}

Image::Image(const Layout& l, int w, int h, int padding) : layout(l), width(w), height(h) {
  for (int p = 0; p < l.pointers(); ++p) {
    const int row = rowElements(l, p, w) * l.elementSize();
    steps_.push_back(row + padding);
    planes_.push_back(std::make_unique<EdgeBlock>(size_t(row + padding) * (rowCount(l, p, h) - 1) + row));
  }
  // Functions with one step for all planes take the first.
  fillBytes(0xA5);
}

void Image::fillBytes(uint8_t value) {
  for (const auto& p : planes_) std::memset(p->data(), value, p->size());
}

void Image::fillRandom(std::mt19937& random) {
  for (int p = 0; p < planeCount(); ++p)
    for (int y = 0; y < rowCount(layout, p, height); ++y)
      for (int i = 0; i < rowElements(layout, p, width); ++i) {
        if (layout.type != "32f") {
          setValue({p, y, i}, std::floor(layout.low() + (random() + 0.5) / 4294967296.0 *
                                                            (layout.high() - layout.low() + 1)));
          continue;
        }
        const double unit = random() / 4294967296.0;
        const bool lightness = i % layout.channels == 0;
        setValue({p, y, i}, layout.space != "LUV" ? unit : lightness ? 100 * unit : 100 * unit - 50);
      }
}

void Image::copyPixels(const Image& from) {
  for (int p = 0; p < planeCount(); ++p)
    for (int y = 0; y < rowCount(layout, p, height); ++y)
      std::memcpy(plane(p) + size_t(y) * step(p), from.plane(p) + size_t(y) * from.step(p),
                  size_t(rowElements(layout, p, width)) * layout.elementSize());
}

std::vector<std::vector<uint8_t>> Image::copy() const {
  std::vector<std::vector<uint8_t>> all;
  for (const auto& p : planes_) all.push_back(p->copy());
  return all;
}

size_t Image::offset(const Location& at) const {
  return size_t(at.row) * steps_[at.plane] + size_t(at.index) * layout.elementSize();
}

namespace {

template <class T>
double get(const uint8_t* at) {
  T v;
  std::memcpy(&v, at, sizeof v);
  return v;
}
template <class T>
void put(uint8_t* at, double value) {
  const T v = static_cast<T>(value);
  std::memcpy(at, &v, sizeof v);
}

}  // namespace

double Image::value(const Location& at) const {
  const uint8_t* p = plane(at.plane) + offset(at);
  if (layout.type == "8u") return *p;
  if (layout.type == "8s") return get<int8_t>(p);
  if (layout.type == "16u") return get<uint16_t>(p);
  if (layout.type == "16s") return get<int16_t>(p);
  return layout.type == "32s" ? get<int32_t>(p) : get<float>(p);
}

void Image::setValue(const Location& at, double v) {
  uint8_t* p = plane(at.plane) + offset(at);
  if (layout.type == "8u") return put<uint8_t>(p, v);
  if (layout.type == "8s") return put<int8_t>(p, v);
  if (layout.type == "16u") return put<uint16_t>(p, v);
  if (layout.type == "16s") return put<int16_t>(p, v);
  return layout.type == "32s" ? put<int32_t>(p, v) : put<float>(p, v);
}

double Image::filtered(int c, int x, int y, const Location& near) const {
  const int beyond = std::clamp(y % 2 ? y + 1 : y - 1, 0, height - 1);
  return std::floor((3 * value(near) + value(*locate(layout, c, x, beyond, width, height))) / 4 + 0.5);
}

double Image::component(int c, int x, int y) const {
  auto at = locate(layout, c, x, y, width, height);
  if (!at && x >= 2) at = locate(layout, c, x - 2, y, width, height);
  if (!at) return 128;
  if (layout.bits16[0]) {
    const int field = layout.order[c], bits = layout.bits16[field];
    const int shift = field == 0 ? 0 : field == 1 ? layout.bits16[0] : layout.bits16[0] + layout.bits16[1];
    const int v = static_cast<int>(value(*at)) >> shift & ((1 << bits) - 1);
    return v * 256 / (1 << bits) + v / (1 << (2 * bits - 8));
  }
  return layout.filtered && c > 0 ? filtered(c, x, y, *at) : value(*at);
}
