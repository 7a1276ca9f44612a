// zebticker.h: how many clocks did a stretch of code take, and how fast do they run?
//
// Counts are ticks of the time stamp counter, times the clock factor: clocks.
#ifndef ZEBTICKER_H
#define ZEBTICKER_H

#include "zebcounter.h"

// A stopwatch that adds up stretches.
class zebCpuTicker {
 public:
  static int getFreq();  // MHz, 0 without a counter; the first call takes over two seconds
  static int getClockFactor() { return 1; }  // clocks per tick

  void clear() { *this = zebCpuTicker(); }
  void start();
  void stop();
  long long read() const { return m_sum * getClockFactor(); }  // clocks of all closed stretches

  static int m_freqMHz;  // 0 until somebody asked

  bool m_fresh = true;    // the next start clears the sum
  bool m_stopped = true;  // no stretch is open
  long long m_start = 0;  // counter at the start of the open stretch
  long long m_sum = 0;    // ticks of all closed stretches
  long long m_count = 0;  // closed stretches
};

inline void zebCpuTicker::start() {
  if (m_fresh) {
    m_sum = 0;
    m_count = 0;
    m_fresh = false;
  }
  m_stopped = false;
  m_start = qor_get_cpu_counter();
}

inline void zebCpuTicker::stop() {
  const long long now = qor_get_cpu_counter();
  if (m_stopped) return;
  m_sum += now - m_start;
  m_stopped = true;
  ++m_count;
}

// Counts ticks against the system's clock for two to three seconds; MHz, 0 without a counter.
int estimateCpuFreqMHz();

// A measured frequency that lies within 3 % of one that processors are sold with is taken for that one.
int nearestTypicalMHz(int mhz);

#endif
