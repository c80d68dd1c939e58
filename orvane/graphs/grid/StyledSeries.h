/// What the column and ribbon series share: an outlined and a rounded variant of one shape.
#pragma once

#include "orvane/automation/AutomationError.h"
#include "orvane/graphs/grid/DescribeGridSeries.h"
#include "orvane/graphs/grid/GridSeries.h"

#include <memory>

namespace orvane {

/// `StyleEnum` is 0 for the PROTO `Outlined` and 1 for `Rounded`.
template <class StyleEnum, class Outlined, class Rounded>
class StyledSeries : public GridSeries {
 public:
  /// Which variant is shown; a change keeps the heights. Default 0, outlined; values outside the
  /// enumeration are ignored.
  StyleEnum Style() const { return static_cast<StyleEnum>(Shown()); }
  void Style(StyleEnum style) {
    const auto index = static_cast<std::size_t>(style);
    if (index <= 1) Show(index);
  }

  /// Rounding of the edges of the rounded variant, in scene units, > 0.
  float BevelRadius() const { return m_rounded->bevelRadius.Value(); }
  void BevelRadius(float radius) {
    host::Require(radius > 0, "Invalid bevel radius, must be greater than 0");
    m_rounded->bevelRadius.Value(radius);
  }

 protected:
  StyledSeries(const std::shared_ptr<Outlined>& outlined, const std::shared_ptr<Rounded>& rounded)
      : GridSeries({VariantOf(outlined), VariantOf(rounded)}),
        m_outlined(outlined),
        m_rounded(rounded) {}

  Outlined& OutlinedShape() const { return *m_outlined; }
  Rounded& RoundedShape() const { return *m_rounded; }

 private:
  std::shared_ptr<Outlined> m_outlined;
  std::shared_ptr<Rounded> m_rounded;
};

/// Style, BevelRadius and ShowInLegend.
template <class S, class StyleEnum>
void DescribeStyle(host::Describe<S>& series) {
  series.template Property<StyleEnum>("Style", &S::Style, &S::Style, {"Outlined or rounded shapes"})
      .template Property<float>(
          "BevelRadius", &S::BevelRadius, &S::BevelRadius,
          {"Rounding of the edges when rounded", "scene units", host::kPositive})
      .With(DescribeShowInLegend<S>);
}

}  // namespace orvane
