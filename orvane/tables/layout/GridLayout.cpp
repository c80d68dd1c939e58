#include "orvane/tables/layout/GridLayout.h"

#include "orvane/components/NumberPicture.h"
#include "orvane/tables/layout/Texts.h"
#include "orvane/tables/read/Rows.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace orvane::tables {
namespace {

/// A label takes at most this share of the room from one to the next.
constexpr double kFill = 0.8;

/// The least of 1, 2, 5, 10, 20, 50, ... that is not below `least`.
std::size_t RoundStep(double least) {
  for (std::size_t power = 1;; power *= 10) {
    for (const std::size_t mantissa : {1U, 2U, 5U}) {
      const std::size_t step = mantissa * power;
      if (static_cast<double>(step) >= least) return step;
    }
  }
}

/// Labels `pitch` apart, as high as `wanted` where there is room. Where they would become
/// unreadable, only every second, fifth, tenth, ... is shown.
LabelColumn LayOutLabels(const std::vector<std::string>& texts, double pitch, double wanted) {
  const double readable = 0.7 * wanted;
  const std::size_t step = RoundStep(readable / (kFill * pitch));
  LabelColumn column{{}, std::min(wanted, kFill * static_cast<double>(step) * pitch)};
  for (std::size_t i = 0; i < texts.size(); ++i) {
    column.texts.push_back(i % step == 0 ? Label(texts[i]) : "");
  }
  return column;
}

/// Where labels in front of the grid begin, in depths of the grid, at most.
constexpr double kFront = 1.05;

double FrontOf(const GridLayout& layout) {
  return kFront * layout.size.depth + layout.placement.xAxis.edge.plus;
}

GridLayout LayOutSize(const ValueScale& scale, const GridSize& usual, const ChartOptions& options) {
  GridLayout layout;
  layout.scale = scale;
  layout.size = options.size.value_or(usual);
  const auto [width, height, depth] = layout.size;
  layout.textHeight = 0.032 * std::hypot(width, height, depth);
  return layout;
}

/// Labels stand `gap` farther from the grid than in a new chart, headers clear of them and beside
/// their middle.
void PlaceAxes(GridLayout& layout, double gap) {
  const auto place = [&](AxisPlacement& axis, const LabelColumn& labels, double farther) {
    axis.edge.plus = farther;
    axis.header = {{0, layout.HeaderDistance(labels)}, labels.height / 2};
  };
  place(layout.placement.xAxis, layout.xLabels, gap);
  place(layout.placement.zAxis, layout.zLabels, gap);
  // The lowest label along y keeps clear of the first one along x.
  place(layout.placement.yAxis, layout.yLabels, 2.6 * gap / std::numbers::sqrt2);
}

/// Sizes and places of the title, and of a legend with an entry for each of `names`; the extents
/// and textHeight of `layout` are given.
void LayOutTitleAndLegend(GridLayout& layout, const std::string& title,
                          const std::vector<std::string>& names) {
  const double width = layout.size.width;
  const double height = layout.size.height;

  // All entries are shown, if need be small: each may have its check box.
  layout.legend.height = layout.textHeight;
  if (!names.empty()) {
    const double pitch = 0.9 * height / static_cast<double>(names.size());
    layout.legend.height = std::min(layout.textHeight, pitch / kLegendPitch);
  }
  for (const std::string& name : names) layout.legend.texts.push_back(Label(name));

  layout.title = title;
  layout.titleHeight = 1.8 * layout.textHeight;
  if (const double titleWidth = TextWidth(layout.title, 1); titleWidth > 0) {
    const double fitting = 1.3 * width / titleWidth;
    layout.titleHeight = std::clamp(fitting, 1.1 * layout.textHeight, layout.titleHeight);
  }
  // Seen from the corner, the upper edge of the back wall rises to the left by 0.3 of the way, as
  // far as the wall goes, while the title is level.
  const double overWall = std::min(TextWidth(layout.title, layout.titleHeight) / 2, 0.4 * width);
  GridPlacement& placement = layout.placement;
  placement.titleY.plus = std::max(0.0, 0.26 * overWall + 0.3 * layout.titleHeight - 0.1 * height);
  // Behind the back wall, it is clear of a tall legend when seen from the top.
  placement.titleZ = std::min(0.0, 0.25 * height - layout.LegendHeight());
}

}  // namespace

LabelColumn LayOutNumbers(const ValueScale& scale, double extent, double wanted) {
  LabelColumn column{{}, std::min(wanted, kFill * extent / scale.cells)};
  for (int i = 0; i <= scale.cells; ++i) {
    const double value = scale.high - i * scale.step;
    column.texts.push_back(FormatNumber(static_cast<float>(value), scale.LabelPicture()));
  }
  return column;
}

double LabelColumn::Width() const {
  double widest = 0;
  for (const std::string& text : texts) widest = std::max(widest, TextWidth(text, height));
  return widest;
}

double GridLayout::LegendHeight() const {
  return kLegendPitch * legend.height * static_cast<double>(legend.texts.size());
}

GridSize SizeFor(std::size_t xCells, std::size_t zCells) {
  const double width = std::clamp(static_cast<double>(xCells), 8.0, 16.0);
  const double height = std::clamp(0.5 * width, 5.0, 7.0);
  const double depth = std::clamp(1.6 * static_cast<double>(zCells), 2.0, 10.0);
  return {static_cast<float>(width), static_cast<float>(height), static_cast<float>(depth)};
}

ValueRange RangeOf(const Table& table) {
  ValueRange range{table.series[0].cells[0].number, table.series[0].cells[0].number};
  for (const TableSeries& series : table.series) {
    for (const TableCell& cell : series.cells) {
      range.lowest = std::min(range.lowest, cell.number);
      range.highest = std::max(range.highest, cell.number);
    }
  }
  return range;
}

GridTexts TextsOf(const Table& table) {
  GridTexts texts{table.categories, {}, {}, table.categoryHeader, table.unit};
  for (const TableSeries& series : table.series) texts.z.push_back(series.name);
  texts.legend = texts.z;
  return texts;
}

GridLayout LayOutSeries(const Table& table, const ChartOptions& options) {
  GridTexts texts = TextsOf(table);
  if (options.isGrouped) texts.z = {""};
  const auto [lowest, highest] = RangeOf(table);
  return LayOutCategories(texts, RoundScale(lowest, highest, kMostValueCells),
                          SizeFor(texts.x.size(), texts.z.size()), options);
}

GridLayout LayOutCategories(const GridTexts& texts, const ValueScale& scale, const GridSize& usual,
                            const ChartOptions& options) {
  GridLayout layout = LayOutSize(scale, usual, options);
  layout.xHeader = Label(texts.xHeader);
  layout.yHeader = layout.scale.UnitText();
  if (!texts.unit.empty())
    layout.yHeader = std::string(WithoutBlanks(texts.unit + " " + layout.yHeader));

  const auto [width, height, depth] = layout.size;
  const double cellWidth = width / static_cast<double>(texts.x.size());
  const double cellDepth = depth / static_cast<double>(texts.z.size());

  layout.xLabels = LayOutLabels(texts.x, cellWidth, layout.textHeight);
  layout.yLabels = LayOutNumbers(layout.scale, height, layout.textHeight);
  layout.zLabels = LayOutLabels(texts.z, cellDepth, layout.textHeight);

  // In narrow cells the first labels stand close to the corners of the grid, as those along y do.
  const bool isNarrow = cellWidth < 2 * layout.textHeight;
  PlaceAxes(layout, isNarrow ? 0.4 * layout.textHeight : 0);
  LayOutTitleAndLegend(layout, options.title, texts.legend);
  return layout;
}

std::string ValueAxes::HeaderOf(const std::string& header, const ValueScale& scale) {
  const std::string unit = scale.UnitText();
  return Label(header) + (unit.empty() ? "" : " (" + unit + ")");
}

GridLayout LayOutValues(const ValueAxes& axes, const std::vector<std::string>& names,
                        const GridSize& usual, const ChartOptions& options,
                        const GridPlacement& placement) {
  GridLayout layout = LayOutSize(axes.y, usual, options);
  layout.placement = placement;
  const auto [width, height, depth] = layout.size;
  layout.xLabels = LayOutNumbers(axes.x, width, layout.textHeight);
  layout.yLabels = LayOutNumbers(axes.y, height, layout.textHeight);
  layout.zLabels = LayOutNumbers(axes.z, depth, layout.textHeight);
  layout.xHeader = axes.xHeader;
  layout.yHeader = axes.yHeader;
  layout.zHeader = axes.zHeader;
  // Two axes each have a label at the corners of the grid.
  PlaceAxes(layout, 0.5 * layout.textHeight);
  LayOutTitleAndLegend(layout, options.title, names);
  return layout;
}

double GridLayout::FrontEdge() const {
  return FrontOf(*this) + HeaderDistance(xLabels) + 2.2 * textHeight;
}

Subject SubjectOf(const GridLayout& layout) {
  const double width = layout.size.width;
  const double height = layout.size.height;
  const double depth = layout.size.depth;
  const double text = layout.textHeight;
  Subject subject;

  // Above the grid there is room for the popup of the highest value.
  const double top = height + 2 * text;
  for (const double x : {0.0, width}) {
    for (const double y : {0.0, top}) {
      for (const double z : {0.0, depth}) subject.points.push_back({x, y, z});
    }
  }

  // Category labels lie in front of the grid and to the right of it, the header beyond them.
  const GridPlacement& placement = layout.placement;
  const double front = FrontOf(layout);
  const double right = width + placement.zAxis.edge.Of(width);
  for (const double x : {0.0, width}) {
    subject.points.push_back({x, 0, front + layout.xLabels.Width()});
  }
  for (const double z : {0.0, depth}) {
    subject.points.push_back({right + layout.zLabels.Width(), 0, z});
  }
  const double xHeader = TextWidth(layout.xHeader, text) / 2;
  for (const double x : {width / 2 - xHeader, width / 2 + xHeader}) {
    subject.points.push_back({x, 0, front + layout.HeaderDistance(layout.xLabels) + text});
  }

  if (const double zHeader = TextWidth(layout.zHeader, text) / 2; zHeader > 0) {
    for (const double z : {depth / 2 - zHeader, depth / 2 + zHeader}) {
      subject.points.push_back({right + layout.HeaderDistance(layout.zLabels) + text, 0, z});
    }
  }

  // Value labels extend from the front left edge in the direction halfway between left and front.
  const auto addBesideEdge = [&](double distance, double y) {
    const double along = placement.yAxis.edge.plus + distance / std::numbers::sqrt2;
    subject.points.push_back(
        {-placement.yAxis.edge.part * width - along, y, kFront * depth + along});
  };
  for (const double y : {-text / 2, height + text / 2}) addBesideEdge(layout.yLabels.Width(), y);
  const double yHeader = TextWidth(layout.yHeader, text) / 2;
  for (const double y : {height / 2 - yHeader, height / 2 + yHeader}) {
    addBesideEdge(layout.HeaderDistance(layout.yLabels) + text, y);
  }

  if (!layout.title.empty()) {
    const double half = TextWidth(layout.title, layout.titleHeight) / 2;
    subject.signs.push_back(
        {{placement.titleX.Of(width), placement.titleY.Of(height), placement.titleZ.value_or(0)},
         -half,
         half,
         -0.25 * layout.titleHeight,
         layout.titleHeight});
  }
  if (layout.legend.texts.empty()) return subject;
  // Check box, key and text stand side by side.
  const double legendWidth = 2.3 * layout.legend.height + layout.legend.Width();
  subject.signs.push_back({{placement.legendX.Of(width), placement.legendY.Of(height), 0},
                           0,
                           legendWidth,
                           0,
                           layout.LegendHeight()});
  return subject;
}

}  // namespace orvane::tables
