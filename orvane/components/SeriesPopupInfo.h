/// The texts that pop up when a viewer points at the values of a series.
#pragma once

#include "orvane/components/ISceneRoot.h"
#include "orvane/components/VrmlNames.h"
#include "orvane/host/Object.h"
#include "orvane/scene/GraphProtos.h"

#include <cstdint>
#include <memory>

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

/// A strip along the series; it is in the scene only while UsePopups is true.
class ORVANE_API SeriesPopupInfo final : public host::Object,
                                         public ISceneRoot,
                                         public ISeriesPopupInfo {
 public:
  static constexpr const char* kClassName = "SeriesPopupInfo";
  const host::TypeInfo& Type() const override;

  SeriesPopupInfo();

  /// The texts themselves, one a value; a live list.
  scene::MFString& PopupText() { return m_strip->popupTexts; }
  /// Where a text stands, seen from the value pointed at. Default VRML_TOP; values outside the
  /// enumeration are ignored.
  VRMLPopupAlignment Alignment() const;
  void Alignment(VRMLPopupAlignment alignment);
  /// Host RGB colours, 0..0xFFFFFF.
  std::int32_t TextColor() const { return m_strip->textColor.Value(); }
  void TextColor(std::int32_t rgb) { m_strip->textColor.Value(rgb); }
  std::int32_t BackgroundColor() const { return m_strip->backgroundColor.Value(); }
  void BackgroundColor(std::int32_t rgb) { m_strip->backgroundColor.Value(rgb); }
  std::int32_t BorderColor() const { return m_strip->borderColor.Value(); }
  void BorderColor(std::int32_t rgb) { m_strip->borderColor.Value(rgb); }
  /// Height of the texts in scene units, > 0. Default 0.5.
  float TextHeight() const { return m_strip->textHeight.Value(); }
  void TextHeight(float height);
  /// Default false.
  bool UsePopups() const { return m_usesPopups; }
  void UsePopups(bool use);

  std::int16_t Count() const override;
  void Count(std::int16_t count) override;
  float radius() const override { return m_strip->stripRadius.Value(); }
  void radius(float value) override;
  float Depth() const override { return m_strip->stripDepth.Value(); }
  void Depth(float depth) override;
  scene::MFFloat& Height() override { return m_strip->pointHeights; }
  float Spacing() const override { return m_strip->pointSpacing.Value(); }
  void Spacing(float spacing) override;

  std::shared_ptr<scene::Node> RootNode() const override { return m_root; }

 private:
  std::shared_ptr<scene::Transform> m_root;
  std::shared_ptr<scene::PopupStrip> m_strip;
  bool m_usesPopups = false;
};

}  // namespace orvane
