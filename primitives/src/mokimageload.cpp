// An image from a file.
#include "mokbmpfile.h"
#include "mokimage.h"

bool mokImage::canLoadImage() {
  return true;
}

bool mokImage::loadImage(zebString name, int align) {
  mokBmpFile file(this);
  return file.load(name, align);
}
