// zebostimer.h: how long did a stretch take by the operating system's clock?
//
// Root reads the periodic interrupt of the real time clock, anybody else the
// processor time of the process. Only the estimate of the processor frequency
// needs this.
#ifndef ZEBOSTIMER_H
#define ZEBOSTIMER_H

// The device, held open with its periodic interrupt on. A device that can't be opened isn't missed; one that
// opens and then refuses a request ends the process with the error's number as exit status.
class LinuxRTClock {
 public:
  static constexpr int INT_PER_SEC = 8192;  // rate of the periodic interrupt

  explicit LinuxRTClock(const char* device = "/dev/rtc");
  LinuxRTClock(const LinuxRTClock&) = delete;
  LinuxRTClock& operator=(const LinuxRTClock&) = delete;
  ~LinuxRTClock();

  int fd;        // -1 if none
  bool enabled;  // periodic interrupts are on
};

extern LinuxRTClock g_rtc;

class OSTimer {
 public:
  void start() { GetCounter(&m_start); }
  void stop() { GetCounter(&m_stop); }
  float getSec() const;  // between start and stop
  float getUSec() const { return getSec() * 1000000; }

  static void GetCounter(long long* reading);  // in ticks; with the device it waits for the next one
  static int getOSFreq();                      // ticks per second

  long long m_start = 0;
  long long m_stop = 0;
};

#endif
