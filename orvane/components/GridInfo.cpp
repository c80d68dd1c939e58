#include "orvane/components/GridInfo.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Describe.h"
#include "orvane/scene/frmMain.h"

#include <limits>

namespace orvane {
namespace {

using host::Int16;
using host::Quotient;
using host::Single;

std::int16_t CellCount(const scene::SFInt32& lineCount) { return Int16(lineCount.Value() - 1); }

float Extent(const scene::SFInt32& lineCount, const scene::SFFloat& spacing) {
  return Single(static_cast<double>(spacing.Value()) * CellCount(lineCount));
}

/// The size of one of `cells` cells. Raises Overflow when that is too small for a float of full
/// precision, so that sizes taken from it never come to 0. Only a grid without extent has cells of
/// size 0.
float CellSize(float extent, std::int16_t cells) {
  const float size = Single(Quotient(extent, cells));
  if (size < std::numeric_limits<float>::min() && extent != 0) {
    throw host::AutomationError(host::ErrorNumber::Overflow,
                                "Overflow: a grid cell of that size does not fit a 32-bit float");
  }
  return size;
}

void SetExtent(float extent, const scene::SFInt32& lineCount, scene::SFFloat& spacing,
               const char* message) {
  host::Require(extent > 0, message);
  spacing.Value(CellSize(extent, CellCount(lineCount)));
}

/// Sets count and spacing, which go back when the chart does not follow.
void SetCellCount(std::int16_t count, scene::SFInt32& lineCount, scene::SFFloat& spacing,
                  host::Event<std::int16_t>* followed, const char* message) {
  host::Require(count >= 1, message);
  const std::int16_t lines = Int16(count + 1);
  const float cell = CellSize(Extent(lineCount, spacing), count);
  const std::int32_t oldLines = lineCount.Value();
  const float oldCell = spacing.Value();
  lineCount.Value(lines);
  spacing.Value(cell);
  try {
    if (followed != nullptr) (*followed)(count);
  } catch (...) {
    lineCount.Value(oldLines);
    spacing.Value(oldCell);
    throw;
  }
}

}  // namespace

const host::TypeInfo& GridInfo::Type() const {
  static const host::TypeInfo type =
      host::Describe<GridInfo>("The box of grid lines and walls that a chart's data stands in.")
          .Property<float>("Width", &GridInfo::Width, &GridInfo::Width,
                           {"Extent along X, of cells from 1.17549e-38 up; keeps their count",
                            "scene units", host::kPositive})
          .Property<std::int16_t>("XAxisCellCount", &GridInfo::XAxisCellCount,
                                  &GridInfo::XAxisCellCount,
                                  {"Cells along X; keeps Width", "", host::Interval{1, 32766}})
          .Property<float>("Height", &GridInfo::Height, &GridInfo::Height,
                           {"Extent along Y, of cells from 1.17549e-38 up; keeps their count",
                            "scene units", host::kPositive})
          .Property<std::int16_t>("YAxisCellCount", &GridInfo::YAxisCellCount,
                                  &GridInfo::YAxisCellCount,
                                  {"Cells along Y; keeps Height", "", host::Interval{1, 32766}})
          .Property<float>("Depth", &GridInfo::Depth, &GridInfo::Depth,
                           {"Extent along Z, of cells from 1.17549e-38 up; keeps their count",
                            "scene units", host::kPositive})
          .Property<std::int16_t>("ZAxisCellCount", &GridInfo::ZAxisCellCount,
                                  &GridInfo::ZAxisCellCount,
                                  {"Cells along Z; keeps Depth", "", host::Interval{1, 32766}})
          .Color("LineColor", &GridInfo::LineColor, &GridInfo::LineColor, {"Colour of the lines"})
          .Color("WallColor", &GridInfo::WallColor, &GridInfo::WallColor, {"Colour of the walls"})
          .Property<float>("Transparency", &GridInfo::Transparency, &GridInfo::Transparency,
                           {"Transparency of the walls", "", host::kUnit})
          .Event("XCellCountChanged", &GridInfo::XCellCountChanged, {"newCount"},
                 "A let of XAxisCellCount has changed the grid")
          .Event("YCellCountChanged", &GridInfo::YCellCountChanged, {"newCount"},
                 "A let of YAxisCellCount has changed the grid")
          .Event("ZCellCountChanged", &GridInfo::ZCellCountChanged, {"newCount"},
                 "A let of ZAxisCellCount has changed the grid");
  return type;
}

GridInfo::GridInfo()
    : m_grid(scene::Create<scene::ChartGrid>()),
      m_wallAppearance(scene::Create<scene::Appearance>()),
      m_wallMaterial(scene::Create<scene::Material>()) {
  Root()->children.Append(m_grid);
  m_grid->wallAppearance.Value(m_wallAppearance);
  m_wallAppearance->material.Value(m_wallMaterial);
  LineColor(0);
  WallColor(0xFFFFFF);
}

float GridInfo::Width() const { return Extent(m_grid->xLineCount, m_grid->xSpacing); }

void GridInfo::Width(float value) {
  SetExtent(value, m_grid->xLineCount, m_grid->xSpacing, "The graph must be wider than 0");
}

std::int16_t GridInfo::XAxisCellCount() const { return CellCount(m_grid->xLineCount); }

void GridInfo::XAxisCellCount(std::int16_t count) {
  SetCellCount(count, m_grid->xLineCount, m_grid->xSpacing, &XCellCountFollowed,
               "The graph must have at least one cell on the X axis");
  XCellCountChanged(count);
}

float GridInfo::Height() const { return Extent(m_grid->yLineCount, m_grid->ySpacing); }

void GridInfo::Height(float value) {
  SetExtent(value, m_grid->yLineCount, m_grid->ySpacing, "The graph must be taller than 0");
}

std::int16_t GridInfo::YAxisCellCount() const { return CellCount(m_grid->yLineCount); }

void GridInfo::YAxisCellCount(std::int16_t count) {
  SetCellCount(count, m_grid->yLineCount, m_grid->ySpacing, nullptr,
               "The graph must have at least one cell on the Y axis");
  YCellCountChanged(count);
}

float GridInfo::Depth() const { return Extent(m_grid->zLineCount, m_grid->zSpacing); }

void GridInfo::Depth(float value) {
  SetExtent(value, m_grid->zLineCount, m_grid->zSpacing, "The graph must be deeper than 0");
}

std::int16_t GridInfo::ZAxisCellCount() const { return CellCount(m_grid->zLineCount); }

void GridInfo::ZAxisCellCount(std::int16_t count) {
  SetCellCount(count, m_grid->zLineCount, m_grid->zSpacing, &ZCellCountFollowed,
               "The graph must have at least one cell on the Z axis");
  ZCellCountChanged(count);
}

void GridInfo::Transparency(float value) {
  host::Require(value >= 0 && value <= 1, "Transparency must be in the range [0..1]");
  m_wallMaterial->transparency.Value(value);
}

}  // namespace orvane
