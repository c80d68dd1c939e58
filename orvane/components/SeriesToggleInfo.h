/// A column of check boxes, one a legend entry, with which a viewer switches series on and off.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/scene/UiProtos.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace orvane {

/// Box i of n stands at y = (n - i) x (Height + Spacing), in 32-bit floats: the first one is the
/// topmost.
class ORVANE_API SeriesToggleInfo final : public host::Object, public RootedAt<scene::Transform> {
 public:
  static constexpr const char* kClassName = "SeriesToggleInfo";
  const host::TypeInfo& Type() const override;

  /// Check box `index`, 1..Count.
  std::shared_ptr<scene::Node> Get1CheckBox(std::int16_t index) const;
  /// Adds a box, switched on, with the DEF name "CHECK_BOX_" and its number.
  void AddCheckBox();
  /// Vertical gap between boxes in scene units, > 0. Default 0.5.
  float Spacing() const { return m_spacing; }
  void Spacing(float spacing);
  /// Size of each box in scene units, > 0. Default 1.
  float Height() const { return m_height; }
  void Height(float height);
  void ClearCheckBoxes();
  std::int16_t Count() const;

  /// Adds a box whose place `LayoutCheckBoxes` gives it, once all are made.
  void MakeCheckBox();
  void LayoutCheckBoxes();

  /// Sets both at once: all boxes move or none.
  void Resize(float height, float spacing);

 private:
  std::vector<std::shared_ptr<scene::CheckBox>> m_boxes;
  std::vector<std::shared_ptr<scene::Transform>> m_transforms;
  float m_height = 1.0F;
  float m_spacing = 0.5F;
};

}  // namespace orvane
