/// What the legends of all charts share: keys and texts, their look, and whether they turn to the
/// viewer.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/components/VrmlNames.h"
#include "orvane/scene/GraphProtos.h"
#include "orvane/scene/ShapeNodes.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace orvane {

/// Entries are stored newest first, so that the first one added is drawn on top.
class ORVANE_API ChartLegend : public host::Object, public RootedAt<scene::Transform> {
 public:
  /// Default BOX_STYLE; values outside the enumeration are ignored.
  LegendKeyStyle KeyStyle() const;
  void KeyStyle(LegendKeyStyle style);
  /// Whether the legend turns about its vertical axis to face the viewer. Default false.
  bool IsBillboarded() const { return m_isBillboarded; }
  void IsBillboarded(bool isBillboarded);
  /// Height of the texts in scene units, > 0. Default 1. A let also sets the gap between entries,
  /// to 0.35 heights.
  float TextHeight() const { return m_legend->textHeight.Value(); }
  void TextHeight(float height);
  /// Host RGB colour, 0..0xFFFFFF. Default white.
  std::int32_t TextColor() const { return m_legend->textColor.Value(); }
  void TextColor(std::int32_t rgb) { m_legend->textColor.Value(rgb); }

  /// What turns the legend while IsBillboarded is true.
  const std::shared_ptr<scene::Billboard>& BillboardNode() const { return m_billboard; }

 protected:
  ChartLegend();

  struct Entry {
    std::shared_ptr<scene::Appearance> key;
    std::string text;
  };
  /// Adds entries, in order, below those there are.
  void AddEntries(const std::vector<Entry>& entries);
  void ClearEntries();

  float EntryGap() const { return m_legend->entryGap.Value(); }
  /// The list that holds the entries, and what else turns with them.
  scene::MFNode& Contents() const;
  /// Moves the entries to the right by `distance` scene units.
  void ShiftEntries(float distance) { m_legendTransform->translation.X(distance); }

 private:
  /// Fits what stands beside the entries to a new height and gap; raises before anything changes.
  virtual void Resize(float /*textHeight*/, float /*gap*/) {}

  std::shared_ptr<scene::Transform> m_legendTransform;
  std::shared_ptr<scene::Billboard> m_billboard;
  std::shared_ptr<scene::Legend> m_legend;
  bool m_isBillboarded = false;
};

}  // namespace orvane
