#include "orvane/graphs/grid/AreaSeriesInfo.h"

#include "orvane/graphs/grid/DescribeGridSeries.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& AreaSeriesInfo::Type() const {
  static const host::TypeInfo type = host::Describe<AreaSeriesInfo>("One series of an area chart.")
                                         .With(DescribeDepth<AreaSeriesInfo>)
                                         .With(DescribeData<AreaSeriesInfo>)
                                         .With(DescribeShowInLegend<AreaSeriesInfo>);
  return type;
}

AreaSeriesInfo::AreaSeriesInfo() : AreaSeriesInfo(scene::Create<scene::OutlinedAreaSeries>()) {}

AreaSeriesInfo::AreaSeriesInfo(const std::shared_ptr<scene::OutlinedAreaSeries>& area)
    : GridSeries({VariantOf(area)}) {
  area->appearance.Value(Appearance());
}

}  // namespace orvane
