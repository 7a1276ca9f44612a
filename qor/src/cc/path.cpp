// path.cpp: the whole library for one instruction set.
//
// Compiled once per code path, with that path's -m flags and its name as
// QOR_PATH. The sources are included into an unnamed namespace inside the path's
// own: a function compiled for AVX-512 must never be the copy that the linker
// keeps for all. System headers and what all paths share stand outside, and
// nothing here may run when the library is loaded.
#include "path.h"

#include <immintrin.h>
#include <math.h>
#include <omp.h>
#include <stddef.h>
#include <stdint.h>

#include <memory>
#include <new>

#include "state.h"
#include "tables.h"

namespace qorpath::QOR_PATH {
namespace {

#include "convert.cpp"
#include "direct.cpp"
#include "formats_422.cpp"
#include "formats_chroma.cpp"
#include "formats_packed.cpp"
#include "transforms_cie.cpp"
#include "transforms_fixed.cpp"
#include "transforms_gamma.cpp"
#include "transforms_half.cpp"
#include "transforms_hue.cpp"
#include "transforms_linear.cpp"
#include "transforms_luma.cpp"
#include "transforms_ycocg.cpp"
// Behind what they list.
#include "demosaic.cpp"
#include "functions.cpp"
#include "homogeneity.cpp"
#include "mosaic.cpp"
#include "quantise.cpp"
#include "reduce.cpp"
#include "transforms.cpp"

#define QOR_TEXT(name) #name
#define QOR_TEXT_OF(macro) QOR_TEXT(macro)

}  // namespace

const Path kPath = {QOR_TEXT_OF(QOR_PATH),
#define QORCC_VALUE(name) qor::name,
#define QORCC_FUNCTION(name, ...) qor::name,
#include "qorccfunctions.def"
#undef QORCC_FUNCTION
#define QORCC_POINTWISE(name, ...) qor::name,
#define QORCC_REDUCE(name, ...) qor::name,
#include "qorccparameters.def"
                    QORCC_MOSAICS(QORCC_VALUE)};

}  // namespace qorpath::QOR_PATH
