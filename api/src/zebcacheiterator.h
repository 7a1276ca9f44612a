// zebcacheiterator.h: at which size do a test's data fit the largest cache, and at which not?
//
// Stands in a test's parameter list in place of its size parameter and delivers
// two values: 0, in cache, and 1, out of cache. For each, the test builds its
// data and asks validateSize; on false, repeatValue changes the size parameter
// and the test builds its data again, up to eleven times. Sizes are bytes.
#ifndef ZEBCACHEITERATOR_H
#define ZEBCACHEITERATOR_H

#include "qordefs.h"
#include "zebiterator.h"

class zebObject;

class zebCacheIterator : public zebIterator<int> {
 public:
  // A test's own way to approach target bytes from current bytes; false when it can't. Fine asks for one step
  // of two, otherwise the size is to come close at once.
  using Setter = bool (*)(zebParameter* parm, int current, int target, bool fine);

  // Neither parm nor object is owned. Object, the test's main data, and setter may be null.
  zebCacheIterator(zebParameter& parm, zebObject* object, Setter setter);

  // All of these speak of the size parameter.
  zebString valueString() const override { return m_parm->valueString(); }
  zebString defaultString() const override { return m_parm->defaultString(); }
  zebString validString() const override { return m_parm->validString(); }
  zebString description() const override { return m_parm->description(); }
  zebString prompt() const override { return m_parm->prompt(); }
  zebOStream& toOStream(zebOStream& o) const override { return m_parm->toOStream(o); }
  zebCStream& toCStream(zebCStream& c) const override { return m_parm->toCStream(c); }
  zebIStream& fromIStream(zebIStream& in) override { return m_parm->fromIStream(in); }

  bool nextValue() override;   // the size parameter begins with its first value again
  virtual bool repeatValue();  // false when no further size can be tried
  virtual bool setNewValueToParm(int current, int target, bool fine);

  bool validateSize();  // whether the present data fit the mode; tells why not
  bool setNewValue();
  zebString getComment() const;  // "inCache" or "outofCache"
  void outputInfo() const;       // the attempts, unless they have been shown already

  static int getTotalSize();  // of all registered blocks
  int getObjectSize() const;  // of the main data object, 0 without one
  static int cacheSize();     // of the largest cache, 0 if that isn't known
  int lowSize() const;
  int highSize() const;

  // Where cacheSize asks: gives 0 and the bytes, or another number if they aren't known.
  static int (*m_maxCacheSize)(int* size);

  zebParameter* m_parm;
  zebObject* m_object;
  int m_try = 0;  // attempts for the present value
  int m_objectSize = 0;
  int m_totalSize = 0;
  bool m_wasAbove = false;   // the last check found all blocks together too big
  double m_lowFactor = 0.1;  // lower bound in cache, as a part of the cache size
  zebString m_info;          // the attempts that failed, one line for each bound missed
  Setter m_setter;

 private:
  zebString missedBounds(bool below, bool above) const;
  bool widen();
};

// Sizes of one dimension.
class zebCacheIteratorInt : public zebCacheIterator {
 public:
  using zebCacheIterator::zebCacheIterator;
  bool setNewValueToParm(int current, int target, bool fine) override;

  // Multiplies by the power of two that brings current bytes closest below target, or, if fine, by 2 or 1/2.
  // False if no size is left or none can be found.
  static bool updateValue(int& value, int current, int target, bool fine);
};

// Sizes of two dimensions, which share the factor.
class zebCacheIteratorSize : public zebCacheIterator {
 public:
  using zebCacheIterator::zebCacheIterator;
  bool setNewValueToParm(int current, int target, bool fine) override;
  static bool updateValue(QoriSize& size, int current, int target, bool fine);
};

#endif
