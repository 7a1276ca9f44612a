// Which channels the descriptor of a function name tells.
#include "mokfunc.h"
#include "mokfuncgrammar.h"

namespace {

struct LayoutRow {
  const char* token;
  int qorCode;
};

const LayoutRow s_layouts[] = {{"C0", 0}, {"C1", 1}, {"C2", 2},  {"C3", 3},  {"C4", 4},    {"P2", 5},
                               {"P3", 6}, {"P4", 7}, {"AC1", 8}, {"AC4", 9}, {"A0C4", 10}, {"AP4", 11}};

int firstChannelLetter(const zebString& s) {
  const int c = s.find("C");
  const int p = s.find("P");
  if (c < 0 || p < 0) return c < 0 ? p : c;
  return c < p ? c : p;
}

int numChannels(const zebString& token) {
  if (token.empty()) return 0;
  const char digit = token[alphaChannel(token) ? 2 : 1];
  return digit >= '0' && digit < '5' ? digit - '0' : 0;
}

// Takes the next channel token out of the descriptor, which keeps what stands behind it.
zebString firstChanStr(zebString& descr) {
  int pos = firstChannelLetter(descr);
  if (!isChannelIndex(pos, descr)) {
    descr = "";
    return "";
  }
  const bool alpha = pos > 0 && descr[pos - 1] == 'A';
  const int length = alpha ? 3 : 2;
  if (alpha) --pos;
  zebString token = descr.substr(pos, length);
  descr = descr.substr(pos + length);

  // A lone "P" makes the token in front of it planar.
  const int lone = descr.find("P");
  const int letter = token.find("C");
  if (lone >= 0 && !isChannelIndex(lone, descr) && letter >= 0) {
    token = token.substr(0, letter) + "P" + token.substr(letter + 1);
  }
  return token;
}

}  // namespace

void mokFunc::getChannelsName(zebString& src, zebString& dst) const {
  zebString descr = descrName();
  src = firstChanStr(descr);
  dst = firstChanStr(descr);
  if (dst.empty()) dst = src;
}

zebString mokFunc::srcChannelsName() const {
  return channelsName(1);
}
zebString mokFunc::dstChannelsName() const {
  return channelsName(2);
}

zebString mokFunc::channelsName(int which) const {
  zebString src, dst;
  getChannelsName(src, dst);
  if (which == 1) return src;
  return which == 2 ? dst : zebString();
}

zebString mokFunc::channelsName(mokArg arg) const {
  return channelsName(sideOf(arg));
}

void mokFunc::getChannels(int& src, int& dst) const {
  zebString srcToken, dstToken;
  getChannelsName(srcToken, dstToken);
  src = numChannels(srcToken);
  dst = numChannels(dstToken);
  updateChannels(src, dst);
}

void mokFunc::updateChannels(int&, int& dst) const {
  if (prefix() == "qori" && contains(baseName(), "Compare")) dst = 1;
}

int mokFunc::channels(int which) const {
  return which == 1 || which == 2 ? numChannels(channelsName(which)) : 1;
}

int mokFunc::channels(mokArg arg) const {
  int src, dst;
  getChannels(src, dst);
  const int side = sideOf(arg);
  if (side == 0) return 1;
  return side == 1 ? src : dst;
}

int mokFunc::qorChannels(int which) const {
  const zebString token = channelsName(which);
  for (const LayoutRow& row : s_layouts) {
    if (token == row.token) return row.qorCode;
  }
  return 0;
}
