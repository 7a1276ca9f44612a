// Bitmap files. One that loads has given an image with all its rows.
#include "fuzz.h"
#include "mokbmpfile.h"
#include "mokimage.h"

FUZZ_TARGET(bytes, size) {
  FuzzFile file(bytes, size);
  mokImage image;
  mokBmpFile bitmap(&image);
  // A header may ask for more memory than a fuzzer grants.
  if (bitmap.readInfoHeader(file.name())) {
    const long long pixels = llabs(1LL * bitmap.m_infoHeader.biWidth * bitmap.m_infoHeader.biHeight);
    if (pixels > 1 << 16 && pixels < 1LL << 31) return 0;
  }
  if (!bitmap.load(file.name(), 0)) return 0;
  const int rows = image.getNumRows();
  for (int row = 0; row < rows; ++row) {
    require(image.getRowPointer(row) != nullptr, "data in each row");
  }
  return 0;
}
