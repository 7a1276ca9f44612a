// run.h: the tiles of one call and what happens to them.
#ifndef QOR_CC_RUN_H
#define QOR_CC_RUN_H

#include "convert.h"
#include "simd.h"

namespace qor {
namespace {

template <class E>
void fillAlpha(Tile& tile, const void* alpha) {
  E value, *row = reinterpret_cast<E*>(tile.bytes[3][0]);
  __builtin_memcpy(&value, alpha, sizeof value);
  for (size_t i = 0; i < kTileBytes / sizeof value; ++i) row[i] = value;
}

// The log of 1, 2 and 4.
int sizeIndex(int elementSize) {
  return elementSize / 2;
}

// Chroma that two pixels of a row share is worked on as it is, if the matrix allows.
enum class Chroma { full, fromHalf, toHalf, halfToHalf, none };

Chroma chromaOf(const Function& f, const Matrix& matrix) {
  if (f.transform.apply == applyLuma) return Chroma::none;
  if (!f.transform.apply && f.source.half && f.target.half) return Chroma::halfToHalf;
  if (f.transform.apply != applyFixed) return Chroma::full;
  if (f.source.half && matrix.fromLuma.times != 0) return Chroma::fromHalf;
  return f.target.half && matrix.luma.isKnown && matrix.toHalf.isKnown ? Chroma::toHalf : Chroma::full;
}

// Null: in stages.
Fused fusedOf(const Function& f) {
  if (&f.source != &kC3 || f.sourceOrder[0] != 0 || &f.target != &kC1) return nullptr;
  if (f.transform.apply == applyLuma) return lumaOfThree;
  return f.transform.apply == applyGray<Qor32f> ? grayOfThree : nullptr;
}

class Run {
 public:
  Run(const Function& f, const Source& source, const Target& target, const Matrix& matrix)
      : f_(f),
        source_(source),
        target_(target),
        matrix_(matrix),
        load_(f.source.load[sizeIndex(f.sourceSize)]),
        store_(f.target.store[sizeIndex(f.targetSize)]),
        pixels_(kTileBytes / (f.sourceSize > f.targetSize ? f.sourceSize : f.targetSize)),
        keepsAlpha_(f.source.channels == 4 && f.target.channels == 4),
        fused_(fusedOf(f)),
        chroma_(chromaOf(f, matrix)),
        packs_(f.transform.apply == applyFixed && chroma_ != Chroma::toHalf && !keepsAlpha_ &&
               (&f.target == &kC3 || &f.target == &kC4)),
        groupRows_(chroma_ == Chroma::fromHalf && f.source.groupRows > f.target.groupRows
                       ? f.source.groupRows
                       : f.target.groupRows) {}

  void setAlpha(const void* alpha) {
    const auto fill = f_.targetSize == 1   ? fillAlpha<Bytes1>
                      : f_.targetSize == 2 ? fillAlpha<Bytes2>
                                           : fillAlpha<Bytes4>;
    fill(out_, alpha);
  }

  // Rows from `first` to before `last`, which begin with a group of the target.
  void rows(int first, int last, QoriSize size) {
    for (int y = first; y < last; y += groupRows_)
      for (int x = 0; x < size.width; x += pixels_) {
        const int right = size.width - x, below = last - y;
        tile({x, y, right < pixels_ ? right : pixels_, below < groupRows_ ? below : groupRows_, size.height});
      }
  }

 private:
  void tile(const Place& at) {
    if (chroma_ == Chroma::fromHalf && packs_ && !f_.source.half->isPacked) return packRows(at);
    for (int r = 0; r < at.rows; r += f_.target.groupRows) {
      const int left = at.rows - r, rows = left < f_.target.groupRows ? left : f_.target.groupRows;
      group({at.x, at.y + r, at.n, rows, at.height});
    }
  }

  // Rows that are stored together.
  void group(const Place& at) {
    if (fused_) return fuseRow(at);
    if (chroma_ == Chroma::halfToHalf) return moveGroup(at);
    if (chroma_ == Chroma::toHalf) return halveGroup(at);
    for (int r = 0; r < at.rows; ++r) row({at.x, at.y + r, at.n, 1, at.height}, r);
    if (chroma_ != Chroma::none && !packs_) store_(target_, at, out_.rows(f_.targetOrder));
  }

  // Of a target that is stored row by row.
  void fuseRow(const Place& at) {
    const ptrdiff_t from = ptrdiff_t{f_.source.perPixel} * f_.sourceSize * at.x,
                    to = ptrdiff_t{f_.target.perPixel} * f_.targetSize * at.x;
    fused_(source_.row(0, at.y) + from, target_.row(0, at.y) + to, at.n, matrix_);
  }

  void halveGroup(const Place& at) {
    const bool isPacked = &f_.source == &kC3;
    for (int r = 0; r < at.rows && !isPacked; ++r) rowOfLuma({at.x, at.y + r, at.n, 1, at.height}, r);
    LineSet lines;
    for (int c = 0; (lines = f_.target.half->lines(c, at.rows)).count != 0; ++c) {
      const TileRows out = rowOf(out_, kOrder_abc, c);
      if (isPacked)
        halveThree(pixelRows(at, lines), f_.sourceOrder[0] != 0, at.n, out.plane[1], out.plane[2], matrix_);
      else
        chromaOfPairs(rowOf(in_, kOrder_abc, lines.first), lines.count, lines.apart * kRowBytes, out, at.n,
                      matrix_.toHalf);
    }
    f_.target.half->store(target_, at, out_.rows(f_.targetOrder));
  }

  PixelRows pixelRows(const Place& at, const LineSet& lines) {
    PixelRows rows = {};
    for (int k = 0; k < lines.count; ++k) {
      const int r = lines.first + k * lines.apart;
      const Place place = {at.x, at.y + r, at.n, 1, at.height};
      rows.pixels[k] = pixelsOfThree(place);
      rows.luma[k] = lumaRows(place, rowOf(out_, kOrder_abc, r)).plane[0];
    }
    return rows;
  }

  const uint8_t* pixelsOfThree(const Place& at) const { return source_.row(0, at.y) + ptrdiff_t{3} * at.x; }

  // Samples only move; two chroma lines may become one.
  void moveGroup(const Place& at) {
    for (int r = 0; r < at.rows; ++r)
      moveRow({at.x, at.y + r, at.n, 1, at.height}, rowOf(in_, f_.sourceOrder, r));
    LineSet lines;
    for (int c = 0; (lines = f_.target.half->lines(c, at.rows)).count != 0; ++c)
      for (int p = 1; p < 3 && lines.count == 2; ++p)
        averageLines(in_.bytes[p][lines.first], lines.apart * kRowBytes, (at.n + 1) / 2);
    f_.target.half->store(target_, at, in_.rows(f_.targetOrder));
  }

  void moveRow(const Place& at, const TileRows& in) {
    f_.source.half->split(source_, at, in);
    const uint8_t* luma = f_.source.half->isPacked ? in.plane[0] : source_.row(0, at.y) + at.x;
    uint8_t* to = f_.target.half->isPacked ? in.plane[0] : target_.row(0, at.y) + at.x;
    if (to != luma) __builtin_memcpy(to, luma, at.n);
  }

  static void averageLines(uint8_t* line, int apart, int n) {
    for (int i = 0; i < n; i += kVec) store(line + i, mean8(load(line + i), load(line + apart + i)));
  }

  void row(const Place& at, int r) {
    const TileRows out = rowOf(out_, kOrder_abc, r);
    if (!f_.transform.apply) return load_(source_, at, rowOf(out_, f_.sourceOrder, r));
    if (chroma_ == Chroma::fromHalf) return rowFromHalf(at, out);
    if (chroma_ == Chroma::none) return rowOfLuma(at, r);
    const TileRows in = planesOf(at);
    if (packs_) return multiplyFixed(in, bytesOut(at, out), at.n, matrix_);
    // First, since a transform of four channels writes alpha anew.
    if (keepsAlpha_) __builtin_memcpy(out.plane[3], in.plane[3], at.n * f_.targetSize);
    f_.transform.apply(in, out, at.n, matrix_);
  }

  void rowOfLuma(const Place& at, int r) {
    const TileRows in = rowOf(in_, kOrder_abc, r), luma = lumaRows(at, rowOf(out_, kOrder_abc, r));
    load_(source_, at, rowOf(in_, f_.sourceOrder, r));
    applyLuma(in, luma, at.n, matrix_);
  }

  // Luma goes to where it stays, unless other bytes lie between.
  TileRows lumaRows(const Place& at, TileRows out) const {
    if (!f_.target.half || !f_.target.half->isPacked) out.plane[0] = target_.row(0, at.y) + at.x;
    return out;
  }

  // Packed pixels are made at once.
  BytesOut bytesOut(const Place& at, const TileRows& out) const {
    BytesOut to = {{out.plane[0], out.plane[1], out.plane[2]}};
    if (!packs_) return to;
    to.stride = f_.target.perPixel;
    to.pixels = target_.row(0, at.y) + ptrdiff_t{to.stride} * at.x;
    to.swapped = f_.targetOrder[0] != 0;
    to.alpha = out_.bytes[3][0][0];
    return to;
  }

  // The source's own planes where transforms, which work on whole vectors, stay inside.
  TileRows planesOf(const Place& at) {
    if (f_.source.isPlanar() && at.n * f_.sourceSize % 64 == 0 && isAligned(at.y)) {
      TileRows own = {};
      for (int p = 0; p < f_.source.channels; ++p)
        own.plane[f_.sourceOrder[p]] =
            const_cast<uint8_t*>(source_.row(p, at.y)) + ptrdiff_t{at.x} * f_.sourceSize;
      return own;
    }
    load_(source_, at, in_.rows(f_.sourceOrder));
    // Numbers, not whatever was there, for the vector behind the last pixel.
    for (int p = 0; p < f_.source.channels; ++p)
      __builtin_memset(in_.bytes[p][0] + at.n * f_.sourceSize, 0, kRowBytes - kTileBytes);
    return in_.rows(kOrder_abc);
  }

  bool isAligned(int y) const {
    uintptr_t bits = 0;
    for (int p = 0; p < f_.source.channels; ++p) bits |= reinterpret_cast<uintptr_t>(source_.row(p, y));
    return bits % f_.sourceSize == 0;
  }

  // Rows one below the other with the same chroma at once.
  void packRows(const Place& at) {
    for (int r = 0, count; r < at.rows; r += count) {
      const int y = at.y + r, line = f_.source.half->line(y, at.height);
      for (count = 1; r + count < at.rows; ++count)
        if (f_.source.half->line(y + count, at.height) != line) break;
      const Place first = {at.x, y, at.n, 1, at.height};
      applyTerms(source_.row(0, y) + at.x, {count, source_.step[0], target_.step[0]}, termsAt(first, line),
                 bytesOut(first, out_.rows(kOrder_abc)), at.n, matrix_.fromLuma);
    }
  }

  void rowFromHalf(const Place& at, const TileRows& out) {
    if (f_.source.half->isPacked) return rowFromPacked(at, out);
    applyTerms(source_.row(0, at.y) + at.x, {}, termsAt(at, f_.source.half->line(at.y, at.height)),
               bytesOut(at, out), at.n, matrix_.fromLuma);
  }

  const ChromaTerms& termsAt(const Place& at, int line) {
    // Interlaced groups have two chroma lines in turn.
    const int k = f_.source.groupRows == 4 ? line & 1 : 0;
    if (held_[k].line != line || held_[k].x != at.x) {
      const bool inPairs = f_.source.half->elements == 2;
      f_.source.half->load(source_, at, in_.rows(inPairs ? kOrder_abc : f_.sourceOrder));
      termsOfChroma(in_.rows(kOrder_abc), inPairs ? pairOrder() : ChromaOrder::planes, at.n, matrix_.fromLuma,
                    terms_[k]);
      held_[k] = {line, at.x};
    }
    return terms_[k];
  }

  void rowFromPacked(const Place& at, const TileRows& out) {
    const uint8_t* in = source_.row(0, at.y) + ptrdiff_t{2} * at.x;
    const int lumaAt = f_.source.half->lumaAt, second = 2 * at.n - 3 - lumaAt;
    // Behind an odd last pixel the other half of its pair lies beyond the row: that of
    // the pair before.
    const uint8_t lastChroma = at.x + at.n > 1 ? in[second] : kNeutralChroma;
    applyPacked(in, lumaAt, pairOrder() == ChromaOrder::swappedPairs, lastChroma, bytesOut(at, out), at.n,
                matrix_.fromLuma);
  }

  ChromaOrder pairOrder() const {
    return f_.sourceOrder[1] == 1 ? ChromaOrder::pairs : ChromaOrder::swappedPairs;
  }

  static TileRows rowOf(Tile& tile, const uint8_t* order, int r) {
    TileRows rows = tile.rows(order);
    for (uint8_t*& plane : rows.plane) plane += r * kRowBytes;
    return rows;
  }

  struct HeldLine {
    int line = -1, x = -1;
  };

  const Function& f_;
  const Source& source_;
  const Target& target_;
  const Matrix& matrix_;
  const Load load_;
  const Store store_;
  const int pixels_;       // of a tile
  const bool keepsAlpha_;  // from the source; otherwise it is the caller's, if written at all
  const Fused fused_;      // null: there is none
  const Chroma chroma_;
  const bool packs_;  // the transform does what the store would
  const int groupRows_;
  Tile in_, out_;
  HeldLine held_[2];
  ChromaTerms terms_[2];
};

}  // namespace
}  // namespace qor

#endif
