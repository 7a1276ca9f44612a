// zebcpuinfo.h: which processor do the figures come from?
#ifndef ZEBCPUINFO_H
#define ZEBCPUINFO_H

#include "zebstring.h"

// One line: name, count, frequency and largest cache. The first call measures
// the frequency and takes over two seconds.
zebString cpuInfo();

zebString zebFrequencyText(int mhz);  // "2.93 GHz" or "800 MHz"

#endif
