#include "zebmemory.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#include "capture.h"
#include "zebtest.h"

namespace {

uintptr_t number(const void* p) {
  return reinterpret_cast<uintptr_t>(p);
}

struct Memory : testing::Test {
  Memory() { newDataSet(); }
  ~Memory() override {
    while (void* p = zebMallocFirst(nullptr, nullptr)) zebFree(p);
  }
  static void newDataSet() { zebTest::m_vectorNum = zebTest::m_vectorShift = 0; }
};

TEST_F(Memory, PlacesThePointerShiftAndMisalignmentBehindAnAlignedBlockWithRoomBehind) {
  const int cases[][3] = {{0, 0, 0}, {1, 64, 65}, {63, 32256, 32319}, {100, 0, 36}};
  for (const auto& [align, shift, offset] : cases) {
    void* address = nullptr;
    void* const p = zeb_malloc(address, 10, align, shift);
    EXPECT_EQ(number(address) % 64, 0u);
    EXPECT_EQ(number(p) - number(address), static_cast<unsigned>(offset));
    memset(p, 0xff, 10 + 64);
    zeb_free(address);
  }
}

TEST_F(Memory, WalksTheBlocksInOrderAndTellsOfEachAtTheMemoryLevel) {
  Capture capture(msgMem);
  int size = 0;
  void* owner = nullptr;
  void* const first = zebMalloc(10, 8, 64, &owner);
  void* const second = zebMalloc(20, 0, 0, nullptr);
  EXPECT_EQ(zebMallocFirst(&size, &owner), first);
  EXPECT_EQ(size, 10);
  EXPECT_EQ(owner, &owner);
  zebFree(second);  // where the walk stands
  EXPECT_FALSE(zebMallocNext(nullptr, nullptr));
  zebFree(second);
  EXPECT_EQ(capture.text().find(" - zebMalloc: size:10  address:"), 0);
  EXPECT_TRUE(contains(capture.text(), "\n - zebFree: size:20  address:"));
  EXPECT_TRUE(contains(capture.text(), "\n - zebFree: \n")) << "there is no such block any more";
}

TEST_F(Memory, KeepsVectorsOfADataSetApartByTheShiftUpTo32KAndMisalignsTheFirstOrAll) {
  for (int i = 0; i < 66; ++i) {
    Address block;
    void* const p = zebTest::allocate(100, -1);
    EXPECT_TRUE(pAddressList->find(p, block));
    EXPECT_EQ(number(p) - number(block.address), i % 64 * 512u);
  }
  zebSetVectorAlign(64 + 8);
  for (bool firstOnly : {true, false}) {
    zebSetAlignSrc(firstOnly);
    newDataSet();
    EXPECT_EQ(number(zebTest::allocate(100, -4)) % 64, 32u);
    EXPECT_EQ(number(zebTest::allocate(100, -1)) % 64, firstOnly ? 0u : 8u);
    EXPECT_EQ(number(zebTest::allocate(100, 4)) % 64, 4u);
  }
  zebSetVectorAlign(0);
  zebSetAlignSrc(true);
}

}  // namespace
