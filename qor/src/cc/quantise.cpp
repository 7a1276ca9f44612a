#include "quantise.h"

#include <new>

namespace qor {

// What an element's error gives to others, in parts of `divisor`: to the two
// elements right of it, and to those 2 left ... 2 right in the two rows below.
struct Diffusion {
  int right[2];
  int below[2][5];
  int divisor;
};

namespace {

constexpr Diffusion kFloydSteinberg = {{7, 0}, {{0, 3, 5, 1, 0}, {}}, 16};
constexpr Diffusion kJarvisJudiceNinke = {{7, 5}, {{3, 5, 7, 5, 3}, {1, 3, 5, 3, 1}}, 48};
constexpr Diffusion kStucki = {{8, 4}, {{2, 4, 8, 4, 2}, {1, 2, 4, 2, 1}}, 42};

const Diffusion* diffusionOf(QoriDitherType type) {
  if (type == qorDitherFS) return &kFloydSteinberg;
  if (type == qorDitherJJN) return &kJarvisJudiceNinke;
  return type == qorDitherStucki ? &kStucki : nullptr;
}

constexpr int kLevel = 65536, kHalf = kLevel / 2;

// B. E. Bayer, ICC 1973: 0..63, each once; bits of x ^ y and of y, the lowest first.
constexpr int bayer(int x, int y) {
  int value = 0;
  for (int bit = 0; bit < 3; ++bit) value = value << 2 | ((x ^ y) >> bit & 1) << 1 | (y >> bit & 1);
  return value;
}

struct BayerTable {
  int threshold[8][8] = {};

  constexpr BayerTable() {
    for (int y = 0; y < 8; ++y)
      for (int x = 0; x < 8; ++x) threshold[y][x] = (2 * bayer(x, y) + 1) * kLevel / 128;
  }
};
constexpr BayerTable kBayer64;

// The final mix of MurmurHash3 (A. Appleby, public domain).
inline uint32_t hash(uint32_t h) {
  h = (h ^ h >> 16) * 0x85ebca6bu;
  h = (h ^ h >> 13) * 0xc2b2ae35u;
  return h ^ h >> 16;
}

// n / divisor, rounded to nearest, by a multiplication: exact for |n| up to 48 levels.
class Divider {
 public:
  explicit Divider(int divisor)
      : bias_(divisor * (1 << 17) + divisor / 2),
        reciprocal_(static_cast<uint32_t>((int64_t{1} << 32) / divisor + 1)) {}

  int operator()(int n) const {
    return static_cast<int>(uint64_t{static_cast<uint32_t>(n + bias_)} * reciprocal_ >> 32) - (1 << 17);
  }

 private:
  int bias_;  // makes n positive
  uint32_t reciprocal_;
};

inline int within(int level, int top) {
  const int atLeast0 = level > 0 ? level : 0;
  return atLeast0 < top ? atLeast0 : top;
}

}  // namespace

Quantiser::Quantiser(const Reduction& reduction, int width, int channels)
    : reduction_(reduction),
      diffusion_(diffusionOf(reduction.dither)),
      channels_(channels),
      elements_(int64_t{width} * channels) {
  const int64_t errors = diffusion_ ? 3 * (elements_ + 4 * channels) : 0;
  const int64_t total = (diffusion_ ? 3 : 2) * elements_ + errors;
  if (total > PTRDIFF_MAX / int64_t{sizeof(int)}) return;
  buffer_.reset(new (std::nothrow) int[static_cast<size_t>(total)]());
  if (!buffer_) return;
  places_ = buffer_.get();
  thresholds_ = places_ + elements_;
  if (!diffusion_) return;
  incoming_ = thresholds_ + elements_;
  errors_ = incoming_ + elements_;
}

const int* Quantiser::row(int y) {
  setThresholds(y);
  if (reduction_.noise > 0) addNoise(y);
  if (diffusion_) {
    collect(y);
    diffuse(y);
  } else {
    nearest();
  }
  return places_;
}

void Quantiser::setThresholds(int y) {
  const int* pattern = kBayer64.threshold[y & 7];
  const bool ordered = reduction_.dither == qorDitherBayer;
  int* out = thresholds_;
  for (int64_t x = 0; x * channels_ < elements_; ++x)
    for (int c = 0; c < channels_; ++c) *out++ = ordered ? pattern[x & 7] : kHalf;
}

void Quantiser::addNoise(int y) {
  const int64_t amplitude = reduction_.noise * kLevel / 100;
  const uint32_t seed = static_cast<uint32_t>(y) * 0x9e3779b9u;  // 2^32 / golden ratio: rows lie far apart
  for (int64_t i = 0; i < elements_; ++i) {
    const auto random = static_cast<int32_t>(hash(seed + static_cast<uint32_t>(i)));
    thresholds_[i] += static_cast<int>(random * amplitude >> 32);
  }
}

void Quantiser::nearest() {
  const int top = reduction_.levels - 1;
  for (int64_t i = 0; i < elements_; ++i) {
    const auto place = static_cast<uint32_t>(places_[i]);
    const int fraction = static_cast<int>(place & (kLevel - 1));
    places_[i] = within(static_cast<int>(place >> 16) + ((fraction + thresholds_[i]) >> 16), top);
  }
}

void Quantiser::collect(int y) {
  const ptrdiff_t c = channels_;
  int* __restrict in = incoming_;
  const int* e = errors(y - 1);
  const int(&w)[5] = diffusion_->below[0];
  for (ptrdiff_t i = 0; i < elements_; ++i)
    in[i] = w[0] * e[i + 2 * c] + w[1] * e[i + c] + w[2] * e[i] + w[3] * e[i - c] + w[4] * e[i - 2 * c];
  const int(&v)[5] = diffusion_->below[1];
  if (v[2] == 0) return;
  e = errors(y - 2);
  for (ptrdiff_t i = 0; i < elements_; ++i)
    in[i] += v[0] * e[i + 2 * c] + v[1] * e[i + c] + v[2] * e[i] + v[3] * e[i - c] + v[4] * e[i - 2 * c];
}

void Quantiser::diffuse(int y) {
  const ptrdiff_t c = channels_;
  const int top = reduction_.levels - 1, near = diffusion_->right[0], far = diffusion_->right[1];
  const Divider divide(diffusion_->divisor);
  int* e = errors(y);
  for (ptrdiff_t i = 0; i < elements_; ++i) {
    const auto place = static_cast<uint32_t>(places_[i]);
    const int base = static_cast<int>(place >> 16);
    const int carried = divide(incoming_[i] + near * e[i - c] + far * e[i - 2 * c]);
    const int wanted = static_cast<int>(place & (kLevel - 1)) + carried;
    const int level = within(base + ((wanted + thresholds_[i]) >> 16), top);
    e[i] = wanted - (level - base) * kLevel;
    places_[i] = level;
  }
}

}  // namespace qor
