// mokregister.h: how does a library function become a test? With one line.
//
//   MOK_REG(TimXYZ, qoriRGBToYUV_8u_C3R, (pSrc.p8u, srcStep, pDst.p8u, dstStep, roiSize))
//
// makes tcall_<f>, tim_<f>_loop and tim_<f>_stat, and registers an object of
// the class before main. The argument list names file-level statics only: each
// call reads what initData left there. MOK_REG_I is for a function that
// overwrites its input: behind the argument list stands the statement that
// restores it, and tinit_<f> joins the others.
//
// The source defines MOK_SOURCE, its path in the repository without extension.
#ifndef MOKREGISTER_H
#define MOKREGISTER_H

#include "mokfunc.h"
#include "moktest.h"
#include "moktiming.h"
#include "moktitle.h"
#include "zebregister.h"

#define MOK_REG(test, func, args)   \
  MOK_CALL_FUNC(func, args)         \
  MOK_TIM_FUNCS(func, mokNoRestore) \
  MOK_REG_TEST(test, func, nullptr, "MOK_REG")

#define MOK_REG_I(test, func, args, ...) \
  MOK_CALL_FUNC(func, args)              \
  MOK_INLINE static int tinit_##func() { \
    __VA_ARGS__;                         \
    return 0;                            \
  }                                      \
  MOK_TIM_FUNCS(func, tinit_##func)      \
  MOK_REG_TEST(test, func, tinit_##func, "MOK_REG_I")

#define MOK_CALL_FUNC(func, args)        \
  MOK_INLINE static int tcall_##func() { \
    return func args;                    \
  }

#define MOK_TIM_FUNCS(func, restore)                                     \
  static zebResult tim_##func##_loop(int numLoops, long long* clocks) {  \
    return mokTimeLoop<tcall_##func, restore>(#func, numLoops, clocks);  \
  }                                                                      \
  static zebResult tim_##func##_stat(int* numCalls, long long* clocks) { \
    return mokTimeStat<tcall_##func, restore>(#func, numCalls, clocks);  \
  }

#define MOK_REG_TEST(test, func, init, macro)                       \
  [[maybe_unused]] static const bool reg_##func = mokRegTest<test>( \
      {tcall_##func, init, tim_##func##_loop, tim_##func##_stat, #func}, MOK_SOURCE, #test "//" macro);

// What one line generates for the timing engine.
struct mokTestFuncs {
  TestFuncCall call;
  TestFuncCall init;  // null: the input needs no restoring
  TestFuncLoop loop;
  TestFuncStat stat;
  const char* name;
};

template <class Test>
bool mokRegTest(const mokTestFuncs& f, const char* source, const char* info) {
  return zebRegTest(new Test(f.call, f.init, f.loop, f.stat, f.name, source, info));
}

// Here, where every source of tests passes: a static initialiser of the
// library itself would not be linked.
[[maybe_unused]] static const bool regTitle = mokRegTitle();

#endif
