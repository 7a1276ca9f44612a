// copy.cpp: how many clocks per byte does memcpy take? A whole suite of plain tests, in one file.
//
//   zeb_copy -B -LPERF "-dLength=1024; 65536"
#include <cstring>

#include "zeb.h"

namespace {

// Filled by initData, valid until flushData.
char* s_source;
char* s_target;

zebEnumIterator<int> s_length;  // bytes

// The engine may call it with any number of loops; it reads the counter itself.
zebResult copyLoop(int loops, long long* clocks) {
  const int length = s_length.value();
  memcpy(s_target, s_source, length);  // not counted: the first call pays for cold caches
  const long long start = qor_get_cpu_counter();
  for (int i = 0; i < loops; ++i) {
    memcpy(s_target, s_source, length);
    asm volatile("" : : "r"(s_target) : "memory");  // the copy is wanted, though nobody reads it
  }
  *clocks = qor_get_cpu_counter() - start;
  return resOk;
}

class CopyTest : public zebTest {
 public:
  CopyTest() : zebTest(copyLoop, nullptr, "copyBytes", "examples/copy", "CopyTest/memcpy") {}

  bool canStart() override {
    s_length.init(0, "Length", "");
    s_length.add(1 << 10);
    s_length.add(1 << 16);
    s_length.add(1 << 22);
    m_parms.push_back(&s_length);
    return true;
  }

  bool initData() override {
    s_source = static_cast<char*>(allocate(s_length.value(), -1));
    s_target = static_cast<char*>(allocate(s_length.value(), -1));
    return s_source && s_target;
  }

  void flushData() override {
    deallocate(s_source);
    deallocate(s_target);
  }

  double getDivisor() override { return s_length.value(); }
  zebString getUnit() override { return "byte"; }
};

[[maybe_unused]] const bool reg_copy = zebRegTest(new CopyTest);

}  // namespace
