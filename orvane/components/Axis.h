/// What the two kinds of axis share: labels, one a line of a single Text node, and a header.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/components/Placement.h"
#include "orvane/components/TextShape.h"

#include <cstdint>
#include <memory>
#include <string>

namespace orvane {

/// Where the header of an axis stands beside its labels. The defaults put it beside their middle, a
/// tenth of the widest label's width away from it.
struct HeaderPlacement {
  /// From the labels' origin, on the side that they extend to; of the widest label's estimated
  /// width.
  Length distance{1.1};
  double shift = 0;  ///< Down from the middle of the labels, in scene units.
};

/// Labels run down from the axis root's origin; the chart places and turns the root.
class ORVANE_API Axis : public host::Object, public RootedAt<scene::Transform> {
 public:
  /// The header's text, kept as it is given; blank for none. Default "".
  std::string Header() const { return m_header.FirstLine(); }
  void Header(const std::string& text);

  /// Host RGB colours, 0..0xFFFFFF. Default white.
  std::int32_t LabelColor() const { return m_labels.Color(); }
  void LabelColor(std::int32_t rgb) { m_labels.Color(rgb); }
  std::int32_t HeaderColor() const { return m_header.Color(); }
  void HeaderColor(std::int32_t rgb) { m_header.Color(rgb); }

  /// Default VRML_SERIF; values outside the enumeration are ignored.
  VRMLFontFamily LabelFont() const { return m_labels.Font(); }
  void LabelFont(VRMLFontFamily family) { m_labels.Font(family); }
  VRMLFontFamily HeaderFont() const { return m_header.Font(); }
  void HeaderFont(VRMLFontFamily family) { m_header.Font(family); }

  /// Default VRML_PLAIN; values outside the enumeration are ignored.
  VRMLFontStyle LabelStyle() const { return m_labels.Style(); }
  void LabelStyle(VRMLFontStyle style) { m_labels.Style(style); }
  VRMLFontStyle HeaderStyle() const { return m_header.Style(); }
  void HeaderStyle(VRMLFontStyle style) { m_header.Style(style); }

  /// Heights of the texts in scene units, > 0. Default 1.
  float LabelHeight() const { return m_labels.Height(); }
  void LabelHeight(float height);
  float HeaderHeight() const { return m_header.Height(); }
  void HeaderHeight(float height);

  /// Whether the axis is in the scene. Default true.
  bool ShowAxis() const { return m_isShown; }
  void ShowAxis(bool show);

  /// The side of the labels' origin that they extend away from. Values outside the enumeration are
  /// ignored.
  LabelAlignment Alignment() const { return m_labels.Alignment(); }
  void Alignment(LabelAlignment alignment) { m_labels.Alignment(alignment); }
  /// Distance between label lines in scene units, > 0: the grid's spacing along the axis.
  float LabelTextGap() const { return m_labelGap; }
  void LabelTextGap(float gap);
  /// Moves the labels so that the middle of the first one is `drop` label heights below the root's
  /// origin.
  void LevelLabels(double drop);
  /// Puts the header beside the label column. Without a header nothing changes.
  void AlignHeader(const HeaderPlacement& placement = {});

 protected:
  Axis();

  scene::MFString& Lines() const { return m_labels.Lines(); }

 private:
  std::shared_ptr<scene::Transform> m_labelsTransform;
  std::shared_ptr<scene::Transform> m_headerTransform;
  TextShape m_labels{"BEGIN"};
  TextShape m_header{"MIDDLE"};
  float m_labelGap = 0.1F;
  bool m_hasHeader = false;
  bool m_isShown = true;
};

}  // namespace orvane
