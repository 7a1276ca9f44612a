#include "zebcpucache.h"

const zebCacheDescriptor tableCache[] = {
    {0xEC, 25165824}, {0xEB, 18874368}, {0x4D, 16777216}, {0xEA, 12582912}, {0x4C, 12582912}, {0xE4, 8388608},
    {0xDE, 8388608},  {0x4B, 8388608},  {0x47, 8388608},  {0x4E, 6291456},  {0x4A, 6291456},  {0xE3, 4194304},
    {0xDD, 4194304},  {0xD8, 4194304},  {0x49, 4194304},  {0x29, 4194304},  {0x46, 4194304},  {0x48, 3145728},
    {0xE2, 2097152},  {0xDC, 2097152},  {0xD7, 2097152},  {0xD2, 2097152},  {0x25, 2097152},  {0x7D, 2097152},
    {0x85, 2097152},  {0x45, 2097152},  {0xD6, 1048576},  {0xD1, 1048576},  {0x23, 1048576},  {0x87, 1048576},
    {0x7C, 1048576},  {0x78, 1048576},  {0x84, 1048576},  {0x44, 1048576},  {0xD0, 524288},   {0x22, 524288},
    {0x7B, 524288},   {0x80, 524288},   {0x86, 524288},   {0x3E, 524288},   {0x7F, 524288},   {0x83, 524288},
    {0x43, 524288},   {0x3D, 393216},   {0x21, 262144},   {0x7A, 262144},   {0x82, 262144},   {0x3C, 262144},
    {0x3F, 262144},   {0x42, 262144},   {0x3A, 196608},   {0x79, 131072},   {0x39, 131072},   {0x3B, 131072},
    {0x41, 131072},   {0, 0},
};

zebCacheParms::zebCacheParms(const CPUID& regs)
    : type(regs.getBits(regEax, 4, 0)),
      sets(regs.getBits(regEcx, 31, 0) + 1),
      line(regs.getBits(regEbx, 11, 0) + 1),
      partitions(regs.getBits(regEbx, 21, 12) + 1),
      ways(regs.getBits(regEbx, 31, 22) + 1) {}

static bool hasDescriptor(const CPUID& regs, unsigned char key) {
  for (int i = 1; i < 16; ++i) {  // byte 0 isn't a descriptor
    bool empty = regs.getBit(i / 4, 31);
    if (!empty && regs.getByte(i / 4, i % 4) == key) return true;
  }
  return false;
}

int ownGetCacheSize(const zebCacheDescriptor* table) {
  CPUID regs(2, 0);
  if (regs.getByte(regEax, 0) != 1) return -1;
  for (; table->key != 0; ++table) {
    if (hasDescriptor(regs, table->key)) return table->size;
  }
  return -1;
}

static const unsigned int noType = 0;
static const unsigned int instructionType = 2;

static int largestCache(unsigned int skippedType) {
  int largest = 0;
  for (unsigned int i = 0; i < zebMaxCaches; ++i) {
    zebCacheParms cache(CPUID(4, i));
    if (cache.type == noType) break;
    int size = static_cast<int>(cache.size());
    if (cache.type != skippedType && size > largest) largest = size;
  }
  return largest;
}

QorStatus zebCacheQuery::ask(int* size) {
  if (ownStatus == 1) askProcessor();
  *size = cacheSize;
  return ownStatus;
}

void zebCacheQuery::askProcessor() {
  const QorStatus notGenuine = 36;
  const QorStatus notFound = 37;
  if (!qor_has_cpuid() || qor_max_cpuid_input() < 2 || !qor_is_GenuineBrelk()) {
    ownStatus = notGenuine;
    return;
  }
  bool byDescriptors = qor_max_cpuid_input() < 4;
  int size = byDescriptors ? ownGetCacheSize(tableCache) : largestCache(instructionType);
  bool found = byDescriptors ? size >= 0 : size > 0;
  ownStatus = found ? qorStsNoErr : notFound;
  cacheSize = found ? size : 0;
}

QorStatus zeb_qorGetMaxCacheSizeB(int* size) {
  static zebCacheQuery query;
  return query.ask(size);
}

int getCacheSizeB(unsigned int index) {
  zebCacheParms cache(CPUID(4, index));
  return cache.type == noType ? -1 : static_cast<int>(cache.size());
}

int getMaxCacheSizeB() {
  return qor_has_cpuid() ? largestCache(noType) : 0;
}

int zebGetMaxCacheSizeB() {
  int size = 0;
  return zeb_qorGetMaxCacheSizeB(&size) == qorStsNoErr && size > 0 ? size : getMaxCacheSizeB();
}
