#include "AreaChart.h"

#include "GridChart.h"
#include "GridLayout.h"

#include <cstdint>

namespace orvane::tool {

std::shared_ptr<AreaGraph> MakeAreaChart(const Table& table, const ChartOptions& options) {
  auto chart = std::make_shared<AreaGraph>();
  const GridLayout layout = LayOutGrid(table, options);
  DressGridChart(*chart, layout, options);
  for (std::size_t i = 0; i < table.series.size(); ++i) {
    const auto series = chart->GetSeries(static_cast<std::int16_t>(i + 1));
    series->Depth(static_cast<float>(0.5 * layout.CellDepth()));
    DressGridSeries(*series, i, table, layout, options);
  }
  return chart;
}

}  // namespace orvane::tool
