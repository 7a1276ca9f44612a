// zebssx.h: what did a measured function do to the SSE unit?
//
// tsSSXBase talks to the unit, zebSSX remembers what was seen. Without the unit
// nothing is touched and no status is ever bad.
#ifndef ZEBSSX_H
#define ZEBSSX_H

#include "zebstring.h"

class tsSSXBase {
 public:
  static constexpr int Exception = 0x1F80;  // all masks
  static constexpr int FlushZero = 0x8000;  // on
  static constexpr int Rounding = 0;        // to nearest

  tsSSXBase();

  unsigned int get() const;
  void set(unsigned int value, unsigned int mask);
  void enableExceptions() { set(0, 0x1F80); }
  void disableExceptions() { set(0x1F80, 0x1F80); }
  void disableInexactException() { set(0x1000, 0x1000); }
  // All bits but denormals-are-zero, which stays as it was: not every processor has it.
  void setDefault() { set(Rounding | Exception | FlushZero, 0xFFBF); }
  void destroy();  // all ones in XMM0 to XMM7

  zebString strExceptionState(unsigned int status) const;  // the flags, "Ok" if none
  zebString strCW(unsigned int status) const;              // rounding, masks, flush to zero

 protected:
  bool m_present;
};

class zebSSX {
 public:
  zebSSX();
  zebSSX(const zebSSX&) = delete;
  zebSSX& operator=(const zebSSX&) = delete;
  ~zebSSX();

  void init();   // forgets what was seen, sets the unit's defaults
  void clear();  // forgets what was seen, clears the unit's flags and nothing else
  // Before a measured stretch: a function that reads a register which it hasn't written meets no numbers.
  void start();
  void stop();  // after it: remembers the unit's state

  unsigned int get() const { return m_status; }
  zebString strExceptionState() const { return m_base->strExceptionState(m_status); }
  zebString strCW() const { return m_base->strCW(m_status); }
  bool badStatus() const;  // a flag other than Inexact was seen

 private:
  tsSSXBase* m_base;
  unsigned int m_status = 0;  // MXCSR of all stretches, ORed together
};

extern zebSSX g_ssx;

#endif
