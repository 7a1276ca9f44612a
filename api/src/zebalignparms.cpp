#include "zebalignparms.h"

int DefaultAlign::validItem(zebString text) {
  return zebDefault<int>::validItem(text) % 64;
}

int DefaultShift::validItem(zebString text) {
  return zebDefault<int>::validItem(text) & ~63;
}
