#include "zebcputype.h"

#include "zebcorestub.h"

struct CpuTypeRow {
  QorCpuType code;
  const char* key;
  const char* name;
};

// In the order of the listing.
static const CpuTypeRow cpuTypeArray[] = {
    {0, "Unknown", "Unknown processor"},
    {1, "F1", "Brelk(R) Fenn(R) processor"},
    {2, "F1M", "Brelk(R) Fenn(R) processor with MMX(TM) Technology"},
    {3, "F2P", "Brelk(R) Fenn(R) Pro processor"},
    {4, "F2", "Brelk(R) Fenn(R) II processor"},
    {5, "F3", "Brelk(R) Fenn(R) III processor"},
    {6, "F4", "Brelk(R) Fenn(R) 4 processor"},
    {7, "F4D", "Brelk(R) Fenn(R) 4 processor with DF Technology"},
    {8, "F4D2", "Brelk(R) Fenn(R) 4 processor with SSE3"},
    {9, "Marl", "Brelk(R) Marl(R) mobile Technology"},
    {10, "TarnSolo", "Brelk(R) Tarn(TM) Solo processor"},
    {11, "TarnDuo", "Brelk(R) Tarn(TM) Duo processor"},
    {16, "W1", "Brelk(R) Wold(R) processor"},
    {17, "W2", "Brelk(R) Wold(R) 2 processor"},
    {32, "X64B", "Brelk(R) 64 Instruction Set Architecture (ISA)"},
    {33, "T2D", "Brelk(R) Tarn(TM) 2 Duo processor"},
    {34, "T2Q", "Brelk(R) Tarn(TM) 2 Quad processor"},
    {37, "Tarn7", "Brelk(R) Tarn(TM) t7 processor"},
    {36, "Rill", "Brelk(R) Rill(TM) processor"},
    {35, "Tarn2", "Brelk(R) Tarn(TM) 2 processor with Brelk(R) SSE4.1"},
    {38, "Next", "Brelk Next Generation processor"},
    {64, "SSE", "Processor supporting Fenn(R) III processor instruction set"},
    {65, "SSE2", "Processor supporting Streaming SIMD Extensions 2 instruction set"},
    {66, "SSE3", "Processor supporting Streaming SIMD Extensions 3 instruction set"},
    {67, "SSSE3", "Processor supporting Supplemental Streaming SIMD Extension 3 instruction set"},
    {68, "SSE41", "Processor supporting Streaming SIMD Extensions 4.1 instruction set"},
    {69, "SSE42", "Processor supporting Streaming SIMD Extensions 4.2 instruction set"},
    {70, "AVX", "Processor supporting Advanced Vector Extensions instruction set"},
    {71, "AES", "Processor supporting AES New Instructions"},
    {96, "X8664", "Processor supporting 64 bit extension"},
};

static const CpuTypeRow* findCode(QorCpuType code) {
  for (const CpuTypeRow& row : cpuTypeArray) {
    if (row.code == code) return &row;
  }
  return nullptr;
}

int zebCpuType::cpuType(const zebString& key) {
  for (const CpuTypeRow& row : cpuTypeArray) {
    if (key == row.key) return row.code;
  }
  return -1;
}

zebString zebCpuType::cpuLabel(QorCpuType code) {
  const CpuTypeRow* row = findCode(code);
  return row ? row->key : "Undefined";
}

zebString zebCpuType::cpuName(QorCpuType code) {
  const CpuTypeRow* row = findCode(code);
  return row ? updateCpuName(code, row->name) : zebString("Unknown processor");
}

zebString zebCpuType::updateCpuName(QorCpuType code, const zebString& name) {
  const zebString mark(" 2 ");
  int place = name.find(mark);
  if (code != 35 || place == zebString::npos) return name;
  int cores = zeb_qorGetNumCoresOnDie();
  zebString kind = cores == 2 ? "Duo " : cores == 4 ? "Quad " : "";
  int behind = place + mark.length();
  return name.substr(0, behind) + kind + name.substr(behind);
}

static zebString formatLabel(const zebString& key) {
  const int width = 9;
  zebString label = key;
  if (label.length() < width) label.resize(width, ' ');
  return label;
}

zebString zebCpuType::optimizedList() {
  zebString list;
  for (const CpuTypeRow& row : cpuTypeArray) {
    zebString name = row.name;
    if (name.find("Brelk Next") == 0) continue;
    list += formatLabel(row.key);
    list += row.code == 0 ? zebString(": non optimized code\n") : ": optimized for " + name + "\n";
  }
  return list;
}

// A processor of this family and model that has the flag and at least so much of the count.
struct ModelRow {
  unsigned int family;
  int model;                       // -1: any
  unsigned int QorCpuRec::*flag;   // null: not asked
  unsigned int QorCpuRec::*count;  // null: not asked
  unsigned int atLeast;
  QorCpuType code;
};

typedef QorCpuRec Rec;

// The first hit wins.
static const ModelRow modelTable[] = {
    {5, 1, nullptr, nullptr, 0, 1},           {5, 2, nullptr, nullptr, 0, 1},
    {5, 4, nullptr, nullptr, 0, 2},           {6, 1, nullptr, nullptr, 0, 3},
    {6, 3, nullptr, nullptr, 0, 4},           {6, 5, nullptr, nullptr, 0, 4},
    {6, 6, nullptr, nullptr, 0, 4},           {6, 7, nullptr, nullptr, 0, 5},
    {6, 8, nullptr, nullptr, 0, 5},           {6, 10, nullptr, nullptr, 0, 5},
    {6, 11, nullptr, nullptr, 0, 5},          {6, 9, nullptr, nullptr, 0, 9},
    {6, 13, nullptr, nullptr, 0, 9},          {6, 14, nullptr, &Rec::cores, 2, 11},
    {6, 14, nullptr, nullptr, 0, 10},         {6, 15, &Rec::ssse3, &Rec::cores, 3, 34},
    {6, 15, &Rec::ssse3, nullptr, 0, 33},     {6, 23, &Rec::sse41, nullptr, 0, 35},
    {6, 26, &Rec::avx, nullptr, 0, 70},       {6, 26, &Rec::sse42, nullptr, 0, 37},
    {6, 28, &Rec::ssse3, &Rec::movbe, 1, 36}, {15, -1, &Rec::sse3, &Rec::x64, 1, 32},
    {15, -1, &Rec::sse3, nullptr, 0, 8},      {15, -1, nullptr, &Rec::mt, 1, 7},
    {15, -1, nullptr, nullptr, 0, 6},
};

struct SetRow {
  unsigned int QorCpuRec::*flag;
  QorCpuType code;
};

static const SetRow setTable[] = {
    {&Rec::avx, 70},  {&Rec::sse42, 69}, {&Rec::sse41, 68}, {&Rec::ssse3, 67},
    {&Rec::sse3, 66}, {&Rec::sse2, 65},  {&Rec::sse, 64},   {&Rec::x64, 96},
};

static bool fits(const ModelRow& row, const QorCpuRec& rec, unsigned int family, unsigned int model) {
  return row.family == family && (row.model < 0 || static_cast<unsigned int>(row.model) == model) &&
         (!row.flag || rec.*row.flag) && (!row.count || rec.*row.count >= row.atLeast);
}

QorCpuType zebDecideCpuType(const QorCpuRec& rec, bool genuine) {
  bool extended = rec.family == 6 || rec.family == 15;
  unsigned int model = extended ? rec.extModel * 16 + rec.model : rec.model;
  unsigned int family = rec.family == 15 ? rec.extFamily + 15 : rec.family;
  for (const ModelRow& row : modelTable) {
    if (genuine && fits(row, rec, family, model)) return row.code;
  }
  for (const SetRow& row : setTable) {
    if (rec.*row.flag) return row.code;
  }
  return 0;
}
