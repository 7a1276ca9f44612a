// Which element types a function name tells.
#include "mokfunc.h"
#include "mokfuncgrammar.h"

namespace {

struct TypeRow {
  mokType type;
  const char* text;
  int qorCode;
};

const TypeRow s_types[] = {
    {mok8u, "8u", 1},
    {mok16u, "16u", 5},
    {mok32u, "32u", 9},
    {mok64u, "64u", 15},
    {mok8s, "8s", 3},
    {mok16s, "16s", 7},
    {mok32s, "32s", 11},
    {mok64s, "64s", 17},
    {mok32f, "32f", 13},
    {mok64f, "64f", 19},
    // The library numbers a complex type behind its real one.
    {mok16uc, "16uc", 6},
    {mok8sc, "8sc", 0},
    {mok16sc, "16sc", 8},
    {mok32sc, "32sc", 12},
    {mok64sc, "64sc", 18},
    {mok32fc, "32fc", 14},
    {mok64fc, "64fc", 20},
};

// A complex text wins over the real one that it begins with.
const char* const s_baseTypes[] = {"64fc", "64sc", "64s",  "64f", "32fc", "32sc", "32u", "32s",
                                   "32f",  "16sc", "16uc", "16u", "16s",  "8sc",  "8u",  "8s"};

const char* const s_realResult[] = {"Real",       "Imag",        "Magnitude",  "Phase",
                                    "CplxToReal", "CartToPolar", "PowerSpectr"};

bool givesReal(const zebString& base) {
  for (const char* name : s_realResult) {
    if (base == name) return true;
  }
  return false;
}

void updateSignalTypes(const mokFunc& name, mokType& src1, mokType& src2, mokType& dst1, mokType& dst2) {
  const zebString base = name.baseName();
  if (givesReal(base)) dst1 = dst2 = mokRealForm(dst1);
  if (base == "PolarToCart") src1 = src2 = mokRealForm(src1);
  if (base == "RealToCplx") dst1 = dst2 = mokComplexForm(dst1);
  if (base == "DotProd" && src1 == src2 && !mokIsComplex(src1) && mokIsComplex(dst1)) src2 = dst1;
  if (contains(name, "Mul_16u16s")) src2 = dst1;
  if (contains(name, "Goertz")) dst1 = dst2 = mokComplexForm(dst1);
}

void updateImageTypes(const zebString& base, mokType& src2, mokType& dst1, mokType& dst2) {
  if (base == "Sum" || base == "Mean") dst1 = dst2 = mok64f;
  if (base == "Copy" || base == "Set") src2 = mok8u;
  if (contains(base, "Compare")) dst1 = dst2 = mok8u;
}

}  // namespace

zebString mokFunc::typeToString(mokType type) {
  for (const TypeRow& row : s_types) {
    if (row.type == type) return row.text;
  }
  return "undef";
}

mokType mokFunc::stringToType(const zebString& text) {
  if (text == "1u") return mok8u;
  for (const TypeRow& row : s_types) {
    if (text == row.text) return row.type;
  }
  return mokUndef;
}

int mokFunc::qorType(mokType type) {
  for (const TypeRow& row : s_types) {
    if (row.type == type) return row.qorCode;
  }
  return 0;
}

mokType mokFunc::typeFromBase() const {
  const zebString base = baseName();
  for (const char* text : s_baseTypes) {
    if (contains(base, text)) return stringToType(text);
  }
  return mokUndef;
}

mokType mokFunc::type(int index) const {
  zebString base, descr, tokens[3];
  parseFunction(base, tokens[0], tokens[1], tokens[2], descr);
  if (index >= 1 && index <= 3) return stringToType(tokens[index - 1]);
  if (index != 0) return mokUndef;
  const mokType inBase = typeFromBase();
  return inBase != mokUndef ? inBase : stringToType(tokens[0]);
}

mokType mokFunc::type(mokArg arg) const {
  mokType src1, src2, dst1, dst2;
  getTypes(src1, src2, dst1, dst2);
  switch (arg) {
    case mokArgSrc:
      return src1;
    case mokArgSrc2:
      return src2;
    case mokArgDst:
      return dst1;
    case mokArgDst2:
      return dst2;
  }
  return mokUndef;
}

void mokFunc::getTypes(mokType& src1, mokType& src2, mokType& dst1, mokType& dst2) const {
  zebString base, t1, t2, t3, descr;
  parseFunction(base, t1, t2, t3, descr);
  src1 = stringToType(t1);
  src2 = t2 == t3 ? src1 : stringToType(t2);
  dst1 = dst2 = stringToType(t3);
  updateTypes(src1, src2, dst1, dst2);
}

void mokFunc::updateTypes(mokType& src1, mokType& src2, mokType& dst1, mokType& dst2) const {
  if (prefix() == "qors") updateSignalTypes(*this, src1, src2, dst1, dst2);
  if (prefix() == "qori") updateImageTypes(baseName(), src2, dst1, dst2);
}
