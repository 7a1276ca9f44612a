// paths.h: how does a test run on every code path that this processor has?
#ifndef QOR_TESTS_PATHS_H
#define QOR_TESTS_PATHS_H

#include <vector>

#include "qorcore.h"

// Codes for qorInitCpu, from the floor up.
inline std::vector<int> pathCodes() {
  std::vector<int> codes;
  for (int code : {65, 69, 70, 38})
    if (qorInitCpu(code) == qorStsNoErr) codes.push_back(code);
  qorInit();
  return codes;
}

// The path and the number of threads for as long as it lives, then the best path and one thread.
class OnPath {
 public:
  explicit OnPath(int code, int threads = 1) { qorInitCpu(code), qorSetNumThreads(threads); }
  ~OnPath() { qorInit(), qorSetNumThreads(1); }
  OnPath(const OnPath&) = delete;
};

#endif
