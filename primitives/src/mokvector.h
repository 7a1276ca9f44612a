// mokvector.h: what array does a test hand to a library function?
//
// A mokVector knows its element type, takes its memory from the block registry,
// fills itself, keeps a copy for restoring, and prints itself. All fills are
// deterministic: random data depend on m_seed and on the order of the fills.
// Lengths are elements, sizes are bytes. Without data a fill does nothing.
#ifndef MOKVECTOR_H
#define MOKVECTOR_H

#include "mokelement.h"
#include "mokfunc.h"
#include "zebobject.h"
#include "zebstring.h"

// How a vector is filled with re, im.
enum SetMode : int {
  modeConst = 0,  // the default constant
  modeZero = 1,
  modeOne = 2,  // 1, 0
  modeMax = 3,
  modeMin = 4,
  modeValue = 5,     // re, im
  modeRandom = 6,    // between re and im; the default range if they are equal
  modeSequence = 7,  // rising from re to im
};

class mokVector : public zebObject {
 public:
  static unsigned int m_seed;  // of the random fills of all vectors

  void* m_data = nullptr;
  void* m_reserved = nullptr;  // the copy, from calloc
  int m_length = 0;
  mokFunc m_func;  // "_<type>_<channels>", such as "_8u_C3"
  mokType m_type = mokUndef;
  // Views of the data, p8u to p64fc; only that of the vector's type is set.
#define MOK_VIEW(name, T) T* p##name = nullptr;
  MOK_ELEMENTS(MOK_VIEW)
#undef MOK_VIEW

  mokVector() {
    init(mokUndef);
  }
  explicit mokVector(mokType t) {
    init(t);
  }
  mokVector(const mokFunc& f, int which) {
    init(f, which);
  }
  mokVector(const mokFunc& f, mokArg arg) {
    init(f, arg);
  }
  mokVector(const mokVector&) = delete;
  mokVector& operator=(const mokVector&) = delete;

  int objectSize() const override {
    return size();
  }
  zebString objectInfo() const override;
  bool reserveCopy() override;
  bool setReservedCopy() override;
  void deleteReservedCopy() override;
  ~mokVector() override;
  virtual void deleteVector();  // back to the state without data; type and name stay
  virtual void setConst();      // 1.00001 for a floating-point type, 2 for others
  virtual void setConst(double re, double im);
  virtual void setMinValue();
  virtual void setMaxValue();
  virtual void setJaehne();
  virtual void setJaehne(double magnitude);
  virtual void setSequence(double first, double last);
  virtual void setSequence(double first, double last, double step, bool wrap);
  virtual void setRandom();  // -1 to 1 for a floating-point type, else the type's whole range
  virtual void setRandom(double low, double high);
  virtual void setRandom(double low, double high, unsigned int seed);
  virtual zebString getString() const {
    return getDataString(m_data, m_length);
  }
  virtual int size() const {
    return m_length * mokTypeSize(m_type);
  }
  virtual void* getReservedData() {
    return m_reserved;
  }
  virtual void setVector(SetMode mode, double re, double im);
  virtual void setIndex(int i, SetMode mode, double re, double im);
  virtual double getIndex(int i) const;
  virtual void getIndex(int i, double& re, double& im) const;  // im for complex types only
  virtual const void* getDataConst() const {
    return m_data;
  }

  // Delete what was there and take the element type, by name also the channels, of an argument.
  void init(mokType t);
  void init(const mokFunc& f, int which);
  void init(const mokFunc& f, mokArg arg);

  // align: bytes above a multiple of 64, or below 0 for the setting. object: the owner, a zebObject* as
  // void*; null for this vector. False on failure, which is reported; there are no data then.
  bool allocateVector(int bytes, int align, void* object);
  bool createVector(int length, int align, void* object);
  bool createVector(int length, int align);
  bool createVector(int length, SetMode mode, double re, double im);

  void* getPointerAt(int i);  // null without data
  const void* getPointerAt(int i) const;
  void getElement(const void* p, double& re, double& im) const;  // im for complex types only
  double getElement(const void* p) const;

  double minValue() const;  // 1 for an undefined type
  double maxValue() const;  // 0 for an undefined type
  static double getMinValue(mokType t);
  static double getMaxValue(mokType t);
  static double getMinAbsValue(mokType t);
  static int item(const mokFunc& f);  // bytes of an element of the first type of the name

  static zebString getDataString(mokType t, const void* data, int length);
  zebString getDataString(const void* data, int length) const {
    return getDataString(m_type, data, length);
  }
  static zebString getByteString(const void* data, int bytes);

  // The fills, on n elements anywhere.
  void setDataConst(void* data, int n, double re, double im) const;
  void setDataRandom(void* data, int n, double low, double high) const;
  void setDataSequence(void* data, int n, double first, double last, double step, bool wrap) const;
  void setVectorJaehne(void* data, int n, double magnitude) const;
  // Limits the magnitude to the type and tells the signal's centre. False for a negative magnitude: no
  // signal.
  bool updateJaehneMagn(double& magnitude, double& offset) const;

 protected:
  void setViews(void* data);  // null clears them all
  bool allocateReserved();    // size() zero bytes
  double defaultConst() const {
    return mokIsFloat(m_type) ? 1.00001 : 2.0;
  }
};

// Reports that so many bytes can't be had; false.
bool memError(int bytes);

// length times size in an int, at the limits of int where it doesn't fit; no such block can be had.
int mokBytes(int length, int size);

#endif
