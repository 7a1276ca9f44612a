// path.h: what does one code path offer?
#ifndef QOR_CC_PATH_H
#define QOR_CC_PATH_H

#include "qorcc.h"

// The functions that no other list has.
#define QORCC_MOSAICS(use)                                                             \
  use(qoriCFAToRGB_8u_C1C3R) use(qoriCFAToRGB_16u_C1C3R) use(qoriDemosaicAHD_8u_C1C3R) \
      use(qoriDemosaicAHD_16u_C1C3R)
#define QORCC_MEMBER(name) decltype(::name)* name;

namespace qorpath {

// The library's functions, compiled for one instruction set.
struct Path {
  const char* name;
#define QORCC_FUNCTION(name, ...) decltype(::name)* name;
#include "qorccfunctions.def"
#undef QORCC_FUNCTION
#define QORCC_POINTWISE(name, ...) decltype(::name)* name;
#define QORCC_REDUCE(name, ...) decltype(::name)* name;
#include "qorccparameters.def"
  QORCC_MOSAICS(QORCC_MEMBER)
};

namespace sse2 {
extern const Path kPath;
}
namespace sse4 {
extern const Path kPath;
}
namespace avx2 {
extern const Path kPath;
}
#ifdef __x86_64__
namespace avx512 {
extern const Path kPath;
}
#endif

}  // namespace qorpath

#endif
