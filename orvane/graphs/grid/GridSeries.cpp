#include "orvane/graphs/grid/GridSeries.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/scene/frmMain.h"

#include <utility>

namespace orvane {

GridSeries::GridSeries(std::vector<Variant> variants)
    : m_variants(std::move(variants)),
      m_popups(std::make_shared<SeriesPopupInfo>()),
      m_toggle(scene::Create<scene::ContentToggle>()),
      m_appearance(scene::Create<scene::Appearance>()),
      m_material(scene::Create<scene::Material>()) {
  m_toggle->contentsExist.Value(true);
  m_appearance->material.Value(m_material);
  Root()->children.Append(m_toggle);
  m_toggle->contents.Append(m_variants.front().node);
  // Hiding the series hides its popups too.
  m_toggle->contents.Append(m_popups->RootNode());
}

void GridSeries::Show(std::size_t index) {
  if (index == m_shown) return;
  m_toggle->contents.Remove(m_variants[m_shown].node);
  m_toggle->contents.Append(m_variants[index].node);
  m_variants[m_shown].heights->CopyTo(*m_variants[index].heights);
  m_shown = index;
}

void GridSeries::Depth(float depth) {
  host::Require(depth > 0, "Invalid series depth, must be greater than 0");
  constexpr double kPopupReach = 0.4;
  constexpr double kPopupDepth = 1.05;  // Just outside the shape, so that the strip is hit first.
  const float popupDepth = host::Single(kPopupDepth * depth);
  m_popups->radius(host::Single(kPopupReach * depth));  // Rejects a depth whose reach comes to 0.
  m_popups->Depth(popupDepth);
  for (const auto& variant : m_variants) variant.depth->Value(depth);
}

void GridSeries::Spacing(float spacing) {
  host::Require(spacing > 0, "Invalid spacing, must be greater than 0");
  for (const auto& variant : m_variants) variant.spacing->Value(spacing);
  m_popups->Spacing(spacing);
}

std::int16_t GridSeries::Count() const { return host::Int16(m_variants.front().count->Value()); }

void GridSeries::Count(std::int16_t count) {
  host::Require(count >= 1, "Invalid count, must be greater than 0");
  for (const auto& variant : m_variants) variant.count->Value(count);
  m_popups->Count(count);
}

}  // namespace orvane
