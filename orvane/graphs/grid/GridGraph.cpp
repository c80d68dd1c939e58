#include "orvane/graphs/grid/GridGraph.h"

#include "orvane/host/Arithmetic.h"
#include "orvane/scene/frmMain.h"

namespace orvane {
namespace {

using host::Int16;
using host::Quotient;
using host::Single;

constexpr float kEighthTurn = 0.7854F;

/// What stands at the edge of the grid keeps clear of it by this part of the extent.
constexpr double kEdge = 1.02;

}  // namespace

GridGraph::GridGraph()
    : m_grid(std::make_shared<GridInfo>()),
      m_legend(std::make_shared<LegendInfo>()),
      m_yAxis(std::make_shared<ContinuousAxis>()),
      m_contents(scene::Create<scene::Group>()) {}

void GridGraph::AssembleGrid(const Axis& xAxis, const Axis& zAxis, const ISceneRoot* navigation) {
  Assemble({BackgroundProps().get(), TitleProps().get(), m_grid.get(), m_legend.get(), &xAxis,
            m_yAxis.get(), &zAxis});
  if (navigation != nullptr) Assemble({navigation});
  Assemble({Viewpoints().get(), Lights().get()});
  RootNode()->children.Append(m_contents);
}

void GridGraph::Arrange() {
  AlignTitle();
  AlignLegend();
  AlignXAxis();
  AlignYAxis();
  AlignZAxis();
  LegendWiring legend(*m_legend, Routes());
  Contents().Clear();
  BuildSeries(legend);
  BuildNavigation();
}

float GridGraph::CellWidth() const {
  return Single(Quotient(m_grid->Width(), m_grid->XAxisCellCount()));
}

float GridGraph::CellDepth() const {
  return Single(Quotient(m_grid->Depth(), m_grid->ZAxisCellCount()));
}

void GridGraph::AlignTitle() {
  auto& translation = TitleProps()->Root()->translation;
  translation.X(Single(m_grid->Width() / 2.0));
  translation.Y(Single(1.1 * m_grid->Height()));
}

void GridGraph::AlignLegend() {
  auto& translation = m_legend->Root()->translation;
  translation.X(Single(1.1 * m_grid->Width()));
  translation.Y(Single(0.1 * m_grid->Height()));
}

AxisPlacement GridGraph::XAxisPlacement(const Axis& axis, LabelsAt place) const {
  const bool isInCells = place == LabelsAt::Cells;
  const double first = isInCells ? CellWidth() / 2.0 : 0;
  // Flat on the floor in front of the grid, reading towards the back.
  return {.count = Int16(m_grid->XAxisCellCount() + (isInCells ? 0 : 1)),
          .alignment = LabelAlignment::RIGHT_ALIGN,
          .gap = CellWidth(),
          .x = first - axis.LabelHeight() / 2.0,
          .y = {},
          .z = kEdge * m_grid->Depth(),
          .xAngle = -kQuarterTurn,
          .yAngle = kQuarterTurn};
}

void GridGraph::AlignYAxis() {
  const double height = m_grid->Height();
  // Upright at the front left edge, turned towards the corner view, one label a grid line.
  Place(*m_yAxis,
        {.count = Int16(m_grid->YAxisCellCount() + 1),
         .alignment = LabelAlignment::RIGHT_ALIGN,
         .gap = Single(Quotient(height, m_grid->YAxisCellCount())),
         .x = -0.02 * m_grid->Width(),
         .y = height + m_yAxis->LabelHeight() / 2.0,
         .z = kEdge * m_grid->Depth(),
         .yAngle = kEighthTurn},
        LabelingOrder::MAX_TO_MIN);
}

AxisPlacement GridGraph::ZAxisPlacement(const Axis& axis, LabelsAt place) const {
  const bool isInCells = place == LabelsAt::Cells;
  const double first = isInCells ? CellDepth() / 2.0 : 0;
  // Flat on the floor to the right of the grid, the first label at the back.
  return {.count = Int16(m_grid->ZAxisCellCount() + (isInCells ? 0 : 1)),
          .alignment = LabelAlignment::LEFT_ALIGN,
          .gap = CellDepth(),
          .x = kEdge * m_grid->Width(),
          .y = {},
          .z = first - axis.LabelHeight() / 2.0,
          .xAngle = -kQuarterTurn};
}

float GridGraph::ConeLift(float coneHeight) { return Single(0.55 * coneHeight); }

void GridGraph::AlignDrillUp(const DrillUpInfo& drillUp) const {
  auto& translation = drillUp.Root()->translation;
  translation.X(m_grid->Width());
  translation.Y(ConeLift(drillUp.ConeHeight()));
  translation.Z(m_grid->Depth());
}

}  // namespace orvane
