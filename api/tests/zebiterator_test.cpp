#include "zebiterator.h"

#include <gtest/gtest.h>

#include <climits>

#include "capture.h"
#include "zebistream.h"
#include "zebmapiterator.h"
#include "zebstepiterator.h"

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
    run << parm.value();
  }
  EXPECT_EQ(run, "120120");
  parm.firstValue();
  parm.translate("5;6");
  EXPECT_TRUE(parm.nextValue()) << "a new list in the middle of a run starts over";
  EXPECT_EQ(parm.value(), 5);
}

TEST(Iterator, ReadsListsInTheOrderOfTheTextAndKeepsTheOldOneWhenItIsBad) {
  zebIterator<int> parm(0, "x");
  const char* const cases[][2] = {
      {"1;2;;3", "1; 2; 3"},
      {" 8 ;\t0x10", "8; 16"},
      {";3;1;3;", "3; 1; 3"},
      {"8; y; 16", "--QOR. Exception: Invalid value of x = y"},
      {";", "--QOR. Signal: Empty iterator definition"},
  };
  for (const auto& [text, list] : cases) EXPECT_EQ(listAfter(parm, text), list) << text;

  Capture screen(outPerf);
  zebIStream in;
  in.m_dataList.set("x", ";");
  parm.fromIStream(in);
  EXPECT_EQ(screen.text(), "-Empty iterator definition\n x = 3; 1; 3\n");
}

TEST(EnumIterator, HoldsItsUserToTheDefaultsOnceTheyAreValidated) {
  zebEnumIterator<QoriSize> sizes({0, 0}, "ImageSize");
  sizes.add({64, 64});
  sizes.add({720, 480});
  sizes.initValidation();
  EXPECT_EQ(sizes.prompt(), "ImageSize {64x64|720x480}");
  EXPECT_EQ(listAfter(sizes, "720x480;64x64;64x64"), "720x480; 64x64; 64x64");
  EXPECT_EQ(listAfter(sizes, "64x64;65x64"), "--QOR. Exception: Invalid value of ImageSize = 65x64");
  sizes.add({65, 64});
  EXPECT_FALSE(sizes.addValidation({65, 64}));
  EXPECT_EQ(sizes.validString(), "64x64|720x480|65x64");
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
  grid.resetMap();
  EXPECT_EQ(grid.validString(), "");
}

TEST(StepIterator, StepsAsFarAsTheLastValue) {
  zebStepIterator<int> parm(0, "x");
  parm.addSteps(1, 9, 3);
  parm.addSteps(1, 10, 3);
  parm.addSteps(1, 9, 0);
  parm.addSteps(1, INT_MAX, INT_MAX - 1);
  EXPECT_EQ(parm.defaultString(), "1; 4; 7; 1; 4; 7; 10; 1; 1; 2147483647");
}

}  // namespace
