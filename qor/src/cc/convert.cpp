#include "convert.h"

#include "defaultfloats.h"
#include "qorcc.h"
#include "run.h"

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
