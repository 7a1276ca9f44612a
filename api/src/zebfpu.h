// zebfpu.h: the control and status registers of the x87 and SSE units, as the instructions give them.
//
// Meaning of the bits: the processor manuals' chapters on the x87 FPU control
// and status words and on MXCSR. The callers see to it that SSE is there.
#ifndef ZEBFPU_H
#define ZEBFPU_H

// Each "set" replaces the bits of the mask by those of the value and returns the old word.
unsigned int zeb_set_cw_fpu(unsigned int value, unsigned int mask);
unsigned int zeb_get_cw_fpu();
unsigned int zeb_get_sw_fpu();
unsigned int zeb_clear_fpu();  // clears the exception flags and returns the old status word
void zeb_init_fpu();           // everything to the power-on state, the register stack emptied

unsigned int zeb_set_ssx(unsigned int value, unsigned int mask);
unsigned int zeb_get_ssx();
void zeb_destroy_ssx();  // all bits of XMM0 to XMM7 to one

#endif
