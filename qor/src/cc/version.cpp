#include "dispatch.h"

namespace {

constexpr QorLibraryVersion version(const char (&cpu)[5], const char* text) {
  return {1, 0, 0, 0, {cpu[0], cpu[1], cpu[2], cpu[3]}, "qorcc", text, __DATE__};
}

// In the order of QorPath.
constexpr QorLibraryVersion kVersions[] = {version("SSE2", "1.0 (sse2)"), version("SSE4", "1.0 (sse4)"),
                                           version("AVX2", "1.0 (avx2)"), version("A512", "1.0 (avx512)")};

}  // namespace

extern "C" const QorLibraryVersion* qorccGetLibVersion(void) {
  return &kVersions[qorGetState().path];
}
