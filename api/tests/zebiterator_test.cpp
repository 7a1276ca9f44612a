#include "zebiterator.h"

#include <gtest/gtest.h>

#include "capture.h"
#include "zebmapiterator.h"

namespace {

// The list after a text, or what the exception of a bad text says.
template <class T>
zebString listAfter(zebIterator_NSC<T>& parm, const char* text) {
  try {
    parm.translate(text);
  } catch (zebException& e) {
    return e.msg();
  }
  return parm.defaultString();
}

TEST(Iterator, RunsThroughItsValuesAndStartsAgain) {
  zebIterator<int> parm(7, "x");
  EXPECT_FALSE(parm.firstValue());
  parm.add(1);
  parm.add(2);
  zebString run;
  for (int round = 0; round < 2; ++round) {
    for (bool more = parm.firstValue(); more; more = parm.nextValue()) run << parm.value();
  }
  EXPECT_EQ(run, "1212");
  parm.firstValue();
  parm.translate("5;6");
  EXPECT_TRUE(parm.nextValue()) << "a new list in the middle of a run starts over";
  EXPECT_EQ(parm.value(), 5);
}

TEST(Iterator, ReadsListsInTheOrderOfTheTextAndKeepsTheOldOneWhenItIsBad) {
  zebIterator<int> parm(0, "x");
  const char* const cases[][2] = {
      {";3; 0x10 ;;\t1;3;", "3; 16; 1; 3"},
      {"8; y; 16", "--QOR. Exception: Invalid value of x = y"},
      {";", "--QOR. Signal: Empty iterator definition"},
  };
  for (const auto& [text, list] : cases) EXPECT_EQ(listAfter(parm, text), list) << text;
  EXPECT_EQ(parm.defaultString(), "3; 16; 1; 3");
}

TEST(MapIterator, ReadsAndPrintsItsValuesByNameWhichStays) {
  zebMapIterator<QoriBayerGrid> grid(qoriBayerBGGR, "bayerGrid");
  grid[qoriBayerBGGR] = "BGGR";
  grid[qoriBayerRGGB] = "RGGB";
  grid.add(qoriBayerGRBG);  // a nameless one
  grid[qoriBayerGBRG] = "GBRG";
  grid[qoriBayerRGGB] = "other";
  EXPECT_EQ(grid.validString(), "BGGR|RGGB||GBRG");
  EXPECT_EQ(listAfter(grid, "r; bg; GB; g"), "RGGB; BGGR; GBRG; GBRG");
  EXPECT_EQ(listAfter(grid, "RGB"), "--QOR. Exception: Invalid value of bayerGrid = RGB");
}

}  // namespace
