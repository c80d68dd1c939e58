#include "orvane/control/ObjectModel.h"

#include "orvane/control/OrvaneScaler.h"
#include "orvane/graphs/grid/AreaGraph.h"
#include "orvane/graphs/grid/ColumnGraph.h"
#include "orvane/graphs/grid/RibbonGraph.h"
#include "orvane/graphs/pie/PieGraph.h"
#include "orvane/graphs/scatter/ScatterGraph.h"
#include "orvane/graphs/surface/RCComboGraph.h"
#include "orvane/graphs/surface/SCComboGraph.h"
#include "orvane/graphs/surface/SurfaceGraph.h"
#include "orvane/scene/frmMain.h"

namespace orvane {
namespace {

using Objects = std::vector<std::shared_ptr<host::Object>>;

template <class... T>
Objects Make() {
  return {std::make_shared<T>()...};
}

Objects Charts() {
  return Make<AreaGraph, ColumnGraph, PieGraph, RibbonGraph, ScatterGraph, SurfaceGraph,
              SCComboGraph, RCComboGraph>();
}

void Append(Objects& all, const Objects& more) { all.insert(all.end(), more.begin(), more.end()); }

}  // namespace

Objects ObjectModel() {
  Objects all = Charts();
  Append(all,
         Make<AreaSeriesInfo, ColumnSeriesInfo, RibbonSeriesInfo, PieSliceInfo, PieSpinAxisInfo,
              PointCollection, ScatterLegendInfo, SliderInfo, SurfaceInfo, SurfacePopupInfo,
              SeriesCollection, TextInfo, BackgroundInfo, GridInfo, DiscreteAxis, ContinuousAxis,
              LegendInfo, SeriesToggleInfo, DrillUpInfo, DrillDownInfo, GridInteractivityInfo,
              SeriesPopupInfo, ViewpointCollection, LightCollection, OrvaneScaler>());
  const auto factory = scene::CoreFactory();
  for (const auto& name : factory->NodeTypes()) all.push_back(factory->CreateNode(name));
  for (const auto& name : factory->FieldTypes()) all.push_back(factory->CreateField(name));
  return all;
}

std::shared_ptr<host::Object> CreateChart(std::string_view className) {
  for (const auto& chart : Charts()) {
    if (host::EqualNoCase(chart->Type().Name(), className)) return chart;
  }
  return nullptr;
}

}  // namespace orvane
