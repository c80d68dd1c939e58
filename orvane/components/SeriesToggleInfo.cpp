#include "orvane/components/SeriesToggleInfo.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Describe.h"
#include "orvane/scene/frmMain.h"

#include <algorithm>
#include <string>

namespace orvane {

using host::Int16;
using host::Single;

const host::TypeInfo& SeriesToggleInfo::Type() const {
  static const host::TypeInfo type =
      host::Describe<SeriesToggleInfo>("A column of check boxes, one a legend entry.")
          .Method("Get1CheckBox", &SeriesToggleInfo::Get1CheckBox, {{"Index", host::UpTo("Count")}},
                  {"One check box"})
          .Method("AddCheckBox", &SeriesToggleInfo::AddCheckBox, {}, {"Adds a check box"})
          .Property<float>("Spacing", &SeriesToggleInfo::Spacing, &SeriesToggleInfo::Spacing,
                           {"Gap between boxes", "scene units", host::kPositive})
          .Property<float>("Height", &SeriesToggleInfo::Height, &SeriesToggleInfo::Height,
                           {"Size of each box", "scene units", host::kPositive})
          .Method("ClearCheckBoxes", &SeriesToggleInfo::ClearCheckBoxes, {},
                  {"Removes all check boxes"})
          .Property<std::int16_t>("Count", &SeriesToggleInfo::Count, {"Number of check boxes"});
  return type;
}

std::shared_ptr<scene::Node> SeriesToggleInfo::Get1CheckBox(std::int16_t index) const {
  host::Require(index >= 1 && index <= Count(), "Invalid index into the list of check boxes");
  return m_boxes[static_cast<std::size_t>(index - 1)];
}

void SeriesToggleInfo::AddCheckBox() {
  MakeCheckBox();
  LayoutCheckBoxes();
}

void SeriesToggleInfo::MakeCheckBox() {
  const std::int16_t number = Int16(Count() + 1);
  auto box = scene::Create<scene::CheckBox>();
  box->boxSize.Value(m_height);
  box->isOn.Value(true);
  box->SetDefName("CHECK_BOX_" + std::to_string(number));
  auto transform = scene::Create<scene::Transform>();
  transform->children.Append(box);
  Root()->children.Append(transform);
  m_boxes.push_back(std::move(box));
  m_transforms.push_back(std::move(transform));
}

void SeriesToggleInfo::Spacing(float spacing) {
  host::Require(spacing > 0, "Invalid spacing, must be greater than 0");
  Resize(m_height, spacing);
}

void SeriesToggleInfo::Height(float height) {
  host::Require(height > 0, "Invalid height, must be greater than 0");
  Resize(height, m_spacing);
}

void SeriesToggleInfo::ClearCheckBoxes() {
  m_boxes.clear();
  m_transforms.clear();
  Root()->children.Clear();
}

std::int16_t SeriesToggleInfo::Count() const {
  return Int16(static_cast<std::int64_t>(m_boxes.size()));
}

void SeriesToggleInfo::Resize(float height, float spacing) {
  // Raises Overflow before anything moves.
  (void)Single(std::max<int>(Count(), 1) * (static_cast<double>(height) + spacing));
  m_height = height;
  m_spacing = spacing;
  for (const auto& box : m_boxes) box->boxSize.Value(height);
  LayoutCheckBoxes();
}

void SeriesToggleInfo::LayoutCheckBoxes() {
  const float pitch = Single(static_cast<double>(m_height) + m_spacing);
  auto below = static_cast<double>(m_transforms.size());
  for (const auto& transform : m_transforms) transform->translation.Y(Single(--below * pitch));
}

}  // namespace orvane
