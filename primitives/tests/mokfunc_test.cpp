#include "mokfunc.h"

#include <gtest/gtest.h>

#include "capture.h"

namespace {

// A channel token with its number, marked as planar or with alpha.
zebString sideText(const mokFunc& f, mokArg arg, const zebString& token) {
  zebString text = " ";
  return text << token << f.channels(arg) << (f.plane(arg) ? "p" : "") << (f.alpha(arg) ? "a" : "");
}

// Parts: types of src1, src2, dst1, dst2, both sides' channels, flags.
zebString textOf(const mokFunc& f) {
  zebString text = f.prefix() + "|" + f.baseName() + "|" + f.typeName() + "|" + f.descrName() + ":";
  for (mokArg arg : {mokArgSrc, mokArgSrc2, mokArgDst, mokArgDst2}) {
    text << " " << mokFunc::typeToString(f.type(arg));
  }
  text += sideText(f, mokArgSrc, f.srcChannelsName()) + sideText(f, mokArgDst, f.dstChannelsName());
  return text << (f.inplace() ? " inplace" : "") << (f.mask() ? " mask" : "") << (f.scale() ? " scale" : "")
              << (f.roi() ? " roi" : "") << (f.coi() ? " coi" : "");
}

TEST(FunctionName, TellsPartsTypesChannelsAndFlags) {
  const char* const rows[][2] = {
      {"qoriRGB565ToYUV420_16u8u_C3P3R", "qori|RGB565ToYUV420|16u8u|C3P3R: 16u 16u 8u 8u C33 P33p roi"},
      {"qoriA_12_34", "qori|A_12_34||: undef undef undef undef 0 0"},
      {"_32fc_AC4", "||32fc|AC4: 32fc 32fc 32fc 32fc AC44a AC44a"},
      {"Qori_8u_C1C", "|Qori|8u|C1C: 8u 8u 8u 8u C11 C11 coi"},
      {"qoriA_8u16s32s64f_C1R", "qori|A|8u16s32s64f|C1R: 8u 16s 32s 32s C11 C11 roi"},
      {"qorsMul_16u16s_Sfs", "qors|Mul|16u16s|Sfs: 16u 16s 16s 16s 0 0 scale"},
      {"qorsMagnitude_32fc", "qors|Magnitude|32fc|: 32fc 32fc 32f 32f 0 0"},
      {"qorsPolarToCart_32fc", "qors|PolarToCart|32fc|: 32f 32f 32fc 32fc 0 0"},
      {"qorsDotProd_32f32fc", "qors|DotProd|32f32fc|: 32f 32fc 32fc 32fc 0 0"},
      {"qorsGoertz_32f", "qors|Goertz|32f|: 32f 32f 32fc 32fc 0 0"},
      {"qoriMean_8u_C3CMR", "qori|Mean|8u|C3CMR: 8u 8u 64f 64f C33 C33 mask roi coi"},
      {"qoriCopy_32f_C1MR", "qori|Copy|32f|C1MR: 32f 8u 32f 32f C11 C11 mask roi"},
      {"qoriCompareEq_32f_C3R", "qori|CompareEq|32f|C3R: 32f 32f 8u 8u C33 C31 roi"},
      {"qoriTwist32f_16s_IP3R", "qori|Twist32f|16s|IP3R: 16s 16s 16s 16s P33p P33p inplace roi"},
      {"qoriBGRToHLS_8u_AP4C4R", "qori|BGRToHLS|8u|AP4C4R: 8u 8u 8u 8u AP44pa C44 roi"},
      {"qoriX_8u_P2P3R", "qori|X|8u|P2P3R: 8u 8u 8u 8u P22p P33p roi"},
      {"qoriX_8u_C3PR", "qori|X|8u|C3PR: 8u 8u 8u 8u P33 P33p roi"},
      {"qoriX_8u_C5C3R", "qori|X|8u|C5C3R: 8u 8u 8u 8u 0 0 roi coi"},
  };
  for (const auto& [name, wanted] : rows) EXPECT_EQ(textOf(name), wanted) << name;
}

TEST(FunctionName, AnswersForASideByItsTokenAlone) {
  const mokFunc twist = "qoriColorTwist32f_16s8u_C3P2R";
  EXPECT_EQ(twist.type(0), mok32f) << "in the base";
  EXPECT_EQ(twist.type(3), mok8u);
  EXPECT_EQ(mokFunc("qoriCompare_8u_C3P2R").channels(2), 2) << "special cases don't apply here";
  EXPECT_TRUE(!twist.plane(1) && twist.plane(2));
  EXPECT_EQ(twist.qorChannels(2), 5);
}

TEST(ElementType, IsReadFromAWholeTokenAndHasTheLibrarysCode) {
  for (const char* text : {"", "8U", "8uc", "8u "}) EXPECT_EQ(mokFunc::stringToType(text), mokUndef);
  EXPECT_EQ(mokFunc::stringToType("1u"), mok8u);
  EXPECT_EQ(mokFunc::qorType(mok16u), 5);
  EXPECT_EQ(mokFunc::qorType(mok64fc), 20);
}

}  // namespace
