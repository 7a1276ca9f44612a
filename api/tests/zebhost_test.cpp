#include "zebhost.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace {

// What the kernel shows of itself as a file.
std::string kernel(const std::string& name) {
  std::string text;
  std::ifstream("/proc/sys/kernel/" + name) >> text;
  return text;
}

TEST(Host, AndItsSystemAreNamedAsTheKernelNamesThem) {
  EXPECT_EQ(host.text(), kernel("hostname"));
  EXPECT_EQ(std::string(os.text()).find(kernel("ostype") + " (" + kernel("osrelease") + ", "), 0u);
}

}  // namespace
