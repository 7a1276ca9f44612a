// quantise.h: which level does each element of a row become?
//
// An element is known by its place among the levels, in fixed point: the level
// below it in the upper 16 bits, the way to the next one in the lower 16.
// 2^-16 of a level is exact enough that no 8- or 16-bit source is rounded to
// the wrong side: a place that isn't half way is at least 2^-17 off.
#ifndef QOR_CC_QUANTISE_H
#define QOR_CC_QUANTISE_H

#include <stdint.h>

#include <memory>

#include "qordefs.h"

namespace qor {

struct Diffusion;

struct Reduction {
  int noise;  // per cent of half a level
  QoriDitherType dither;
  int levels;
};

// Rows of one image in turn, from row 0 on: error diffusion remembers.
class Quantiser {
 public:
  Quantiser(const Reduction&, int width, int channels);

  // Whether there was memory for it. Nothing else may be called if not.
  bool isReady() const { return buffer_ != nullptr; }

  // width * channels elements, interleaved, to be filled before each row.
  uint32_t* places() { return reinterpret_cast<uint32_t*>(places_); }

  // 0..levels - 1 for each element; valid until the next call.
  const int* row(int y);

 private:
  void setThresholds(int y);
  void addNoise(int y);
  void nearest();
  void collect(int y);
  void diffuse(int y);
  int* errors(int y) const { return errors_ + (y + 3) % 3 * (elements_ + 4 * channels_) + 2 * channels_; }

  const Reduction reduction_;
  const Diffusion* const diffusion_;  // null: each element for itself
  const int channels_;
  const int64_t elements_;  // of a row
  std::unique_ptr<int[]> buffer_;
  int* places_ = nullptr;      // become levels
  int* thresholds_ = nullptr;  // added to a place before its fraction is cut
  int* incoming_ = nullptr;    // weighted errors of the rows above
  int* errors_ = nullptr;      // of three rows, with two pixels of 0 at either end
};

}  // namespace qor

#endif
