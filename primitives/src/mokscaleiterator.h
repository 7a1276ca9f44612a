// mokscaleiterator.h: which scale factors does a test of a scaling function run over?
//
// A function whose descriptor names no scale factor gets one nameless value,
// so that the test runs once and shows nothing.
#ifndef MOKSCALEITERATOR_H
#define MOKSCALEITERATOR_H

#include "mokfunc.h"
#include "zebiterator.h"
#include "zebstring.h"

class mokScaleIterator : public zebIterator<int> {
 public:
  bool m_scaled = false;  // the function has a scale factor

  mokScaleIterator();
  ~mokScaleIterator() override;

  // The default factors: 0, 1, 2, -1.
  void init(zebString funcName);
  // One to six factors in place of the default ones.
  template <class... More>
  void init(zebString funcName, int factor, More... more) {
    static_assert(sizeof...(More) <= 5, "at most six scale factors");
    const int factors[] = {factor, more...};
    replaceFactors(funcName, factors, 1 + sizeof...(More));
  }

  // The last of the parameter columns.
  int colmIndex() const override;

  virtual bool isScaled(mokFunc func);

 private:
  void replaceFactors(zebString funcName, const int* factors, int count);
};

#endif
