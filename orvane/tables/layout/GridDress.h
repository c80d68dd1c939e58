/// What every chart over a grid gets from the program, whatever stands on the grid.
#pragma once

#include "orvane/components/Axis.h"
#include "orvane/components/ContinuousAxis.h"
#include "orvane/components/GridInfo.h"
#include "orvane/tables/ChartOptions.h"
#include "orvane/tables/layout/ChartDress.h"
#include "orvane/tables/layout/GridLayout.h"

#include <string>

namespace orvane::tables {

/// Sky, title, legend, viewpoints and lights. Afterwards the middle of the grid is the origin of
/// the world, about which viewers turn it.
///
/// `subject` is all that has to be in view, in the frame of the grid.
void DressAroundGrid(Chart& chart, ChartLegend& legend, const GridLayout& layout,
                     const Subject& subject, const ChartOptions& options);

/// How strongly lines are drawn that stand `pitch` apart, from 0.1 to 1: the closer together, the
/// fainter, or they would hide what they are drawn on.
double LineStrength(double pitch, const GridLayout& layout);

/// Extents and colours. `pitch` is the least distance between two lines.
void DressGrid(GridInfo& grid, const GridLayout& layout, double pitch, const Style& style);

/// Texts, sizes and colours of an axis.
void DressAxis(Axis& axis, const LabelColumn& labels, const std::string& header,
               const GridLayout& layout, const Style& style);

/// Range and number format of the labels.
void DressValues(ContinuousAxis& axis, const ValueScale& scale);

/// Cells, lines and walls of the grid, and the axes of a chart with values along all three.
void DressValueGrid(GridInfo& grid, const ValueAxes& axes, const GridLayout& layout,
                    const Style& style);
void DressValueAxes(ContinuousAxis& x, ContinuousAxis& y, ContinuousAxis& z, const ValueAxes& axes,
                    const GridLayout& layout, const Style& style);

}  // namespace orvane::tables
