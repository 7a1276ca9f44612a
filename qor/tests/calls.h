// calls.h: how can a test call every function in the same way?
#ifndef QOR_TESTS_CALLS_H
#define QOR_TESTS_CALLS_H

#include <string>
#include <vector>

#include "images.h"
#include "qorcc.h"

struct Call {
  const void* source[4] = {};
  void* target[4] = {};
  int sourceStep[4] = {}, targetStep[4] = {};
  QoriSize size = {0, 0};
  int alpha = 7;
  const float* coeffs = nullptr;
  int layout = qoriSliceWhole;
  const float (*twist)[4] = nullptr;
  float vMin = -0.25f, vMax = 1;
  int noise = 0;
  QoriDitherType dither = qorDitherNone;
  int levels = 3;
  QoriSize mosaic = {0, 0};  // of which roi is converted
  QoriRect roi = {0, 0, 0, 0};
  QoriBayerGrid grid = qoriBayerGBRG;
  int interpolation = 0;
  void* scratch = nullptr;
  int scratchStep = 0;
  // Pass null in place of an array.
  bool noSourcePlanes = false, noTargetPlanes = false, noSourceSteps = false, noTargetSteps = false;
};

struct Entry {
  std::string name;
  std::string sourcePart, targetPart, extra;  // as in the lists; mosaics and reductions: what they are
  QorStatus (*run)(const Call&);

  bool inPlace() const { return sourcePart.ends_with("InPlace"); }  // reads and writes the target
  bool isMosaic() const { return extra == "Bilinear" || extra == "Adaptive"; }
};

// All functions that there are.
const std::vector<Entry>& entries();
const Entry& entryOf(const std::string& name);

// A function with images for it. A mosaic has a row and a column more than are converted: at odd
// sizes before these, else behind.
class Example {
 public:
  Example(const Entry&, QoriSize target, int padding = 0, Rows = Rows::together);

  const Entry& entry;
  const Names names;
  Image source, target;

  // One that is right in every argument. Gives the target known bytes; in place: the source's pixels.
  // Kinds of dither take turns with the width.
  Call call();
  std::string name() const;  // of the function, and the size

 private:
  Image scratch_;  // of an adaptive mosaic
};

// Every width of some vectors and every remainder of a group of rows.
std::vector<QoriSize> awkwardSizes();

#endif
