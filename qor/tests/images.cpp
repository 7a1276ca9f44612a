#include "images.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <stdexcept>

Image::Plane Image::together(int rows, int bytes, int padding) {
  const int step = bytes + padding;
  return {{new uint8_t[size_t(step) * (rows - 1) + bytes](), std::default_delete<uint8_t[]>()}, step};
}

Image::Plane Image::fenced(int rows, int bytes, Rows place) {
  const int page = int(sysconf(_SC_PAGESIZE)), room = (bytes + page - 1) / page * page, step = room + page;
  const size_t all = size_t(step) * rows + page;
  void* map = mmap(nullptr, all, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (map == MAP_FAILED) throw std::runtime_error("no memory for a test image");
  const std::shared_ptr<void> owner(map, [all](void* p) { munmap(p, all); });
  uint8_t* first = static_cast<uint8_t*>(map) + page;
  for (int y = 0; y < rows; ++y)
    if (mprotect(first + size_t(y) * step, room, PROT_READ | PROT_WRITE) != 0)
      throw std::runtime_error("no rows between the fences of a test image");
  return {{owner, place == Rows::atPageEnd ? first + room - bytes : first}, step};
}

Image::Image(const Layout& l, int w, int h, const Spacing& s) : layout(l), width(w), height(h) {
  for (int p = 0; p < l.pointers(); ++p) {
    const int rows = rowCount(l, p, h), bytes = rowBytes(p);
    if (s.rows == Rows::together)
      planes_.push_back(together(rows, bytes, s.hasSteps ? s.padding : 0));
    else
      planes_.push_back(s.hasSteps ? fenced(rows, bytes, s.rows)
                                   : Plane{fenced(1, rows * bytes, s.rows).first, bytes});
  }
}

std::vector<Location> Image::locations() const {
  std::vector<Location> all;
  for (int p = 0; p < planeCount(); ++p)
    for (int y = 0; y < rowCount(layout, p, height); ++y)
      for (int i = 0; i < rowElements(layout, p, width); ++i) all.push_back({p, y, i});
  return all;
}

void Image::fillRandom(std::mt19937& random) {
  for (const Location& at : locations()) {
    if (layout.type != "32f") {
      const double values = layout.high() - layout.low() + 1;
      setValue(at, std::floor(layout.low() + (random() + 0.5) / 4294967296.0 * values));
      continue;
    }
    const double unit = random() / 4294967296.0;
    const bool lightness = at.index % layout.channels == 0;
    setValue(at, layout.space != "LUV" ? unit : lightness ? 100 * unit : 100 * unit - 50);
  }
}

void Image::fillBytes(uint8_t value) {
  for (int p = 0; p < planeCount(); ++p)
    for (int y = 0; y < rowCount(layout, p, height); ++y) std::memset(row(p, y), value, rowBytes(p));
}

void Image::copyPixels(const Image& from) {
  for (int p = 0; p < planeCount(); ++p)
    for (int y = 0; y < rowCount(layout, p, height); ++y) std::memcpy(row(p, y), from.row(p, y), rowBytes(p));
}

Bytes Image::copy() const {
  Bytes all(planeCount());
  for (int p = 0; p < planeCount(); ++p)
    for (int y = 0; y < rowCount(layout, p, height); ++y)
      all[p].insert(all[p].end(), row(p, y), row(p, y) + rowBytes(p));
  return all;
}

uint8_t* Image::address(const Location& at) const {
  return row(at.plane, at.row) + ptrdiff_t{at.index} * layout.elementSize();
}

namespace {

// f of any number of the type.
template <class F>
double withType(const std::string& type, F f) {
  if (type == "8u") return f(uint8_t{});
  if (type == "8s") return f(int8_t{});
  if (type == "16u") return f(uint16_t{});
  if (type == "16s") return f(int16_t{});
  return type == "32s" ? f(int32_t{}) : f(float{});
}

}  // namespace

double Image::value(const Location& at) const {
  return withType(layout.type, [&](auto v) {
    std::memcpy(&v, address(at), sizeof v);
    return static_cast<double>(v);
  });
}

void Image::setValue(const Location& at, double value) {
  withType(layout.type, [&](auto v) {
    v = static_cast<decltype(v)>(value);
    std::memcpy(address(at), &v, sizeof v);
    return value;
  });
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
    const int bits = layout.fieldBits(c), v = layout.field(static_cast<int>(value(*at)), c);
    return v * 256 / (1 << bits) + v / (1 << (2 * bits - 8));
  }
  return layout.filtered && c > 0 ? filtered(c, x, y, *at) : value(*at);
}
