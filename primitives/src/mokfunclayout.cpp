// Which planes, alpha channels and flags the descriptor of a function name tells.
#include "mokfunc.h"
#include "mokfuncgrammar.h"

namespace {

bool planeChannel(const zebString& token) {
  return token[token[0] == 'A' ? 1 : 0] == 'P';
}

}  // namespace

void mokFunc::getPlanes(bool& src, bool& dst) const {
  const zebString descr = descrName();
  const int c = descr.find("C");
  const int p = descr.find("P");
  src = p >= 0 && (c < 0 || p < c);
  dst = p >= 0 && (c < 0 || c < p);
  if (src || dst) updatePlanes(src, dst);
}

void mokFunc::updatePlanes(bool&, bool&) const {}

bool mokFunc::srcPlane() const {
  bool src, dst;
  getPlanes(src, dst);
  return src;
}

bool mokFunc::dstPlane() const {
  bool src, dst;
  getPlanes(src, dst);
  return dst;
}

bool mokFunc::plane(int which) const {
  return planeChannel(channelsName(which));
}

bool mokFunc::plane(mokArg arg) const {
  const int side = sideOf(arg);
  return side == 1 ? srcPlane() : side == 2 && dstPlane();
}

void mokFunc::getAlpha(bool& src, bool& dst) const {
  zebString srcToken, dstToken;
  getChannelsName(srcToken, dstToken);
  src = alphaChannel(srcToken);
  dst = alphaChannel(dstToken);
}

bool mokFunc::srcAlpha() const {
  return alpha(1);
}
bool mokFunc::dstAlpha() const {
  return alpha(2);
}
bool mokFunc::alpha(int which) const {
  return alphaChannel(channelsName(which));
}
bool mokFunc::alpha(mokArg arg) const {
  return alpha(sideOf(arg));
}

bool mokFunc::hasInDescr(const char* part) const {
  return contains(descrName(), part);
}
bool mokFunc::inplace() const {
  return hasInDescr("I");
}
bool mokFunc::mask() const {
  return hasInDescr("M");
}
bool mokFunc::scale() const {
  return hasInDescr("Sfs");
}
bool mokFunc::roi() const {
  return hasInDescr("R");
}

bool mokFunc::coi() const {
  const zebString descr = descrName();
  int c = descr.find("C");
  while (c >= 0 && isChannelIndex(c, descr)) c = descr.find("C", c + 1);
  return c >= 0;
}
