// zeb87.h: what did a measured function do to the x87 unit?
//
// ts87Base talks to the unit, zeb87 remembers what was seen. A division by
// zero is the one exception that stays unmasked: it ends a test by a signal.
#ifndef ZEB87_H
#define ZEB87_H

#include "zebstring.h"

class ts87Base {
 public:
  static constexpr int Exception = 0x3B;   // masks: all but Zerodivide
  static constexpr int Precision = 0x200;  // 53 bits
  static constexpr int Rounding = 0;       // to nearest

  ts87Base() { setDefault(); }

  unsigned int getCW() const;
  unsigned int getSW() const;
  void set(unsigned int value, unsigned int mask);  // of the control word; clears the flags first
  void clear();                                     // the flags
  void enableExceptions() { set(0, 0x3F); }
  void disableExceptions() { set(0x3F, 0x3F); }
  void disableInexactException() { set(0x20, 0x20); }
  void setDefault() { set(Exception | Precision | Rounding, 0xF3F); }

  zebString strSW(unsigned int sw) const;  // the flags, "Ok" if none
  zebString strCW(unsigned int cw) const;  // rounding, precision, masks
};

class zeb87 {
 public:
  zeb87();
  zeb87(const zeb87&) = delete;
  zeb87& operator=(const zeb87&) = delete;
  ~zeb87();

  void init();   // forgets what was seen, sets the unit's defaults
  void clear();  // forgets what was seen, clears the unit's flags
  void start();  // before a measured stretch
  void stop();   // after it: remembers the unit's state

  unsigned int getCW() const { return m_cw; }
  unsigned int getSW() const { return m_sw; }
  zebString strSW() const { return m_base->strSW(m_sw); }
  zebString strCW() const { return m_base->strCW(m_cw); }
  bool badStatus() const;  // a flag other than Inexact was seen

 private:
  ts87Base* m_base;
  unsigned int m_cw = 0;  // words of all stretches, ORed together
  unsigned int m_sw = 0;
};

extern zeb87 g_ctrl87;

#endif
