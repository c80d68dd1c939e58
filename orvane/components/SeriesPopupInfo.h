/// The texts that pop up when a viewer points at the values of a series.
#pragma once

#include "orvane/components/PopupLook.h"
#include "orvane/components/VrmlNames.h"
#include "orvane/scene/GraphProtos.h"

#include <cstdint>

namespace orvane {

/// How a series shapes its strip. Lengths are in scene units.
class ORVANE_API ISeriesPopupInfo {
 public:
  virtual ~ISeriesPopupInfo() = default;

  /// Number of values, >= 1.
  virtual std::int16_t Count() const = 0;
  virtual void Count(std::int16_t count) = 0;
  /// Reach of the strip around a value, > 0.
  virtual float radius() const = 0;
  virtual void radius(float value) = 0;
  /// Extent of the strip along z, > 0.
  virtual float Depth() const = 0;
  virtual void Depth(float depth) = 0;
  /// The heights themselves, which the series fills.
  virtual scene::MFFloat& Height() = 0;
  /// Distance between neighbouring values along x, > 0.
  virtual float Spacing() const = 0;
  virtual void Spacing(float spacing) = 0;
};

/// A strip along the series.
class ORVANE_API SeriesPopupInfo final : public PopupLook<scene::PopupStrip>,
                                         public ISeriesPopupInfo {
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

  std::int16_t Count() const override;
  void Count(std::int16_t count) override;
  float radius() const override { return Shape()->stripRadius.Value(); }
  void radius(float value) override;
  float Depth() const override { return Shape()->stripDepth.Value(); }
  void Depth(float depth) override;
  scene::MFFloat& Height() override { return Shape()->pointHeights; }
  float Spacing() const override { return Shape()->pointSpacing.Value(); }
  void Spacing(float spacing) override;
};

}  // namespace orvane
