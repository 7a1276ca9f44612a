// Tests of the hostile functions, in the order of registration a witness behind each.
#define MOK_SOURCE "tests/hostile/suite"
#include <cstdio>

#include "hostile.h"
#include "mok.h"
#include "zebfpu.h"

static mokImage pSrc, pDst;
static int srcStep, dstStep;
static const QoriSize size = {16, 8};

static bool initImages(const mokFunc& func) {
  g_calls = 0;
  pSrc.init(func, mokArgSrc);
  pDst.init(func, mokArgDst);
  if (!pSrc.createImageExt(size, 0, 0, modeRandom, 0, func.find("32f") == zebString::npos ? 255 : 1)) {
    return false;
  }
  if (!pDst.createImageExt(size, 0, 0, modeConst, 0, 0)) return false;
  srcStep = pSrc.m_step;
  dstStep = pDst.m_step;
  return true;
}

class TimHostile : public mokTest {
 public:
  using mokTest::mokTest;

  bool initData() override { return initImages(m_func); }
  void flushData() override {
    pSrc.deleteVector();
    pDst.deleteVector();
  }
};

// Prints the state of the units that it meets. Its data pass through roundings of doubles and floats.
class TimWitness : public TimHostile {
 public:
  using TimHostile::TimHostile;

  bool canStart() override {
    m_control87 = zeb_get_cw_fpu() & 0xF3F;
    m_ssx = zeb_get_ssx() & 0xFFC0;
    return true;
  }

  void constToOstrm() override {
    g_ostrm << msgErr << " x87 " << int(m_control87) << " ssx " << int(m_ssx) << "\n";
    char text[64];
    // A full x87 register stack would make this no number in a 32-bit program.
    snprintf(text, sizeof text, " third %.20f\n", double(1 / m_three));
    g_ostrm << text << msgEnd;
  }

 private:
  unsigned int m_control87 = 0;
  unsigned int m_ssx = 0;
  volatile long double m_three = 3;
};

static int copyCall() {
  *pDst.p32f = *pSrc.p32f;
  return 0;
}

static zebResult copyOnce(int, long long* clocks) {
  copyCall();
  *clocks = 1000;
  return resOk;
}

static zebResult copyOnceStat(int*, long long* clocks) {
  return copyOnce(1, clocks);
}

static bool regWitness() {
  const char* const name = "qoriWitness_32f_C3R";
  return mokRegTest<TimWitness>({copyCall, nullptr, copyOnce, copyOnceStat, name}, MOK_SOURCE,
                                "TimWitness//none");
}

#define HOSTILE_REG(func) MOK_REG(TimHostile, func, (pSrc.p8u, srcStep, pDst.p8u, dstStep, size))
#define HOSTILE_REG_WITNESSED(func) \
  HOSTILE_REG(func)                 \
  [[maybe_unused]] static const bool witness_##func = regWitness();

HOSTILE_FUNCTIONS(HOSTILE_REG_WITNESSED)
HOSTILE_REG(qoriThreadCrash_8u_C3R)

static zebResult noClocks(int, long long* clocks) {
  *clocks = 0;
  return resOk;
}

[[maybe_unused]] static const bool regNoClocks = mokRegTest<TimHostile>(
    {nullptr, nullptr, noClocks, nullptr, "qoriNoClocks_8u_C3R"}, MOK_SOURCE, "TimHostile//none");
[[maybe_unused]] static const bool regLastWitness = regWitness();

// What a thousand crashing tests leave behind is looked at from outside.
static int crashCall() {
  return qoriNull_8u_C3R(nullptr, 0, nullptr, 0, size);
}

static zebResult crash(int, long long*) {
  crashCall();
  return resOk;
}

static bool regCrashes(int count, const char* name) {
  for (int i = 0; i < count; ++i) {
    mokRegTest<TimHostile>({crashCall, nullptr, crash, nullptr, name}, MOK_SOURCE, "TimHostile//none");
  }
  return true;
}

[[maybe_unused]] static const bool regOneCrash = regCrashes(1, "qoriCrash1_8u_C3R");
[[maybe_unused]] static const bool regAllCrashes = regCrashes(1000, "qoriCrash_8u_C3R");
