/// How large a grid chart and its texts are, so that labels stay readable and never run into each
/// other.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/graphs/GridPlacement.h"
#include "orvane/tables/ChartOptions.h"
#include "orvane/tables/layout/ValueScale.h"
#include "orvane/tables/layout/Views.h"
#include "orvane/tables/read/Table.h"

#include <cstddef>
#include <string>
#include <vector>

namespace orvane::tables {

/// The labels of an axis, one a cell or grid line: empty where a label would not fit.
struct LabelColumn {
  std::vector<std::string> texts;
  double height = 0;

  /// An upper estimate of the widest text.
  double Width() const;
};

/// What a chart over a grid says: one label a cell along x and z, one entry a series or surface.
struct GridTexts {
  std::vector<std::string> x;
  std::vector<std::string> z;
  std::vector<std::string> legend;
  std::string xHeader;
  std::string unit = {};  ///< Of the values: "%" or a currency.
};

/// Texts and sizes of a chart over a grid. Lengths are in scene units.
struct ORVANE_API GridLayout {
  GridSize size;
  ValueScale scale;
  LabelColumn xLabels;
  LabelColumn yLabels;
  LabelColumn zLabels;
  LabelColumn legend;
  std::string xHeader;
  std::string yHeader;  ///< The unit of the values, when it is not 1.
  std::string zHeader;
  std::string title;
  double titleHeight = 0;
  double textHeight = 0;  ///< Of headers and popups, and of labels that have the room.
  GridPlacement placement;

  double CellWidth() const { return size.width / static_cast<double>(xLabels.texts.size()); }
  double CellDepth() const { return size.depth / static_cast<double>(zLabels.texts.size()); }
  double LegendHeight() const;
  /// Where the x axis with its labels and header ends in front of the grid, at most.
  double FrontEdge() const;
  /// How far from the origin of `labels` their header begins.
  double HeaderDistance(const LabelColumn& labels) const {
    return labels.Width() + 0.4 * textHeight;
  }
};

/// The labels of an axis of values that is `extent` long, from the highest down, as high as
/// `wanted` where there is room.
LabelColumn LayOutNumbers(const ValueScale& scale, double extent, double wanted);

/// The layout for `table`: categories along x, values along y, one series a cell along z, or all in
/// one cell when they are grouped.
ORVANE_API GridLayout LayOutSeries(const Table& table, const ChartOptions& options);

/// The texts of a table with a row of series in each cell along z.
GridTexts TextsOf(const Table& table);

/// The smallest and the largest of a table's numbers.
struct ValueRange {
  double lowest = 0;
  double highest = 0;
};
ValueRange RangeOf(const Table& table);

/// How many cells a value axis has at most.
inline constexpr int kMostValueCells = 6;

/// The layout for other charts with categories along x and z; `usual` is the size that suits the
/// data.
GridLayout LayOutCategories(const GridTexts& texts, const ValueScale& scale, const GridSize& usual,
                            const ChartOptions& options);

/// What a chart with values along all three axes says.
struct ValueAxes {
  ValueScale x;
  ValueScale y;
  ValueScale z;
  std::string xHeader;
  std::string yHeader;
  std::string zHeader;

  /// `header` with the unit of `scale`, when that is not 1.
  static std::string HeaderOf(const std::string& header, const ValueScale& scale);
};

/// The layout for charts with values along all three axes and a legend with an entry for each of
/// `names`; `placement` is that of a new chart.
GridLayout LayOutValues(const ValueAxes& axes, const std::vector<std::string>& names,
                        const GridSize& usual, const ChartOptions& options,
                        const GridPlacement& placement = {});

/// The size that suits that many cells of a chart with series.
GridSize SizeFor(std::size_t xCells, std::size_t zCells);

/// All that has to be in view, in the frame of the grid.
Subject SubjectOf(const GridLayout& layout);

}  // namespace orvane::tables
