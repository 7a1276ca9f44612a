// Forbidden pages before and behind every row: no function touches a byte that isn't its own.
//
// A row lies at the very end of its pages, then at their start. Results must be the
// same bits in both places and on all paths, and sources stay as they were.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <csetjmp>
#include <csignal>
#include <cstring>
#include <stdexcept>

#include "calls.h"
#include "paths.h"

namespace {

enum class Side { atStart, atEnd };

// Rows on pages of their own, each between forbidden ones.
class FencedRows {
 public:
  FencedRows() : page_(size_t(sysconf(_SC_PAGESIZE))) {
    const size_t bytes = size_t(step()) * kScratchRows + page_;
    void* map = mmap(nullptr, bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (map == MAP_FAILED) throw std::runtime_error("no memory for fenced rows");
    start_ = static_cast<uint8_t*>(map) + page_;
    for (int y = 0; y < kScratchRows; ++y)
      if (mprotect(row(y, 0, Side::atStart), room(), PROT_READ | PROT_WRITE) != 0)
        throw std::runtime_error("no rows among the fences");
  }
  FencedRows(const FencedRows&) = delete;

  int step() const { return int(room() + page_); }
  size_t room() const { return kPages * page_; }  // bytes of a row at most
  uint8_t* row(int y, size_t bytes, Side side) const {
    return start_ + size_t(y) * step() + (side == Side::atEnd ? room() - bytes : 0);
  }

 private:
  static constexpr size_t kPages = 8;

  const size_t page_;
  uint8_t* start_;
};

sigjmp_buf beforeCall;
void leaveCall(int) {
  siglongjmp(beforeCall, 1);
}

// Whether it ends in a forbidden page.
template <class F>
bool isCaught(F call) {
  struct sigaction leave = {}, before;
  leave.sa_handler = leaveCall;
  leave.sa_flags = SA_NODEFER;
  sigaction(SIGSEGV, &leave, &before);
  const bool caught = sigsetjmp(beforeCall, 0) != 0;
  if (!caught) call();
  sigaction(SIGSEGV, &before, nullptr);
  return caught;
}

struct Memory {
  FencedRows sources[4], targets[4], scratch;
};

// A plane of an image; without steps its rows are one long row.
struct Plane {
  size_t rowBytes;
  int rows;
};

Plane planeOf(const Layout& l, const std::string& part, int p, QoriSize size) {
  const size_t bytes = size_t(rowElements(l, p, size.width)) * l.elementSize();
  const int rows = rowCount(l, p, size.height);
  return part.ends_with("Tight") ? Plane{bytes * rows, 1} : Plane{bytes, rows};
}

class Fenced {
 public:
  Fenced(const Memory& memory, const Entry& e) : memory_(memory), entry_(e), names_(parse(e.name)) {
    std::mt19937 random(1);
    for (int i = 0; i < kMostValues; ++i) {
      const uint32_t bits = uint32_t(random());
      const float unit = float(bits >> 8) / 16777216;
      std::memcpy(&pixels_[i], names_.source.type == "32f" ? static_cast<const void*>(&unit) : &bits, 4);
    }
  }

  // The destination's rows; none if the call ended in a forbidden page.
  std::vector<uint8_t> run(QoriSize size, Side side) const {
    Call c = parameters(entry_, size);
    const int scratchRow = (size.width + 6) * names_.target.elementSize();
    c.scratch = memory_.scratch.row(0, scratchRow, side);
    c.scratchStep = memory_.scratch.step();
    for (int p = 0; p < names_.source.pointers(); ++p) {
      c.source[p] = memory_.sources[p].row(0, source(p, size).rowBytes, side);
      c.sourceStep[p] = memory_.sources[p].step();
      eachSourceRow(p, size, side,
                    [](uint8_t* row, size_t n, const uint32_t* pixels) { std::memcpy(row, pixels, n); });
    }
    for (int p = 0; p < names_.target.pointers(); ++p) {
      c.target[p] = memory_.targets[p].row(0, target(p, size).rowBytes, side);
      c.targetStep[p] = memory_.targets[p].step();
      eachTargetRow(p, size, side, [&](uint8_t* row, size_t n, const uint32_t* pixels) {
        entry_.inPlace() ? std::memcpy(row, pixels, n) : std::memset(row, 0xA5, n);
      });
    }
    std::vector<uint8_t> result;
    if (isCaught([&] { EXPECT_EQ(entry_.run(c), qorStsNoErr) << entry_.name; })) return result;
    for (int p = 0; p < names_.source.pointers(); ++p)
      eachSourceRow(p, size, side, [&](uint8_t* row, size_t n, const uint32_t* pixels) {
        EXPECT_EQ(std::memcmp(row, pixels, n), 0) << entry_.name << " changed its source";
      });
    for (int p = 0; p < names_.target.pointers(); ++p)
      eachTargetRow(p, size, side, [&](uint8_t* row, size_t n, const uint32_t*) {
        result.insert(result.end(), row, row + n);
      });
    return result;
  }

 private:
  static constexpr int kMostValues = 10000;

  Plane source(int p, QoriSize size) const {
    return planeOf(names_.source, entry_.sourcePart, p, sourceSize(entry_, size));
  }
  Plane target(int p, QoriSize size) const { return planeOf(names_.target, entry_.targetPart, p, size); }

  // f(row, its bytes, pixels of its own).
  template <class F>
  void eachRow(const FencedRows& fenced, int p, const Plane& plane, Side side, F f) const {
    for (int y = 0; y < plane.rows; ++y)
      f(fenced.row(y, plane.rowBytes, side), plane.rowBytes, &pixels_[100 * p + 37 * y]);
  }
  template <class F>
  void eachSourceRow(int p, QoriSize size, Side side, F f) const {
    eachRow(memory_.sources[p], p, source(p, size), side, f);
  }
  template <class F>
  void eachTargetRow(int p, QoriSize size, Side side, F f) const {
    eachRow(memory_.targets[p], p, target(p, size), side, f);
  }

  const Memory& memory_;
  const Entry& entry_;
  const Names names_;
  uint32_t pixels_[kMostValues];
};

std::vector<QoriSize> sizes() {
  std::vector<QoriSize> all;
  for (int width = 1; width <= 70; ++width)
    for (int height = 1; height <= 7; ++height) all.push_back({width, height});
  for (int width : {127, 128, 255, 257, 515, 1030}) all.push_back({width, 3});
  return all;
}

TEST(Guards, CatchOneByteBeforeOrBehindARow) {
  const FencedRows rows;
  EXPECT_TRUE(isCaught([&] { *static_cast<volatile uint8_t*>(rows.row(1, 3, Side::atEnd) + 3) = 0; }));
  EXPECT_TRUE(isCaught([&] { (void)*static_cast<volatile uint8_t*>(rows.row(2, 3, Side::atStart) - 1); }));
  volatile uint8_t* last = rows.row(kScratchRows - 1, 3, Side::atEnd) + 2;
  EXPECT_FALSE(isCaught([&] { *last = 0; }));
}

TEST(Guards, AreTouchedByNoFunctionAndPlaceAndPathChangeNoBit) {
  const Memory memory;
  const std::vector<int> paths = pathCodes();
  const std::vector<QoriSize> all = sizes();
  for (const Entry& e : entries()) {
    const Fenced fenced(memory, e);
    std::vector<std::vector<uint8_t>> wanted;
    for (int code : paths) {
      const OnPath path(code);
      for (size_t i = 0; i < all.size(); ++i)
        for (Side side : {Side::atEnd, Side::atStart}) {
          const std::vector<uint8_t> got = fenced.run(all[i], side);
          if (wanted.size() == i) wanted.push_back(got);
          ASSERT_TRUE(!got.empty() && got == wanted[i])
              << e.name << " " << all[i].width << "x" << all[i].height << " on path " << code << ", rows "
              << (side == Side::atEnd ? "before" : "behind")
              << " a forbidden page: " << (got.empty() ? "touches it" : "other bits than elsewhere");
        }
    }
  }
}

}  // namespace
