#include "convert.h"

#include "defaultfloats.h"
#include "qorcc.h"
#include "simd.h"

namespace qor {
namespace {

QorStatus checkPointers(const Format& format, const Argument& image) {
  if (image.hasNull) return qorStsNullPtrErr;
  for (int p = 0; p < format.pointers; ++p)
    if (!image.plane[p]) return qorStsNullPtrErr;
  return qorStsNoErr;
}

QorStatus checkSteps(const Format& format, const Argument& image, int width, int elementSize) {
  if (image.isTight) return qorStsNoErr;
  for (int p = 0; p < format.pointers; ++p)
    if (image.step[p] < format.rowBytes(p, width, elementSize)) return qorStsStepErr;
  return qorStsNoErr;
}

bool isLayout(int layout) {
  return layout == qoriSliceUpper || layout == qoriSliceMiddle || layout == qoriSliceLower ||
         layout == qoriSliceWhole;
}

QorStatus check(const Function& f, const Argument& source, const Argument& target, QoriSize size,
                const Extras& extras) {
  QorStatus status = checkPointers(f.source, source);
  if (status == qorStsNoErr) status = checkPointers(f.target, target);
  if (status == qorStsNoErr && extras.hasCoeffs && !extras.coeffs) status = qorStsNullPtrErr;
  if (status == qorStsNoErr && extras.problem == qorStsNullPtrErr) status = extras.problem;
  if (status == qorStsNoErr && (size.width < 1 || size.height < 1)) status = qorStsSizeErr;
  if (status == qorStsNoErr) status = checkSteps(f.source, source, size.width, f.sourceSize);
  if (status == qorStsNoErr) status = checkSteps(f.target, target, size.width, f.targetSize);
  if (status == qorStsNoErr && !isLayout(extras.layout)) status = qorStsBadArgErr;
  return status == qorStsNoErr ? extras.problem : status;
}

ptrdiff_t stepOf(const Format& format, const Argument& image, int p, int width, int elementSize) {
  return image.isTight ? static_cast<ptrdiff_t>(format.rowBytes(p, width, elementSize)) : image.step[p];
}

Source sourceOf(const Function& f, const Argument& image, QoriSize size, int layout) {
  Source s;
  for (int p = 0; p < f.source.pointers; ++p) {
    s.plane[p] = static_cast<const uint8_t*>(image.plane[p]);
    s.step[p] = stepOf(f.source, image, p, size.width, f.sourceSize);
  }
  const bool hasAbove = layout == qoriSliceMiddle || layout == qoriSliceLower;
  const bool hasBelow = layout == qoriSliceMiddle || layout == qoriSliceUpper;
  s.firstChroma = hasAbove ? -1 : 0;
  s.lastChroma = (size.height - 1) / 2 + (hasBelow ? 1 : 0);
  return s;
}

Target targetOf(const Function& f, const Argument& image, QoriSize size) {
  Target t;
  for (int p = 0; p < f.target.pointers; ++p) {
    t.plane[p] = const_cast<uint8_t*>(static_cast<const uint8_t*>(image.plane[p]));
    t.step[p] = stepOf(f.target, image, p, size.width, f.targetSize);
  }
  return t;
}

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

// The tiles of one call and what happens to them.
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

Matrix matrixOf(const Function& f, const Source& source, QoriSize size, const Extras& extras) {
  if (extras.matrix) return *extras.matrix;
  if (f.transform.prepare) return f.transform.prepare(source, size);
  Matrix m = *f.transform.matrix;
  if (extras.coeffs)
    for (int i = 0; i < 3; ++i) m.m[0][i] = extras.coeffs[i];
  return m;
}

// Groups of rows in equal parts.
Share share(int height, int groupRows, int part, int parts) {
  const int64_t groups = (int64_t{height} + groupRows - 1) / groupRows;
  const int64_t first = groups * part / parts * groupRows, last = groups * (part + 1) / parts * groupRows;
  return {static_cast<int>(first), static_cast<int>(last < height ? last : height)};
}

struct Job {
  const Function& f;
  const Source source;
  const Target target;
  const Matrix matrix;
  const QoriSize size;
  const void* alpha;  // null: none
};

// For samples that only move from one place to another.
Copy directCopy(const Function& f) {
  if (f.transform.apply) return nullptr;
  const ChromaMove chroma = f.sourceOrder[1] == f.targetOrder[1] ? ChromaMove::kept : ChromaMove::swapped;
  for (const DirectCopy& row : kDirectCopies)
    if (&f.source == row.source && &f.target == row.target &&
        (row.chroma == ChromaMove::any || row.chroma == chroma))
      return row.copy;
  return nullptr;
}

// Rows without padding of pixels that nothing ties to their row are one long row.
bool isTight(const Format& format, const ptrdiff_t* step, int width, int elementSize) {
  const bool wholePairs = format.half && format.half->isPacked && width % 2 == 0;
  if (format.isPlaced || (format.hshift != 0 && !wholePairs)) return false;
  for (int p = 0; p < format.pointers; ++p)
    if (step[p] != format.rowBytes(p, width, elementSize)) return false;
  return true;
}

bool isOneRow(const Job& job, const Share& rows) {
  const Function& f = job.f;
  // One more tile's pixels are still an int.
  return int64_t{job.size.width} * (rows.last - rows.first) <= INT32_MAX - kTilePixels &&
         isTight(f.source, job.source.step, job.size.width, f.sourceSize) &&
         isTight(f.target, job.target.step, job.size.width, f.targetSize);
}

void convertTiles(const Job& job, const Share& rows) {
  Run run(job.f, job.source, job.target, job.matrix);
  if (job.alpha) run.setAlpha(job.alpha);
  run.rows(rows.first, rows.last, job.size);
}

void convertOneRow(const Job& job, const Share& rows) {
  Source source;
  Target target;
  for (int p = 0; p < job.f.source.pointers; ++p) source.plane[p] = job.source.row(p, rows.first);
  for (int p = 0; p < job.f.target.pointers; ++p) target.plane[p] = job.target.row(p, rows.first);
  const QoriSize row = {job.size.width * (rows.last - rows.first), 1};
  convertTiles({job.f, source, target, job.matrix, row, job.alpha}, {0, 1});
}

void convertRows(const Job& job, const Share& rows) {
  if (const Copy copy = directCopy(job.f))
    return copy({job.source, job.target, job.f.sourceOrder, job.f.targetOrder, job.size}, rows);
  const DefaultFloats floats;
  isOneRow(job, rows) ? convertOneRow(job, rows) : convertTiles(job, rows);
}

void convertAll(const Job& job, int threads) {
  const int groupRows = job.f.target.groupRows, groups = (job.size.height - 1) / groupRows + 1;
  if (threads > groups) threads = groups;
  if (threads == 1) return convertRows(job, {0, job.size.height});
#pragma omp parallel num_threads(threads)
  convertRows(job, share(job.size.height, groupRows, omp_get_thread_num(), omp_get_num_threads()));
}

}  // namespace

QorStatus convert(const Function& f, Argument source, Argument target, QoriSize size, const Extras& extras) {
  const QorStatus status = check(f, source, target, size, extras);
  if (status != qorStsNoErr) return status;
  const DefaultFloats floats;
  const Source from = sourceOf(f, source, size, extras.layout);
  const Matrix matrix = matrixOf(f, from, size, extras);
  convertAll({f, from, targetOf(f, target, size), matrix, size, extras.alpha}, qorGetState().threads);
  return qorStsNoErr;
}

}  // namespace qor
