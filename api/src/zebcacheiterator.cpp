#include "zebcacheiterator.h"

#include <climits>

#include "zebcpucache.h"
#include "zebmemory.h"
#include "zebobject.h"
#include "zebostream.h"

constexpr int maxTries = 11;
constexpr double wideLowFactor = 0.01;  // when the bounds leave too little room

static int toInt(double bytes) {
  return bytes >= INT_MAX ? INT_MAX : static_cast<int>(bytes);
}

// What the reports know too, so that the mode works on processors that the library's query refuses.
static int reportedCacheSize(int* size) {
  const int unknown = 1;
  *size = zebGetMaxCacheSizeB();
  return *size > 0 ? 0 : unknown;
}

int (*zebCacheIterator::m_maxCacheSize)(int*) = reportedCacheSize;

zebCacheIterator::zebCacheIterator(zebParameter& parm, zebObject* object, Setter setter)
    : zebIterator<int>(0, "cacheIterator"), m_parm(&parm), m_object(object), m_setter(setter) {
  add(0);
  add(1);
}

bool zebCacheIterator::nextValue() {
  m_try = 0;
  m_info = "";
  m_lowFactor = 0.1;
  return zebIterator<int>::nextValue() && m_parm->firstValue();
}

bool zebCacheIterator::repeatValue() {
  return ++m_try <= maxTries && setNewValue();
}

bool zebCacheIterator::setNewValue() {
  bool shrink = m_totalSize > highSize();
  int current = shrink ? m_totalSize : m_objectSize;
  int target = shrink ? highSize() : lowSize();
  bool fine = m_try > 1;
  return m_setter ? m_setter(m_parm, current, target, fine) : setNewValueToParm(current, target, fine);
}

// The base doesn't know what kind of value the parameter has.
bool zebCacheIterator::setNewValueToParm(int, int, bool) {
  return false;
}

bool zebCacheIterator::validateSize() {
  m_objectSize = getObjectSize();
  m_totalSize = getTotalSize();
  if (m_objectSize == 0) m_objectSize = m_totalSize;
  bool below = m_objectSize < lowSize();
  bool above = m_totalSize > highSize();
  if (!below && !above) {
    m_try = 0;
    m_info = "";
    return true;
  }
  zebString text = missedBounds(below, above);
  m_info += text;
  g_ostrm << msgPerf << text << msgEnd;
  // Below after above: the search swings between the two bounds.
  bool swings = below && !above && m_try > 1 && m_wasAbove;
  if ((below && above) || swings) {
    bool wider = widen();
    if (wider && swings) return validateSize();
  }
  m_wasAbove = above;
  return false;
}

// Lowers the lower bound once; if that was done before, the next repeatValue gives up.
bool zebCacheIterator::widen() {
  if (m_lowFactor - 0.0001 > wideLowFactor) {
    m_lowFactor = wideLowFactor;
    return true;
  }
  m_try = maxTries + 1;
  return false;
}

zebString zebCacheIterator::missedBounds(bool below, bool above) const {
  zebString start = "      " + getComment() + " try: cacheParm=" + valueString();
  zebString text;
  if (below) {
    text << start << (m_object ? " objectSize=" : " totalSize=") << m_objectSize << " < " << lowSize()
         << "\n";
  }
  if (above) text << start << " totalSize=" << m_totalSize << " > " << highSize() << "\n";
  return text;
}

zebString zebCacheIterator::getComment() const {
  if (m_value == 0) return "inCache";
  return m_value == 1 ? "outofCache" : "";
}

void zebCacheIterator::outputInfo() const {
  const int shown = g_ostrm.outLevel();
  if (shown < msgPerf) g_ostrm << msgErr << m_info << msgEnd;
}

int zebCacheIterator::getTotalSize() {
  long long total = 0;
  int size = 0;
  for (void* p = zebMallocFirst(&size, nullptr); p; p = zebMallocNext(&size, nullptr)) total += size;
  return total > INT_MAX ? INT_MAX : static_cast<int>(total);
}

int zebCacheIterator::getObjectSize() const {
  return m_object ? m_object->objectSize() : 0;
}

int zebCacheIterator::cacheSize() {
  int size = 0;
  return m_maxCacheSize(&size) == 0 ? size : 0;
}

int zebCacheIterator::lowSize() const {
  return toInt(cacheSize() * (m_value == 0 ? m_lowFactor : 1.05));
}

int zebCacheIterator::highSize() const {
  return m_value == 0 ? toInt(cacheSize() * 0.9) : INT_MAX;
}

// The number of doublings, or halvings if negative, that bring current closest below target. False without a
// positive current and target: no doubling and no halving would ever get there.
static bool countDoublings(long long current, int target, int& doublings) {
  if (current < 1 || target < 1) return false;
  doublings = 0;
  for (; current <= target; current *= 2) ++doublings;
  do {
    current /= 2;
    --doublings;
  } while (current >= target);
  return true;
}

// False, and no change, if the result is no positive int.
static bool scale(int& value, int doublings) {
  long long scaled = doublings > 0 ? static_cast<long long>(value) << doublings : value >> -doublings;
  if (scaled < 1 || scaled > INT_MAX) return false;
  value = static_cast<int>(scaled);
  return true;
}

bool zebCacheIteratorInt::updateValue(int& value, int current, int target, bool fine) {
  int doublings = current < target ? 1 : -1;
  if (!fine && !countDoublings(current, target, doublings)) return false;
  return scale(value, doublings);
}

bool zebCacheIteratorInt::setNewValueToParm(int current, int target, bool fine) {
  auto* parm = dynamic_cast<zebDefault_NSC<int>*>(m_parm);
  if (!parm) return false;
  int value = parm->value();
  if (!updateValue(value, current, target, fine)) return false;
  parm->m_value = value;
  return true;
}

bool zebCacheIteratorSize::updateValue(QoriSize& size, int current, int target, bool fine) {
  if (fine && current < target) return scale(size.width <= size.height ? size.width : size.height, 1);
  if (fine) return scale(size.width > size.height ? size.width : size.height, -1);
  int doublings;
  if (!countDoublings(current, target, doublings)) return false;
  int ofHeight = doublings >> 1;  // the width grows first, the height shrinks first
  return scale(size.width, doublings - ofHeight) && scale(size.height, ofHeight);
}

bool zebCacheIteratorSize::setNewValueToParm(int current, int target, bool fine) {
  auto* parm = dynamic_cast<zebDefault_NSC<QoriSize>*>(m_parm);
  if (!parm) return false;
  QoriSize size = parm->value();
  if (!updateValue(size, current, target, fine)) return false;
  parm->m_value = size;
  return true;
}
