/// A chart's key: a coloured shape and a text for each series.
#pragma once

#include "orvane/components/ISceneRoot.h"
#include "orvane/components/SeriesToggleInfo.h"
#include "orvane/components/VrmlNames.h"
#include "orvane/host/Object.h"
#include "orvane/scene/GraphProtos.h"
#include "orvane/scene/ShapeNodes.h"

#include <cstdint>
#include <memory>
#include <string>

namespace orvane {

/// What a chart does with its legend at export.
class ORVANE_API ILegendInfo {
 public:
  virtual ~ILegendInfo() = default;

  /// Adds an entry above those there are, and its check box.
  virtual void AddLegendEntry(const std::shared_ptr<scene::Appearance>& newApp,
                              const std::string& newText) = 0;
  /// Removes all entries and check boxes.
  virtual void ClearLegend() = 0;
  /// The check box of the entry that was added as number `index`, 1...
  virtual std::shared_ptr<scene::Node> Get1CheckBox(std::int16_t index) const = 0;
  virtual std::shared_ptr<scene::Node> BillboardNode() const = 0;
};

/// Entries are stored newest first, so that the first one added is drawn on top; check boxes, when
/// they are in use, stand to the left of the entries at the same pitch.
class ORVANE_API LegendInfo final : public host::Object, public ISceneRoot, public ILegendInfo {
 public:
  static constexpr const char* kClassName = "LegendInfo";
  const host::TypeInfo& Type() const override;

  LegendInfo();

  /// Default BOX_STYLE; values outside the enumeration are ignored.
  LegendKeyStyle KeyStyle() const;
  void KeyStyle(LegendKeyStyle style);
  /// Whether the legend turns about its vertical axis to face the viewer. Default false.
  bool IsBillboarded() const { return m_isBillboarded; }
  void IsBillboarded(bool isBillboarded);
  /// Height of the texts and boxes in scene units, > 0. Default 1. A let also sets the gap between
  /// entries, to 0.35 heights.
  float TextHeight() const { return m_legend->textHeight.Value(); }
  void TextHeight(float height);
  /// Host RGB colour, 0..0xFFFFFF. Default white.
  std::int32_t TextColor() const { return m_legend->textColor.Value(); }
  void TextColor(std::int32_t rgb) { m_legend->textColor.Value(rgb); }
  /// Whether check boxes are shown and wired to the series. Default false.
  bool UseSeriesToggle() const { return m_usesToggles; }
  void UseSeriesToggle(bool use);

  void AddLegendEntry(const std::shared_ptr<scene::Appearance>& newApp,
                      const std::string& newText) override;
  void ClearLegend() override;
  std::shared_ptr<scene::Node> Get1CheckBox(std::int16_t index) const override;
  std::shared_ptr<scene::Node> BillboardNode() const override { return m_billboard; }

  std::shared_ptr<scene::Node> RootNode() const override { return m_root; }
  /// The same node; its chart places it.
  const std::shared_ptr<scene::Transform>& Root() const { return m_root; }

 private:
  /// The list that holds the legend and the boxes in the current arrangement.
  scene::MFNode& Contents() const;
  void ShiftLegend();

  std::shared_ptr<SeriesToggleInfo> m_toggles;
  std::shared_ptr<scene::Transform> m_root;
  std::shared_ptr<scene::Transform> m_legendTransform;
  std::shared_ptr<scene::Billboard> m_billboard;
  std::shared_ptr<scene::Legend> m_legend;
  bool m_isBillboarded = false;
  bool m_usesToggles = false;
};

}  // namespace orvane
