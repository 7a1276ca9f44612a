// direct.cpp: samples that only move, without a tile.
#include "formats.h"
#include "packed16.h"
#include "packed422.h"
#include "pairs.h"
#include "simd.h"

namespace qor {
namespace {

// Rows without padding are one long row.
void copyLuma(const Move& m, const Share& rows) {
  if (m.source.step[0] == m.size.width && m.target.step[0] == m.size.width) {
    const size_t bytes = static_cast<size_t>(m.size.width) * static_cast<size_t>(rows.last - rows.first);
    __builtin_memcpy(m.target.row(0, rows.first), m.source.row(0, rows.first), bytes);
    return;
  }
  for (int y = rows.first; y < rows.last; ++y)
    __builtin_memcpy(m.target.row(0, y), m.source.row(0, y), m.size.width);
}

// The planes of Cb and Cr, in the order in which the pairs have them.
struct ChromaPlanes {
  int first, second;
};
ChromaPlanes chromaPlanes(const uint8_t* pairs, const uint8_t* planes) {
  const bool same = pairs[1] == planes[1];
  return {same ? 1 : 2, same ? 2 : 1};
}

// The chroma lines of a share. Lines without padding are one long one.
struct ChromaLines {
  int first, count;
  ptrdiff_t samples;

  ChromaLines(const Move& m, const Share& rows, ptrdiff_t pairStep, ptrdiff_t firstStep, ptrdiff_t secondStep)
      : first(rows.first / 2), count((rows.last + 1) / 2 - first), samples((m.size.width + 1) / 2) {
    if (pairStep != 2 * samples || firstStep != samples || secondStep != samples) return;
    samples *= count;
    count = 1;
  }
};

void splitPairs420(const Move& m, const Share& rows) {
  copyLuma(m, rows);
  const ChromaPlanes to = chromaPlanes(m.sourceOrder, m.targetOrder);
  const ChromaLines lines(m, rows, m.source.step[1], m.target.step[to.first], m.target.step[to.second]);
  for (int y = lines.first; y < lines.first + lines.count; ++y)
    splitPairs(m.source.row(1, y), lines.samples, m.target.row(to.first, y), m.target.row(to.second, y));
}

void mergePairs420(const Move& m, const Share& rows) {
  copyLuma(m, rows);
  const ChromaPlanes from = chromaPlanes(m.targetOrder, m.sourceOrder);
  const ChromaLines lines(m, rows, m.target.step[1], m.source.step[from.first], m.source.step[from.second]);
  for (int y = lines.first; y < lines.first + lines.count; ++y)
    mergePairs(m.source.row(from.first, y), m.source.row(from.second, y), lines.samples, m.target.row(1, y));
}

void splitYuyv(const Move& m, const Share& rows) {
  const ChromaPlanes to = chromaPlanes(m.sourceOrder, m.targetOrder);
  for (int y = rows.first; y < rows.last; ++y)
    splitBoth<0>(m.source, {0, y, m.size.width, 1, m.size.height},
                 {{m.target.row(0, y), m.target.row(to.first, y), m.target.row(to.second, y)}});
}

// Each two bytes change places.
void swapBytes(const Move& m, const Share& rows) {
  for (int y = rows.first; y < rows.last; ++y) {
    const uint8_t* in = m.source.row(0, y);
    uint8_t* out = m.target.row(0, y);
    const ptrdiff_t bytes = ptrdiff_t{2} * m.size.width;
    ptrdiff_t i = 0;
    for (; i + kVec <= bytes; i += kVec) {
      const Vec v = load(in + i);
      store(out + i, bitOr(shiftLeft16<8>(v), shiftRight16<8>(v)));
    }
    for (; i < bytes; i += 2) {
      const uint8_t first = in[i];
      out[i] = in[i + 1];
      out[i + 1] = first;
    }
  }
}

// Cb and Cr change places between Y0 and Y1. An odd last pixel has the first of them
// only: it gets that of the pair before for the other.
void swapChroma(const Move& m, const Share& rows) {
  for (int y = rows.first; y < rows.last; ++y) {
    const uint8_t* in = m.source.row(0, y);
    uint8_t* out = m.target.row(0, y);
    const ptrdiff_t bytes = ptrdiff_t{4} * (m.size.width / 2);
    const uint8_t lastChroma = bytes > 0 ? in[bytes - 1] : kNeutralChroma;
    ptrdiff_t i = 0;
    for (; i + kVec <= bytes; i += kVec) {
      const Vec v = load(in + i), chroma = shiftRight16<8>(v);
      store(out + i, bitOr(bitAnd(v, all16(0xFF)), bitOr(shiftLeft32<24>(chroma), shiftRight32<8>(chroma))));
    }
    for (; i < bytes; i += 4) {
      const uint8_t first = in[i + 1];
      out[i] = in[i];
      out[i + 1] = in[i + 3];
      out[i + 2] = in[i + 2];
      out[i + 3] = first;
    }
    if (m.size.width % 2 == 0) continue;
    out[bytes] = in[bytes];
    out[bytes + 1] = lastChroma;
  }
}

void packRow(const uint8_t* in, bool swapped, ptrdiff_t n, uint8_t* out) {
  const auto pack = [&](uint8_t* to, const uint8_t* from) {
    const Vec3 v = load3<1>(from);
    storeFields<5, 6, 5>(to, swapped ? Vec3{v.c, v.b, v.a} : v);
  };
  ptrdiff_t i = 0;
  for (; i + kVec <= n; i += kVec) pack(out + 2 * i, in + 3 * i);
  if (i == n) return;
  uint8_t rest[3 * kVec], packed[2 * kVec];
  __builtin_memcpy(rest, in + 3 * i, 3 * (n - i));
  pack(packed, rest);
  __builtin_memcpy(out + 2 * i, packed, 2 * (n - i));
}

// Three bytes to 5, 6 and 5 bits. Rows without padding are one long row.
void packThree(const Move& m, const Share& rows) {
  const bool swapped = m.sourceOrder[0] != m.targetOrder[0];
  const ptrdiff_t width = m.size.width;
  if (m.source.step[0] == 3 * width && m.target.step[0] == 2 * width)
    return packRow(m.source.row(0, rows.first), swapped, width * (rows.last - rows.first),
                   m.target.row(0, rows.first));
  for (int y = rows.first; y < rows.last; ++y)
    packRow(m.source.row(0, y), swapped, width, m.target.row(0, y));
}

}  // namespace

const DirectCopy kDirectCopies[] = {
    {&kC3, &kRgb565, ChromaMove::any, packThree},
    {&kP2x420, &kP3x420, ChromaMove::any, splitPairs420},
    {&kP3x420, &kP2x420, ChromaMove::any, mergePairs420},
    {&kYuyv, &kP3x422, ChromaMove::any, splitYuyv},
    {&kYuyv, &kUyvy, ChromaMove::kept, swapBytes},
    {&kUyvy, &kYuyv, ChromaMove::kept, swapBytes},
    {&kYuyv, &kYuyv, ChromaMove::swapped, swapChroma},
};

}  // namespace qor
