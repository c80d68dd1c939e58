#include "orvane/tables/DensityChart.h"

#include "orvane/tables/GridChart.h"
#include "orvane/tables/layout/GridDress.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane::tables {
namespace {

/// Enough cells for a smooth lattice, few enough for a label at each line.
constexpr int kMostCells = 16;

constexpr GridSize kUsualSize{10, 4.5, 10};

/// Each surface reaches from 0 to the top, whatever its densities are.
constexpr ValueScale kShareOfPeak{0, 100, 25, 4, 0, 0};

ValueScale ScaleAlong(const CloudTable& table, double Cloud::Point::*number) {
  double lowest = table.clouds.front().points.front().*number;
  double highest = lowest;
  for (const Cloud& cloud : table.clouds) {
    for (const auto& point : cloud.points) {
      lowest = std::min(lowest, point.*number);
      highest = std::max(highest, point.*number);
    }
  }
  return TightScale(lowest, highest, kMostCells);
}

/// The rule for points in a plane: their root mean square deviation along an axis, times n^(-1/6).
double SilvermanSigma(const std::vector<scene::Vec2f>& points) {
  const auto count = static_cast<double>(points.size());
  double meanX = 0;
  double meanZ = 0;
  for (const auto& point : points) {
    meanX += point.x / count;
    meanZ += point.y / count;
  }
  double squares = 0;
  for (const auto& point : points) {
    squares += std::pow(point.x - meanX, 2) + std::pow(point.y - meanZ, 2);
  }
  return count < 2 ? 0 : std::sqrt(squares / (2 * (count - 1))) * std::pow(count, -1.0 / 6);
}

double SilvermanSigma(const DensityGraph& chart) {
  double sum = 0;
  double count = 0;
  for (const std::int16_t i : Indexes(chart.SurfaceCount())) {
    const auto& points = chart.GetSurface(i)->PointList().Items();
    sum += SilvermanSigma(points) * static_cast<double>(points.size());
    count += static_cast<double>(points.size());
  }
  return sum / count;
}

/// Points, colours and legend entries of the surfaces, whose lattice points stand `step` apart.
void DressSurfaces(DensityGraph& chart, const CloudTable& table, const ValueAxes& axes, double step,
                   const GridLayout& layout) {
  // All hills run out to 0 on the same floor, where none must shine through another.
  chart.Lift().step = std::min(0.035, 0.1 * layout.size.height / chart.SurfaceCount());
  for (std::int16_t i = 0; i < chart.SurfaceCount(); ++i) {
    DensitySurfaceInfo& surface = *chart.GetSurface(static_cast<std::int16_t>(i + 1));
    const auto index = static_cast<std::size_t>(i);
    DressSurface(surface, index, step, layout);
    for (const auto& [x, z] : table.clouds[index].points) {
      surface.PointList().Append(static_cast<float>(axes.x.Share(x) * layout.size.width),
                                 static_cast<float>(axes.z.Share(z) * layout.size.depth));
    }
  }
}

}  // namespace

std::shared_ptr<DensityGraph> MakeDensityChart(const CloudTable& table,
                                               const ChartOptions& options) {
  ValueAxes axes;
  axes.x = ScaleAlong(table, &Cloud::Point::x);
  axes.y = kShareOfPeak;
  axes.z = ScaleAlong(table, &Cloud::Point::z);
  axes.xHeader = ValueAxes::HeaderOf(table.xHeader, axes.x);
  axes.yHeader = "Density, % of peak";
  axes.zHeader = ValueAxes::HeaderOf(table.zHeader, axes.z);
  std::vector<std::string> names;
  for (const Cloud& cloud : table.clouds) names.push_back(cloud.name);
  const GridLayout layout = LayOutValues(axes, names, kUsualSize, options);

  auto chart = std::make_shared<DensityGraph>();
  const Style style(options.background);
  DressValueGrid(*chart->GridProps(), axes, layout, style);
  DressValueAxes(*chart->XAxisProps(), *chart->YAxisProps(), *chart->ZAxisProps(), axes, layout,
                 style);
  chart->SurfaceCount(static_cast<std::int16_t>(table.clouds.size()));
  // Three lattice points to a cell.
  const double latticeStep =
      std::max(layout.size.width / 3.0 / axes.x.cells, layout.size.depth / 3.0 / axes.z.cells);
  DressSurfaces(*chart, table, axes, latticeStep, layout);
  chart->Placement() = layout.placement;
  DressAroundGrid(*chart, *chart->LegendProps(), layout, SubjectOf(layout), options);
  chart->LegendProps()->UseSeriesToggle(options.useToggles);
  chart->Sigma(
      options.sigma.value_or(static_cast<float>(std::max(latticeStep, SilvermanSigma(*chart)))));
  return chart;
}

}  // namespace orvane::tables
