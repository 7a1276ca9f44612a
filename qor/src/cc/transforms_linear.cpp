// transforms_linear.cpp: a matrix and an offset, gray, gamma before a matrix, tone.
#include <math.h>

#include "floats.h"
#include "tables.h"
#include "transforms.h"

namespace qor {
namespace {

// `of` makes a float of a source element.
template <class T, class Of>
void multiply(const TileRows& in, const TileRows& out, int n, const Matrix& matrix, Of of) {
  const Planes<const T> s(in);
  for (int row = 0; row < 3; ++row) {
    const float ma = matrix.m[row][0], mb = matrix.m[row][1], mc = matrix.m[row][2],
                offset = matrix.offset[row];
    T* __restrict o = reinterpret_cast<T*>(out.plane[row]);
    for (int i = 0; i < n; ++i)
      o[i] = element<T>(ma * of(s.a[i]) + mb * of(s.b[i]) + mc * of(s.c[i]) + offset);
  }
}

struct Colours {
  Floats a, b, c;
};

// The weights of one row.
struct RowWeights {
  Floats a, b, c, offset;

  RowWeights(const Matrix& m, int row)
      : a(all(m.m[row][0])), b(all(m.m[row][1])), c(all(m.m[row][2])), offset(all(m.offset[row])) {}

  Floats sum(const Colours& v) const { return a * v.a + b * v.b + c * v.c + offset; }
};

// As multiply, with vectors; tile rows have room for whole ones.
template <class T>
void multiplyVectors(const TileRows& in, const TileRows& out, int n, const Matrix& matrix) {
  const Planes<const T> s(in);
  const Planes<T> o(out);
  const RowWeights rows[3] = {RowWeights(matrix, 0), RowWeights(matrix, 1), RowWeights(matrix, 2)};
  const auto colours = [&](int i) {
    return Colours{loadFloats(s.a + i), loadFloats(s.b + i), loadFloats(s.c + i)};
  };
  for (int i = 0; i < n; i += kVec / int{sizeof(T)}) {
    const Colours first = colours(i);
    if constexpr (sizeof(T) == 2) {
      const Colours second = colours(i + kFloats);
      storeTwo(o.a + i, rows[0].sum(first), rows[0].sum(second));
      storeTwo(o.b + i, rows[1].sum(first), rows[1].sum(second));
      storeTwo(o.c + i, rows[2].sum(first), rows[2].sum(second));
    } else {
      storeElements(o.a + i, rows[0].sum(first));
      storeElements(o.b + i, rows[1].sum(first));
      storeElements(o.c + i, rows[2].sum(first));
    }
  }
}

struct Tones {
  float least, most;
  double sum;
};

Tones measure(const Source& s, QoriSize size) {
  Tones t = {HUGE_VALF, -HUGE_VALF, 0};
  for (int y = 0; y < size.height; ++y) {
    const uint8_t* row = s.row(0, y);
    for (int x = 0; x < size.width; ++x) {
      float v;
      __builtin_memcpy(&v, row + x * ptrdiff_t{sizeof v}, sizeof v);
      t.least = atMost(v, t.least);
      t.most = atLeast(v, t.most);
      t.sum += v;
    }
  }
  return t;
}

Matrix tone(float scale, float offset) {
  Matrix m = {};
  m.m[0][0] = scale;
  m.offset[0] = offset;
  return m;
}

}  // namespace

template <class T>
void applyMatrix(const TileRows& in, const TileRows& out, int n, const Matrix& matrix) {
  if constexpr (sizeof(T) == 1)
    return multiply<T>(in, out, n, matrix, [](T v) { return static_cast<float>(v); });
  else
    multiplyVectors<T>(in, out, n, matrix);
}

// What is left of a row goes through a buffer, as no byte behind it may be touched.
void grayOfThree(const uint8_t* in, uint8_t* out, int n, const Matrix& matrix) {
  constexpr int size = sizeof(float);
  const Floats ma = all(matrix.m[0][0]), mb = all(matrix.m[0][1]), mc = all(matrix.m[0][2]);
  const auto gray = [&](const uint8_t* pixels) {
    const Vec3 v = load3<size>(pixels);
    return reinterpret_cast<Vec>(ma * reinterpret_cast<Floats>(v.a) + mb * reinterpret_cast<Floats>(v.b) +
                                 mc * reinterpret_cast<Floats>(v.c));
  };
  int i = 0;
  for (; i + kFloats <= n; i += kFloats) store(out + size * i, gray(in + 3 * size * i));
  if (i == n) return;
  uint8_t rest[3 * kVec] = {};
  __builtin_memcpy(rest, in + 3 * size * i, 3 * size * (n - i));
  store(rest, gray(rest));
  __builtin_memcpy(out + size * i, rest, size * (n - i));
}

void applyTwist4(const TileRows& in, const TileRows& out, int n, const Matrix& matrix) {
  const Planes<const Qor32f> s(in);
  const Qor32f* alpha = reinterpret_cast<const Qor32f*>(in.plane[3]);
  for (int row = 0; row < 4; ++row) {
    const float* m = row < 3 ? matrix.m[row] : matrix.fourth;
    const float ma = m[0], mb = m[1], mc = m[2], md = row < 3 ? matrix.offset[row] : m[3];
    Qor32f* __restrict o = reinterpret_cast<Qor32f*>(out.plane[row]);
    for (int i = 0; i < n; ++i) o[i] = ma * s.a[i] + mb * s.b[i] + mc * s.c[i] + md * alpha[i];
  }
}

void applyGammaMatrix(const TileRows& in, const TileRows& out, int n, const Matrix& matrix) {
  multiply<Qor8u>(in, out, n, matrix, [](Qor8u v) { return qortables::kGammaOf255.value[v]; });
}

template <class T>
void applyGray(const TileRows& in, const TileRows& out, int n, const Matrix& matrix) {
  const Planes<const T> s(in);
  const float ma = matrix.m[0][0], mb = matrix.m[0][1], mc = matrix.m[0][2];
  T* __restrict o = Planes<T>(out).a;
  for (int i = 0; i < n; ++i)
    o[i] = element<T>(ma * static_cast<float>(s.a[i]) + mb * static_cast<float>(s.b[i]) +
                      mc * static_cast<float>(s.c[i]));
}

void applyTone(const TileRows& in, const TileRows& out, int n, const Matrix& matrix) {
  const Qor32f* a = Planes<const Qor32f>(in).a;
  const float scale = matrix.m[0][0], offset = matrix.offset[0];
  Qor8u* __restrict o = Planes<Qor8u>(out).a;
  for (int i = 0; i < n; ++i) o[i] = element<Qor8u>((a[i] - offset) * scale);
}

Matrix linearTone(const Source& s, QoriSize size) {
  const Tones t = measure(s, size);
  const float spread = t.most - t.least;
  return spread > 0 && spread < HUGE_VALF ? tone(255 / spread, t.least) : tone(0, 0);
}

Matrix meanTone(const Source& s, QoriSize size) {
  const double mean = measure(s, size).sum / (static_cast<double>(size.width) * size.height);
  return mean > 0 && mean < HUGE_VAL ? tone(static_cast<float>(127.5 / mean), 0) : tone(0, 0);
}

}  // namespace qor
