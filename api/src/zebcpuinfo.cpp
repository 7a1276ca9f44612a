#include "zebcpuinfo.h"

#include "zebcpucache.h"
#include "zebcputype.h"
#include "zebhooks.h"
#include "zebhost.h"
#include "zebticker.h"

zebString zebFrequencyText(int mhz) {
  zebString text;
  if (mhz > 999) {
    text << mhz / 1000.0 << " GHz";
  } else {
    text << mhz << " MHz";
  }
  return text;
}

zebString cpuInfo() {
  zebString text = zebCpuType::cpuName(qor_GetCpuType()) + ", ";
  int processors = zebGetNumOfProcessors();
  if (processors > 1) text << processors << "x";
  text << zebFrequencyText(zebCpuTicker::getFreq()) << ", ";
  int cacheSize = zebGetMaxCacheSizeB();
  if (cacheSize != 0) text << "Max cache size " << cacheSize / 1024 << " K";
  return text;
}
