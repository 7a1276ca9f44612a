#include "layouts.h"

#include <algorithm>
#include <cmath>
#include <regex>
#include <tuple>
#include <utility>

namespace {

bool has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

bool cut(std::string& text, const std::string& end) {
  if (!text.ends_with(end)) return false;
  text.resize(text.size() - end.size());
  return true;
}

void readFormat(Layout& l, std::string space) {
  l.dither = cut(space, "Dither");
  cut(space, "Gamma");
  const std::pair<const char*, std::pair<int, int>> blocks[] = {
      {"1620", {4, 4}}, {"420", {2, 2}}, {"422", {2, 1}}, {"411", {4, 1}}};
  for (const auto& [text, block] : blocks)
    if (cut(space, text)) std::tie(l.blockWidth, l.blockHeight) = block;
  const std::pair<const char*, int> pixels[] = {{"565", 6}, {"555", 5}, {"444", 4}};
  for (const auto& [text, green] : pixels)
    if (cut(space, text)) l.bits16[0] = l.bits16[2] = green == 4 ? 4 : 5, l.bits16[1] = green;
  if (space == "BGR" || space == "SBGR") std::swap(l.order[0], l.order[2]), space = "RGB";
  if (space == "YCrCb") std::swap(l.order[1], l.order[2]), space = "YCbCr";
  if (space == "CbYCr") l.lumaFirst = false, space = "YCbCr";
  l.space = space;
}

void readChannels(Layout& l, const std::string& token) {
  l.planar = has(token, "P");
  l.channels = token.back() - '0';
  l.hasAlpha = l.channels == 4;
}

// A fourth channel that has no partner on the other side, or is marked as alpha
// on the destination's side, takes no part. C4 alone has four channels of a kind.
void matchAlpha(Names& n, const std::string& sourceToken, const std::string& targetToken, bool givesAlpha) {
  const bool differ = sourceToken != targetToken || targetToken == "C4";
  const bool copied = n.source.hasAlpha && n.target.hasAlpha && differ;
  n.source.hasAlpha = copied;
  n.target.hasAlpha = copied || givesAlpha;
  for (Layout* l : {&n.source, &n.target})
    if (l->planar && l->channels == 4 && !l->hasAlpha) l->channels = 3;
}

}  // namespace

int Layout::elementSize() const {
  return std::stoi(type) / 8;
}
double Layout::low() const {
  return type == "8s" ? -128 : type == "16s" ? -32768 : type == "32s" ? -2147483648.0 : 0;
}
double Layout::high() const {
  if (type == "32f") return 1;
  if (type == "8u" || type == "8s") return type == "8u" ? 255 : 127;
  return type == "16u" ? 65535 : type == "16s" ? 32767 : 2147483647.0;
}
int Layout::field(int word, int component) const {
  for (int below = 0; below < order[component]; ++below) word >>= bits16[below];
  return word & ((1 << fieldBits(component)) - 1);
}

Names parse(const std::string& function) {
  static const std::regex form(
      "qori([A-Za-z0-9]+?)_(?:([A-Za-z0-9]+)_)?(\\d+[usf])(\\d+[usf])?_I?(A?[CP]\\d)(A?[CP]\\d)?I?R?");
  std::smatch m;
  Names n;
  if (!std::regex_match(function, m, form)) return n;
  n.base = m[1];
  n.variant = m[2];
  n.source.type = m[3];
  n.target.type = m[4].matched ? m[4] : m[3];
  const std::string sourceToken = m[5], targetToken = m[6].matched ? m[6] : m[5];
  const size_t to = n.base.find("To");
  const bool one = to == std::string::npos || n.base.starts_with("Tone");
  std::string from = one ? n.base : n.base.substr(0, to), into = one ? n.base : n.base.substr(to + 2);
  if (std::isdigit(into[0])) into = "YCbCr" + into;
  readFormat(n.source, from);
  readFormat(n.target, into);
  readChannels(n.source, sourceToken);
  readChannels(n.target, targetToken);
  matchAlpha(n, sourceToken, targetToken, targetToken == "C4");
  n.source.filtered = n.variant == "Filter";
  for (Layout* l : {&n.source, &n.target}) l->interlaced = n.variant == "Interlace" && l->blockHeight == 2;
  return n;
}

namespace {

int chromaRow(const Layout& l, int y, int height) {
  if (!l.interlaced) return y / l.blockHeight;
  const int group = y / 4, left = height - 4 * group;
  return 2 * group + (left == 2 ? 0 : y % 2);
}

std::optional<Location> locatePacked422(const Layout& l, int c, int x, int y, int width) {
  if (c == 0) return Location{0, y, 2 * x + (l.lumaFirst ? 0 : 1)};
  const int slot = l.order[c] == 1 ? 0 : 2;
  const int index = x / 2 * 4 + slot + (l.lumaFirst ? 1 : 0);
  if (index >= 2 * width) return std::nullopt;
  return Location{0, y, index};
}

}  // namespace

std::optional<Location> locate(const Layout& l, int c, int x, int y, int width, int height) {
  if (l.bits16[0]) return Location{0, y, x};
  if (l.subsampled() && !l.planar) return locatePacked422(l, c, x, y, width);
  const int channel = l.order[c];  // the swaps are their own inverses
  if (!l.planar) return Location{0, y, x * l.channels + channel};
  if (!l.subsampled() || c == 0) return Location{channel, y, x};
  const int row = chromaRow(l, y, height), sample = x / l.blockWidth;
  if (l.channels == 2) return Location{1, row, 2 * sample + channel - 1};
  return Location{channel, row, sample};
}

int rowElements(const Layout& l, int plane, int width) {
  if (l.bits16[0]) return width;
  if (!l.planar) return width * l.channels;
  const int samples = plane == 0 ? width : (width + l.blockWidth - 1) / l.blockWidth;
  return l.channels == 2 && plane == 1 ? 2 * samples : samples;
}

int rowCount(const Layout& l, int plane, int height) {
  return plane == 0 ? height : (height + l.blockHeight - 1) / l.blockHeight;
}

int bayer(int x, int y, int bits) {
  constexpr int kTwo[2][2] = {{0, 2}, {3, 1}};
  if (bits == 0) return 0;
  const int rest = bits - 1;
  return kTwo[y & 1][x & 1] * (1 << 2 * rest) + bayer(x >> 1, y >> 1, rest);
}

bool fieldFits(const Layout& l, int word, int x, int y, int component, double wanted, double tolerance) {
  const int got = l.field(word, component), step = 256 >> l.fieldBits(component);
  const int threshold = l.dither ? bayer(x, y, 2) * step / 16 : 0;
  const auto cut = [&](double v) { return std::min(255, std::clamp(int(v), 0, 255) + threshold) / step; };
  const double v = std::floor(std::clamp(wanted, 0.0, 255.0) + 0.5);
  const bool rest = word >> (l.bits16[0] + l.bits16[1] + l.bits16[2]) == 0;
  return rest && got >= cut(v - tolerance) && got <= cut(v + tolerance);
}
