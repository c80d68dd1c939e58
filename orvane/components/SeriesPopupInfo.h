/// The texts that pop up when a viewer points at the values of a series.
#pragma once

#include "orvane/components/PopupLook.h"
#include "orvane/components/VrmlNames.h"
#include "orvane/scene/GraphProtos.h"

#include <cstdint>

namespace orvane {

/// A strip along the series, which shapes it. Lengths are in scene units.
class ORVANE_API SeriesPopupInfo final : public PopupLook<scene::PopupStrip> {
 public:
  static constexpr const char* kClassName = "SeriesPopupInfo";
  const host::TypeInfo& Type() const override;

  SeriesPopupInfo();

  /// The texts themselves, one a value; a live list.
  scene::MFString& PopupText() { return Shape()->popupTexts; }
  /// Where a text stands, seen from the value pointed at. Default VRML_TOP; values outside the
  /// enumeration are ignored.
  VRMLPopupAlignment Alignment() const;
  void Alignment(VRMLPopupAlignment alignment);

  /// Number of values, >= 1.
  std::int16_t Count() const;
  void Count(std::int16_t count);
  /// Reach of the strip around a value, > 0.
  float radius() const { return Shape()->stripRadius.Value(); }
  void radius(float value);
  /// Extent of the strip along z, > 0.
  float Depth() const { return Shape()->stripDepth.Value(); }
  void Depth(float depth);
  /// The heights themselves, which the series fills.
  scene::MFFloat& Height() { return Shape()->pointHeights; }
  /// Distance between neighbouring values along x, > 0.
  float Spacing() const { return Shape()->pointSpacing.Value(); }
  void Spacing(float spacing);
};

}  // namespace orvane
