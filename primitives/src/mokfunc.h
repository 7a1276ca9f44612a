// mokfunc.h: what does the name of a library function tell of its arguments?
//
//   qoriRGB565ToYUV420_16u8u_C3P3R
//   prefix "qori", base "RGB565ToYUV420", type string "16u8u", descriptor "C3P3R"
//
// The base ends at the first underscore in front of a type token: digits, one
// of "usf", perhaps "c". The type string holds up to three tokens, sources
// first. The descriptor is searched for channel tokens ("C3", "P3", "AC4"), the
// first for the source, the second for the destination, and for flag letters.
// A name outside this grammar has empty parts, mokUndef, 0 channels and false
// flags; nothing fails.
//
// Where a query takes an int, 1 is the source and 2 the destination.
#ifndef MOKFUNC_H
#define MOKFUNC_H

#include "moktype.h"
#include "zebstring.h"

// The full name. Nothing is cached: every query reads the name again.
class mokFunc : public zebString {
 public:
  mokFunc() = default;
  mokFunc(const char* name) : zebString(name) {}
  mokFunc(const zebString& name) : zebString(name) {}

  // Put the special cases of a family of functions right, after the general reading of the name.
  virtual void updateTypes(mokType& src1, mokType& src2, mokType& dst1, mokType& dst2) const;
  virtual void updateChannels(int& src, int& dst) const;
  virtual void updatePlanes(bool& src, bool& dst) const;

  // Parts.
  void parseFunction(zebString& base, zebString& type, zebString& descr) const;
  // One type token fills t1 to t3, two tokens give t1, t2, t2.
  void parseFunction(zebString& base, zebString& t1, zebString& t2, zebString& t3, zebString& descr) const;
  zebString prefix() const;  // "qori", "qors" or empty
  zebString baseName() const;
  zebString typeName() const;
  zebString descrName() const;

  // Types.
  static zebString typeToString(mokType type);         // "undef" for any other value
  static mokType stringToType(const zebString& text);  // mokUndef for any other text
  static int qorType(mokType type);                    // the library's code, 0 for none
  // 1 to 3: that token, special cases not applied. 0: the type in the base, else the first token.
  mokType type(int index) const;
  mokType type(mokArg arg) const;
  mokType typeFromBase() const;  // the 32f of ColorTwist32f
  void getTypes(mokType& src1, mokType& src2, mokType& dst1, mokType& dst2) const;

  // Channels. A single token stands for both sides.
  void getChannelsName(zebString& src, zebString& dst) const;
  zebString srcChannelsName() const;
  zebString dstChannelsName() const;
  zebString channelsName(int which) const;
  zebString channelsName(mokArg arg) const;
  void getChannels(int& src, int& dst) const;
  int channels(int which) const;  // special cases not applied; 1 for any other which
  int channels(mokArg arg) const;
  int qorChannels(int which) const;  // the library's code of the channel layout

  // Planar sides. Those without an int or with a mokArg go by the letters of the whole descriptor, so
  // that "P2P3R" is planar on both sides, those with an int by the side's token.
  void getPlanes(bool& src, bool& dst) const;
  bool srcPlane() const;
  bool dstPlane() const;
  bool plane(int which) const;
  bool plane(mokArg arg) const;

  // Alpha channel.
  void getAlpha(bool& src, bool& dst) const;
  bool srcAlpha() const;
  bool dstAlpha() const;
  bool alpha(int which) const;
  bool alpha(mokArg arg) const;

  // Flags.
  bool inplace() const;
  bool mask() const;
  bool scale() const;
  bool roi() const;  // region of interest
  bool coi() const;  // channel of interest

  // Sort order of the tested functions: negative, 0, positive. It isn't transitive: "C3R" stands before
  // "AC4R", "AC4R" before "AP4R" and "AP4R" before "C3R".
  int compare(const mokFunc& other) const;
  static int compareTypes(zebString a, zebString b);
  static int compareDescr(const zebString& a, const zebString& b);

 private:
  bool hasInDescr(const char* part) const;
};

#endif
