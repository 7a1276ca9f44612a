#include "calls.h"

#include <stdexcept>

namespace {

#define SOURCES(T) (c.noSourcePlanes ? nullptr : reinterpret_cast<const T* const*>(c.source))
#define TARGETS(T) (c.noTargetPlanes ? nullptr : reinterpret_cast<T* const*>(c.target))
#define SOURCE_STEPS (c.noSourceSteps ? nullptr : c.sourceStep)
#define TARGET_STEPS (c.noTargetSteps ? nullptr : c.targetStep)

#define SRC_Packed(T) static_cast<const T*>(c.source[0]), c.sourceStep[0]
#define SRC_Planes(T) SOURCES(T), c.sourceStep[0]
#define SRC_PlanesSteps(T) SOURCES(T), SOURCE_STEPS
#define SRC_Pair(T) SRC_Packed(T), static_cast<const T*>(c.source[1]), c.sourceStep[1]
#define SRC_PackedTight(T) static_cast<const T*>(c.source[0])
#define SRC_PlanesTight(T) SOURCES(T)
#define DST_Packed(T) static_cast<T*>(c.target[0]), c.targetStep[0]
#define DST_Planes(T) TARGETS(T), c.targetStep[0]
#define DST_PlanesSteps(T) TARGETS(T), TARGET_STEPS
#define DST_Pair(T) DST_Packed(T), static_cast<T*>(c.target[1]), c.targetStep[1]
#define DST_PackedTight(T) static_cast<T*>(c.target[0])
#define DST_PlanesTight(T) TARGETS(T)
#define IMAGES_Packed(T) SRC_Packed(T), DST_Packed(T)
#define IMAGES_Planes(T) SRC_Planes(T), DST_Planes(T)
#define IMAGES_PackedInPlace(T) DST_Packed(T)
#define IMAGES_PlanesInPlace(T) DST_Planes(T)
#define EXTRA_None(T)
#define EXTRA_Alpha(T) , static_cast<T>(c.alpha)
#define EXTRA_Coeffs(T) , c.coeffs
#define EXTRA_Layout(T) , c.layout
#define EXTRA_Twist(T) , c.twist
#define EXTRA_Span(T) , c.vMin, c.vMax

#define MOSAIC(T) static_cast<const T*>(c.source[0]), c.roi, c.mosaic, c.sourceStep[0], DST_Packed(T), c.grid
#define SCRATCH(T) static_cast<T*>(c.scratch), c.scratchStep

const std::vector<Entry> kEntries = {
#define QORCC_FUNCTION(name, source, target, extra, sourceType, targetType, ...) \
  {#name, #source, #target, #extra, [](const Call& c) {                          \
     return name(SRC_##source(Qor##sourceType), DST_##target(Qor##targetType),   \
                 c.size EXTRA_##extra(Qor##targetType));                         \
   }},
#include "qorccfunctions.def"
#undef QORCC_FUNCTION
#define QORCC_POINTWISE(name, images, extra, type, ...) \
  {#name, #images, #images, #extra,                     \
   [](const Call& c) { return name(IMAGES_##images(Qor##type), c.size EXTRA_##extra(Qor##type)); }},
#define QORCC_REDUCE(name, sourceType, targetType, ...)                                               \
  {#name, "Packed", "Packed", "Reduce", [](const Call& c) {                                           \
     return name(SRC_Packed(Qor##sourceType), DST_Packed(Qor##targetType), c.size, c.noise, c.dither, \
                 c.levels);                                                                           \
   }},
#include "qorccparameters.def"
    {"qoriCFAToRGB_8u_C1C3R", "Packed", "Packed", "Bilinear",
     [](const Call& c) { return qoriCFAToRGB_8u_C1C3R(MOSAIC(Qor8u), c.interpolation); }},
    {"qoriCFAToRGB_16u_C1C3R", "Packed", "Packed", "Bilinear",
     [](const Call& c) { return qoriCFAToRGB_16u_C1C3R(MOSAIC(Qor16u), c.interpolation); }},
    {"qoriDemosaicAHD_8u_C1C3R", "Packed", "Packed", "Adaptive",
     [](const Call& c) { return qoriDemosaicAHD_8u_C1C3R(MOSAIC(Qor8u), SCRATCH(Qor8u)); }},
    {"qoriDemosaicAHD_16u_C1C3R", "Packed", "Packed", "Adaptive",
     [](const Call& c) { return qoriDemosaicAHD_16u_C1C3R(MOSAIC(Qor16u), SCRATCH(Qor16u)); }},
};

Layout scratchOf(const Names& n) {
  Layout l;
  l.type = n.target.type;
  l.channels = 1;
  return l;
}

constexpr int kScratchRows = 30, kScratchEdges = 6;

}  // namespace

const std::vector<Entry>& entries() {
  return kEntries;
}

const Entry& entryOf(const std::string& name) {
  for (const Entry& e : entries())
    if (e.name == name) return e;
  throw std::runtime_error("no function " + name);
}

Example::Example(const Entry& e, QoriSize size, int padding, Rows rows)
    : entry(e),
      names(parse(e.name)),
      source(names.source, size.width + e.isMosaic(), size.height + e.isMosaic(),
             {padding, rows, !e.sourcePart.ends_with("Tight")}),
      target(names.target, size.width, size.height, {2 * padding, rows, !e.targetPart.ends_with("Tight")}),
      scratch_(scratchOf(names), size.width + kScratchEdges, e.extra == "Adaptive" ? kScratchRows : 1,
               {0, rows}) {}

Call Example::call() {
  static const float coeffs[3] = {0.2126f, 0.7152f, 0.0722f};
  static const float twist[4][4] = {
      {0.5f, 0.75f, -0.25f, 3}, {-1, 0.125f, 1.5f, -20}, {0.3f, 0.3f, 0.3f, 0.5f}, {0.25f, -0.5f, 0.75f, 2}};
  Call c;
  for (int p = 0; p < source.planeCount(); ++p)
    c.source[p] = source.row(p, 0), c.sourceStep[p] = source.step(p);
  for (int p = 0; p < target.planeCount(); ++p)
    c.target[p] = target.row(p, 0), c.targetStep[p] = target.step(p);
  c.scratch = scratch_.row(0, 0);
  c.scratchStep = scratch_.step(0);
  c.size = {target.width, target.height};
  c.coeffs = coeffs;
  c.twist = twist;
  c.noise = target.width % 3 * 20;
  c.dither = QoriDitherType(target.width % 5);
  c.mosaic = {source.width, source.height};
  c.roi = {target.width % 2, target.height % 2, target.width, target.height};
  entry.inPlace() ? target.copyPixels(source) : target.fillBytes(0xA5);
  return c;
}

std::string Example::name() const {
  return entry.name + " " + std::to_string(target.width) + "x" + std::to_string(target.height);
}

std::vector<QoriSize> awkwardSizes() {
  std::vector<QoriSize> all;
  for (int width = 1; width <= 70; ++width) all.push_back({width, 1 + width % 8});
  for (int height = 1; height <= 8; ++height)
    for (int width : {1, 2, 3, 5, 18}) all.push_back({width, height});
  return all;
}
