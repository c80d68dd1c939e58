#include "orvane/graphs/grid/RibbonSeriesInfo.h"

#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& RibbonSeriesInfo::Type() const {
  using Series = RibbonSeriesInfo;
  static const host::TypeInfo type =
      host::Describe<Series>("One series of a ribbon chart.")
          .With(DescribeDepth<Series>)
          .Property<float>("Thickness", &Series::Thickness, &Series::Thickness,
                           {"Thickness of the band", "scene units", host::kPositive})
          .With(DescribeData<Series>)
          .With(DescribeStyle<Series, RibbonStyle>);
  return type;
}

RibbonSeriesInfo::RibbonSeriesInfo()
    : StyledSeries(scene::Create<scene::OutlinedRibbonSeries>(),
                   scene::Create<scene::RoundedRibbonSeries>()) {
  OutlinedShape().appearance.Value(Appearance());
  RoundedShape().appearance.Value(Appearance());
}

void RibbonSeriesInfo::Thickness(float thickness) {
  host::Require(thickness > 0, "Invalid series thickness, must be greater than 0");
  OutlinedShape().thickness.Value(thickness);
  RoundedShape().thickness.Value(thickness);
}

}  // namespace orvane

namespace orvane::host {

template <>
const EnumInfo& Enumeration<RibbonStyle>() {
  static const EnumInfo info("RibbonStyle", {{"OUTLINED_RIBBON", 0}, {"ROUNDED_RIBBON", 1}});
  return info;
}

}  // namespace orvane::host
