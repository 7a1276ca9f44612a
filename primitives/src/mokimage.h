// mokimage.h: what image does a test hand to a library function?
//
// A mokVector with rows, a row step and, for planar layouts, up to four planes
// that are blocks of their own. The layout is read from the descriptor in m_func
// ("_8u_C3", "_16s_P3", "_8u_AC4"). Interleaved: m_data holds all, the planes are
// empty. Planar: m_data is null, m_plane holds the planes, and the typed data
// view points to plane 0. m_length is 0 in both; numItems counts the elements.
// Sizes are pixels, steps bytes. The padding of a row stays 0.
#ifndef MOKIMAGE_H
#define MOKIMAGE_H

#include "mokvector.h"
#include "qordefs.h"

class mokImage : public mokVector {
 public:
  static constexpr int maxPlanes = 4;

  QoriSize m_size = {0, 0};
  int m_step = 0;  // bytes from row to row, padding included
  mokVector m_planeVector[maxPlanes];
  void* m_plane[maxPlanes] = {};  // data of the planes: what a planar call of the library gets
  // Views of m_plane, planes8u to planes64fc; only that of the image's type is set, if it is planar.
#define MOK_VIEW(name, T) T** planes##name = nullptr;
  MOK_ELEMENTS(MOK_VIEW)
#undef MOK_VIEW

  using mokVector::mokVector;
  mokImage() = default;
  mokImage(mokType t, int channels, bool plane) {
    init(t, channels, plane);
  }

  int objectSize() const override;  // without row padding
  zebString objectInfo() const override;
  bool reserveCopy() override;
  bool setReservedCopy() override;
  ~mokImage() override;
  void deleteVector() override;
  using mokVector::setConst;
  void setConst(double re, double im) override;
  using mokVector::setJaehne;
  void setJaehne(double magnitude) override;
  // Every row holds the same sequence.
  void setSequence(double first, double last) override;
  void setSequence(double first, double last, double step, bool wrap) override;
  using mokVector::setRandom;
  void setRandom(double low, double high) override;
  zebString getString() const override;
  int size() const override;  // with row padding

  // Element at pixel (x, y), channel c; im for complex types only.
  virtual void setImageAt(int x, int y, int c, double re, double im);
  virtual void getImageAt(int x, int y, int c, double& re, double& im) const;
  virtual double getImageAt(int x, int y, int c) const;
  virtual int numItems() const;
  virtual int numActualItems() const;  // without alpha
  using mokVector::getIndex;
  using mokVector::setIndex;
  virtual void setIndex(int x, int y, int c, SetMode mode, double re, double im);  // mode takes no part
  virtual void getIndex(int x, int y, int c, double& re, double& im) const;
  virtual double getIndex(int x, int y, int c) const;

  // What the descriptor of a name tells, searched as a text.
  static bool isPlane(const mokFunc& f);
  static int numChannels(const mokFunc& f);
  static int numActualChannels(const mokFunc& f);  // those that carry colour: 3 for "AC4"

  using mokVector::init;
  void init(mokType t, int channels, bool plane);

  // step: below 1 for the default, a multiple of 16; another one must hold a row. align: as for a vector;
  // with firstPlaneOnly the other planes aren't misaligned. The image then holds the default constant. False
  // on failure, which is reported.
  bool createImage(int width, int height, int step, int align, bool firstPlaneOnly);
  bool createImage(QoriSize size, int step, int align, bool firstPlaneOnly);

  // With default step and alignment. The unnamed numbers take no part: the settings tell the layout.
  bool createVector(int width, int height, SetMode mode, double re, double im);
  bool createVector(QoriSize size, SetMode mode, double re, double im);
  bool createVectorExt(int width, int height, int, SetMode mode, double re, double im);
  bool createVectorExt(QoriSize size, int, SetMode mode, double re, double im);
  bool createImageExt(int width, int height, int, int, SetMode mode, double re, double im);
  bool createImageExt(QoriSize size, int, int, SetMode mode, double re, double im);

  // From an uncompressed bitmap file in the input directory; the file decides the layout. False on failure.
  bool canLoadImage();
  bool loadImage(zebString name, int align);

  // Rows count through all planes. Pointers are null without data.
  int getNumRows() const;
  int getRowLen() const;  // elements
  void* getRowPointer(int row);
  const void* getRowPointer(int row) const;
  using mokVector::getPointerAt;
  void* getPointerAt(int x, int y, int c);
  const void* getPointerAt(int x, int y, int c) const;

  void setPlanePtrs();  // the typed views of a planar image

 private:
  int numPlanes() const {
    return isPlane(m_func) ? numChannels(m_func) : 1;
  }
  bool createPlanes(int step, int height, int align, bool firstPlaneOnly);
  void setPlaneJaehne(void* data, int pixelStep, double magnitude);
};

// 3 gives "C3" or "P3", 4 gives "AC4" or "AP4".
zebString channelString(int channels, bool plane);

#endif
