// zebcpuregs.h: the registers of one execution of CPUID, to be read bit by bit.
#ifndef ZEBCPUREGS_H
#define ZEBCPUREGS_H

#include "zebcpuid.h"

class CPUID {
 public:
  // All registers are 0 if the processor lacks the function.
  CPUID(unsigned int function, unsigned int subFunction) : m_regs{0, 0, 0, 0} {
    if (validFunction(function)) ownGetReg(m_regs, function, subFunction);
  }

  // The bits high down to low, shifted down to bit 0.
  unsigned int getBits(int reg, int high, int low) const { return zebBits(m_regs[reg], high, low); }
  unsigned int getBit(int reg, int bit) const { return getBits(reg, bit, bit); }
  unsigned char getByte(int reg, int index) const {
    return static_cast<unsigned char>(getBits(reg, 8 * index + 7, 8 * index));
  }

 private:
  unsigned int m_regs[4];  // EAX, EBX, ECX, EDX
};

#endif
