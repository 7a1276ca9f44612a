// moktest.h: what does a test of an image primitive know beyond a plain test?
//
// Its name as a mokFunc, from which a test class derives types and layouts of
// its data; the library's status; and how the test data print themselves. A
// test class adds no fields: its data stand in statics of its source, since
// only one test runs at a time.
#ifndef MOKTEST_H
#define MOKTEST_H

#include "mokfunc.h"
#include "qordefs.h"
#include "zebtest.h"

class mokImage;
class mokVector;
template <class T>
class zebIterator;

class mokTest : public zebTest {
 public:
  // Warnings of the library count as success. Cleared for each test.
  static bool m_checkErrorsOnly;

  mokFunc m_func;  // the text of m_name

  mokTest(TestFuncCall call, TestFuncCall init, TestFuncLoop loop, TestFuncStat stat, const zebString& name,
          const zebString& file, const zebString& info);

  zebResult run() override;
  int compareFunc(const zebTest* other) const override;
  void funcToCstrm() override;  // three cells: base, type, descriptor
  bool isFloatFunction() override;
  int printAllMemoryBlocks(const zebString& text) override;  // number of blocks printed
  zebString regInfo() override;

  // Level msgData, the pieces of printAllMemoryBlocks.
  virtual void printFirstDebugLine(const zebString& text);
  virtual void printLastDebugLine(const zebString& text);
  virtual void printFirstBlockLine(int n, zebObject* object, int size);  // size in bytes
  virtual void printLastBlockLine(int n, zebObject* object);
  virtual void printVectorBlock(mokVector* vector);
  virtual void printByteBlock(void* data, int size);

  // Reports a status other than success, and folds it into m_currentResult.
  // Gives resOk, resLibWarning or resLibError.
  static zebResult checkStatus(QorStatus status, const zebString& name);
  zebResult checkStatus(QorStatus status) { return checkStatus(status, m_func); }

  // Instead of adding a size parameter to m_parms, as in zebTest. setter may be null.
  using zebTest::regCacheParm;
  void regCacheParm(zebIterator<QoriSize>& parm, mokImage& image, CacheSetter setter);
  void regCacheParm(zebIterator<QoriSize>& parm, CacheSetter setter);

 private:
  void regCacheObject(zebIterator<QoriSize>& parm, zebObject* object, CacheSetter setter);
  void printBlock(int n, void* data, int size, zebObject* owner);
};

#endif
