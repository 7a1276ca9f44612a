// defaultfloats.h: arithmetic that no caller can change.
#ifndef QOR_CC_DEFAULTFLOATS_H
#define QOR_CC_DEFAULTFLOATS_H

#include <xmmintrin.h>

namespace qor {

// The caller's floating-point state may flush denormals or round otherwise: the
// library computes in the default state, on every thread. What the caller has
// stays, the flags of what has happened among it: vectors also work on places
// that hold no pixel.
class DefaultFloats {
 public:
  DefaultFloats() : before_(_mm_getcsr()) {
    if ((before_ & ~kRaised) != kDefault) _mm_setcsr(kDefault);
  }
  ~DefaultFloats() {
    if (_mm_getcsr() != before_) _mm_setcsr(before_);
  }
  DefaultFloats(const DefaultFloats&) = delete;

 private:
  static constexpr unsigned kDefault = 0x1f80;  // all traps masked, to nearest
  static constexpr unsigned kRaised = 0x3f;     // flags of what has happened
  const unsigned before_;
};

}  // namespace qor

#endif
