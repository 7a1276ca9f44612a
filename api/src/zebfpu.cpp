#include "zebfpu.h"

unsigned int zeb_get_cw_fpu() {
  unsigned short cw;
  asm volatile("fnstcw %0" : "=m"(cw));
  return cw;
}

unsigned int zeb_get_sw_fpu() {
  unsigned short sw;
  asm volatile("fnstsw %0" : "=m"(sw));
  return sw;
}

unsigned int zeb_set_cw_fpu(unsigned int value, unsigned int mask) {
  const unsigned int old = zeb_get_cw_fpu();
  const unsigned short cw = static_cast<unsigned short>((old & ~mask) | (value & mask));
  asm volatile("fldcw %0" : : "m"(cw));
  return old;
}

unsigned int zeb_clear_fpu() {
  const unsigned int old = zeb_get_sw_fpu();
  asm volatile("fnclex");
  return old;
}

void zeb_init_fpu() {
  asm volatile("fninit");
}

unsigned int zeb_get_ssx() {
  unsigned int mxcsr;
  asm volatile("stmxcsr %0" : "=m"(mxcsr));
  return mxcsr;
}

unsigned int zeb_set_ssx(unsigned int value, unsigned int mask) {
  const unsigned int old = zeb_get_ssx();
  const unsigned int mxcsr = (old & ~mask) | (value & mask);
  asm volatile("ldmxcsr %0" : : "m"(mxcsr));
  return old;
}

// Loaded from memory: the comparison that makes ones out of nothing needs SSE2.
[[gnu::target("sse")]] void zeb_destroy_ssx() {
  alignas(16) static const unsigned int ones[4] = {~0u, ~0u, ~0u, ~0u};
  asm volatile(
      "movaps %0, %%xmm0\n\tmovaps %0, %%xmm1\n\tmovaps %0, %%xmm2\n\tmovaps %0, %%xmm3\n\t"
      "movaps %0, %%xmm4\n\tmovaps %0, %%xmm5\n\tmovaps %0, %%xmm6\n\tmovaps %0, %%xmm7"
      :
      : "m"(ones)
      : "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7");
}
