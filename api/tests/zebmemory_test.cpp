#include "zebmemory.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <cstring>

#include "capture.h"
#include "zebobject.h"
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

TEST_F(Memory, RefusesSizesAndShiftsThatNoBlockCanHave) {
  Capture capture(outErr);
  EXPECT_FALSE(zebMalloc(10, 0, -512, nullptr));
  EXPECT_EQ(capture.text(), "-- Memory error: can't allocate 10 bytes\n");
  EXPECT_FALSE(zebTest::allocate(INT_MAX, -1));
  EXPECT_EQ(zebTest::m_vectorNum, 0);
}

TEST_F(Memory, WalksTheBlocksInOrderOfAllocation) {
  EXPECT_FALSE(zebMallocFirst(nullptr, nullptr));
  zebObject owner;
  void* second = nullptr;
  void* const first = zebMalloc(10, 0, 0, static_cast<zebObject*>(&owner));
  EXPECT_EQ(zebMalloc(second, 20, 0, 0), second);
  int size = -1;
  void* object = nullptr;
  EXPECT_EQ(zebMallocFirst(&size, &object), first);
  EXPECT_EQ(object, static_cast<zebObject*>(&owner));
  EXPECT_EQ(zebMallocNext(&size, nullptr), second);
  EXPECT_EQ(size, 20);
  EXPECT_FALSE(zebMallocNext(&size, &object));
  zebMallocFirst(nullptr, nullptr);
  zebFree(second);  // at the cursor
  EXPECT_FALSE(zebMallocNext(nullptr, nullptr));
  EXPECT_FALSE(zebMallocInfo(second, nullptr, nullptr));
}

TEST_F(Memory, TellsOfEachBlockAtTheMemoryLevel) {
  Capture capture(msgMem);
  void* const p = zebMalloc(10, 8, 64, nullptr);
  Address block;
  ASSERT_TRUE(pAddressList->find(p, block));
  zebFree(p);
  zebFree(p);
  zebString line = "size:10  address:";
  line << block.address << "  alignedPointer:" << block.alignedPointer << "\n";
  EXPECT_EQ(capture.text(), zebString(" - zebMalloc: ") + line + " - zebFree: " + line + " - zebFree: \n");
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
