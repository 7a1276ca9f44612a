// zebcounter.h: what time is it, in ticks of the processor's time stamp counter?
#ifndef ZEBCOUNTER_H
#define ZEBCOUNTER_H

// RDTSC and nothing else: no fence, so that a reading costs as little as it can. The memory clobber keeps the
// compiler from moving a measured call across the reading.
inline long long qor_get_cpu_counter() {
  unsigned int low, high;
  asm volatile("rdtsc" : "=a"(low), "=d"(high) : : "memory");
  return static_cast<long long>(static_cast<unsigned long long>(high) << 32 | low);
}

#endif
