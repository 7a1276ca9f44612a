#include "homogeneity.h"

namespace qor {
namespace {

inline float absolute(float v) {
  return v < 0 ? -v : v;
}
inline float larger(float a, float b) {
  return a > b ? a : b;
}
inline float smaller(float a, float b) {
  return a < b ? a : b;
}

// How far a pixel is from one neighbour; chroma is squared.
struct Distance {
  float light, chroma;
};

inline Distance distance(const LabRow& p, int i, const LabRow& q, int j) {
  const float a = p.a[i] - q.a[j], b = p.b[i] - q.b[j];
  return {absolute(p.l[i] - q.l[j]), a * a + b * b};
}

struct Neighbours {
  Distance left, right, above, below;
};

inline Neighbours neighbours(const LabRows& rows, int i) {
  return {distance(rows.here, i, rows.here, i - 1), distance(rows.here, i, rows.here, i + 1),
          distance(rows.here, i, rows.above, i), distance(rows.here, i, rows.below, i)};
}

inline Distance farther(const Distance& p, const Distance& q) {
  return {larger(p.light, q.light), larger(p.chroma, q.chroma)};
}

inline int isNear(const Distance& d, const Distance& most) {
  return (d.light <= most.light) & (d.chroma <= most.chroma);
}

inline int count(const Neighbours& n, const Distance& most) {
  return isNear(n.left, most) + isNear(n.right, most) + isNear(n.above, most) + isNear(n.below, most);
}

}  // namespace

void countNeighbours(const LabRows& along, const LabRows& across, int n, uint8_t* __restrict ofAlong,
                     uint8_t* __restrict ofAcross) {
  for (int i = 0; i < n; ++i) {
    const Neighbours h = neighbours(along, i), v = neighbours(across, i);
    const Distance row = farther(h.left, h.right), column = farther(v.above, v.below);
    const Distance most = {smaller(row.light, column.light), smaller(row.chroma, column.chroma)};
    ofAlong[i] = static_cast<uint8_t>(count(h, most));
    ofAcross[i] = static_cast<uint8_t>(count(v, most));
  }
}

}  // namespace qor
