#include "orvane/components/Axis.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Trimmed.h"
#include "orvane/scene/frmMain.h"

#include <algorithm>

namespace orvane {

using host::Quotient;
using host::Single;

Axis::Axis()
    : m_labelsTransform(scene::Create<scene::Transform>()),
      m_headerTransform(scene::Create<scene::Transform>()) {
  m_labelsTransform->children.Append(m_labels.Node());
  m_headerTransform->children.Append(m_header.Node());
  Root()->children.Append(m_labelsTransform);
  Root()->children.Append(m_headerTransform);
}

void Axis::Header(const std::string& text) {
  m_hasHeader = !host::Trimmed(text).empty();
  m_header.FirstLine(text);
}

void Axis::LabelHeight(float height) {
  // Line advance is size x spacing: the spacing follows so that lines stay one gap apart.
  const float spacing = height > 0 ? Single(Quotient(m_labelGap, height)) : 0;
  m_labels.Height(height, "Invalid label height, must be greater than 0");
  m_labels.Spacing(spacing);
}

void Axis::HeaderHeight(float height) {
  m_header.Height(height, "Invalid Header height, must be greater than 0");
}

void Axis::LabelTextGap(float gap) {
  host::Require(gap > 0, "Invalid label text gap, must be greater than 0");
  m_labels.Spacing(Single(Quotient(gap, m_labels.Height())));
  m_labelGap = gap;
}

void Axis::ShowAxis(bool show) {
  if (show == m_isShown) return;
  Root()->children.Clear();
  if (show) {
    Root()->children.Append(m_labelsTransform);
    Root()->children.Append(m_headerTransform);
  }
  m_isShown = show;
}

void Axis::LevelLabels(double drop) {
  // Capitals and digits rise from the baseline to 0.7 of the height.
  constexpr double kMiddle = 0.35;
  m_labelsTransform->translation.Y(Single(-(drop + kMiddle) * LabelHeight()));
}

void Axis::AlignHeader(const HeaderPlacement& placement) {
  if (!m_hasHeader) return;
  m_header.Justify({"MIDDLE", "BEGIN"});

  const double size = m_labels.Height();
  const double lineAdvance = m_labels.Spacing() * size;
  m_headerTransform->translation.Y(
      Single(lineAdvance * (Lines().Count() - 1) / -2 - placement.shift));

  float widest = 0;
  for (const auto& label : Lines().Items()) {
    widest = std::max(widest, EstimateTextWidth(label, m_labels.Height()));
  }
  // Labels that begin at their origin extend along +x, those that end there along -x.
  const bool extendsRight = Alignment() == LabelAlignment::LEFT_ALIGN;
  const double distance = placement.distance.Of(widest);
  m_headerTransform->translation.X(Single(extendsRight ? distance : -distance));
  m_headerTransform->rotation.SetValue(0, 0, 1, extendsRight ? kQuarterTurn : -kQuarterTurn);
}

}  // namespace orvane
