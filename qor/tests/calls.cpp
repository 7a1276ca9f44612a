#include "calls.h"

#include <algorithm>

namespace {

template <class T>
const T* const* sourcePlanes(const Call& c) {
  return c.noSourcePlanes ? nullptr : reinterpret_cast<const T* const*>(c.source);
}
template <class T>
T* const* targetPlanes(const Call& c) {
  return c.noTargetPlanes ? nullptr : reinterpret_cast<T* const*>(c.target);
}
const int* sourceSteps(const Call& c) {
  return c.noSourceSteps ? nullptr : c.sourceStep;
}
const int* targetSteps(const Call& c) {
  return c.noTargetSteps ? nullptr : c.targetStep;
}

#define SRC_Packed(T) static_cast<const T*>(c.source[0]), c.sourceStep[0]
#define SRC_Planes(T) sourcePlanes<T>(c), c.sourceStep[0]
#define SRC_PlanesSteps(T) sourcePlanes<T>(c), sourceSteps(c)
#define SRC_Pair(T) SRC_Packed(T), static_cast<const T*>(c.source[1]), c.sourceStep[1]
#define SRC_PackedTight(T) static_cast<const T*>(c.source[0])
#define SRC_PlanesTight(T) sourcePlanes<T>(c)
#define DST_Packed(T) static_cast<T*>(c.target[0]), c.targetStep[0]
#define DST_Planes(T) targetPlanes<T>(c), c.targetStep[0]
#define DST_PlanesSteps(T) targetPlanes<T>(c), targetSteps(c)
#define DST_Pair(T) DST_Packed(T), static_cast<T*>(c.target[1]), c.targetStep[1]
#define DST_PackedTight(T) static_cast<T*>(c.target[0])
#define DST_PlanesTight(T) targetPlanes<T>(c)
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

const std::vector<Entry> kConversions = {
#define QORCC_FUNCTION(name, source, target, extra, sourceType, targetType, ...) \
  {#name, #source, #target, #extra, [](const Call& c) {                          \
     return name(SRC_##source(Qor##sourceType), DST_##target(Qor##targetType),   \
                 c.size EXTRA_##extra(Qor##targetType));                         \
   }},
#include "qorccfunctions.def"
#undef QORCC_FUNCTION
};

const std::vector<Entry> kParameterised = {
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

}  // namespace

const std::vector<Entry>& conversions() {
  return kConversions;
}

const std::vector<Entry>& entries() {
  static const std::vector<Entry> all = [] {
    std::vector<Entry> both = kConversions;
    both.insert(both.end(), kParameterised.begin(), kParameterised.end());
    return both;
  }();
  return all;
}

QoriSize sourceSize(const Entry& e, QoriSize target) {
  return e.isMosaic() ? QoriSize{target.width + 1, target.height + 1} : target;
}

Call parameters(const Entry& e, QoriSize target) {
  static const float coeffs[3] = {0.2126f, 0.7152f, 0.0722f};
  static const float twist[4][4] = {
      {0.5f, 0.75f, -0.25f, 3}, {-1, 0.125f, 1.5f, -20}, {0.3f, 0.3f, 0.3f, 0.5f}, {0.25f, -0.5f, 0.75f, 2}};
  Call c;
  c.size = target;
  c.coeffs = coeffs;
  c.twist = twist;
  c.noise = target.width % 3 * 20;
  c.dither = QoriDitherType(target.width % 5);
  c.mosaic = sourceSize(e, target);
  c.roi = {target.width % 2, target.height % 2, target.width, target.height};
  return c;
}

Call callOf(const Entry& e, const Image& source, Image& target) {
  Call c = parameters(e, {target.width, target.height});
  for (int p = 0; p < source.planeCount(); ++p)
    c.source[p] = source.plane(p), c.sourceStep[p] = source.step(p);
  for (int p = 0; p < target.planeCount(); ++p)
    c.target[p] = target.plane(p), c.targetStep[p] = target.step(p);
  if (e.inPlace()) target.copyPixels(source);
  thread_local std::vector<Qor16u> scratch;
  scratch.resize(std::max(scratch.size(), size_t(kScratchRows) * (target.width + 6)));
  c.scratch = scratch.data();
  c.scratchStep = (target.width + 6) * 2;
  return c;
}
