#include "orvane/graphs/grid/ColumnSeriesInfo.h"

#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& ColumnSeriesInfo::Type() const {
  using Series = ColumnSeriesInfo;
  static const host::TypeInfo type =
      host::Describe<Series>("One series of a column chart.")
          .With(DescribeDepth<Series>)
          .Property<float>("Width", &Series::Width, &Series::Width,
                           {"Extent of a column along X", "scene units", host::kPositive})
          .With(DescribeData<Series>)
          .With(DescribeStyle<Series, ColumnStyle>);
  return type;
}

ColumnSeriesInfo::ColumnSeriesInfo()
    : StyledSeries(scene::Create<scene::OutlinedColumnSeries>(),
                   scene::Create<scene::RoundedColumnSeries>()) {
  OutlinedShape().appearance.Append(Appearance());
  RoundedShape().appearance.Append(Appearance());
}

void ColumnSeriesInfo::Width(float width) {
  host::Require(width > 0, "Invalid series width, must be greater than 0");
  OutlinedShape().width.Value(width);
  RoundedShape().width.Value(width);
}

}  // namespace orvane

namespace orvane::host {

template <>
const EnumInfo& Enumeration<ColumnStyle>() {
  static const EnumInfo info("ColumnStyle", {{"OUTLINED_COLUMN", 0}, {"ROUNDED_COLUMN", 1}});
  return info;
}

}  // namespace orvane::host
