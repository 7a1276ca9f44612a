#include "calls.h"

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
#define EXTRA_None(T)
#define EXTRA_Alpha(T) , static_cast<T>(c.alpha)
#define EXTRA_Coeffs(T) , c.coeffs
#define EXTRA_Layout(T) , c.layout

}  // namespace

const std::vector<Entry>& entries() {
  static const std::vector<Entry> all = {
#define QORCC_FUNCTION(name, source, target, extra, sourceType, targetType, ...) \
  {#name, #source, #target, #extra, [](const Call& c) {                          \
     return name(SRC_##source(Qor##sourceType), DST_##target(Qor##targetType),   \
                 c.size EXTRA_##extra(Qor##targetType));                         \
   }},
#include "qorccfunctions.def"
#undef QORCC_FUNCTION
  };
  return all;
}

Call callOf(const Image& source, const Image& target) {
  static const float coeffs[3] = {0.25f, 0.5f, 0.125f};
  Call c;
  for (int p = 0; p < source.planeCount(); ++p)
    c.source[p] = source.plane(p), c.sourceStep[p] = source.step(p);
  for (int p = 0; p < target.planeCount(); ++p)
    c.target[p] = target.plane(p), c.targetStep[p] = target.step(p);
  c.size = {source.width, source.height};
  c.coeffs = coeffs;
  return c;
}
