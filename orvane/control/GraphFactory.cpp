#include "orvane/control/GraphFactory.h"

#include "orvane/automation/Describe.h"

namespace orvane {

const host::TypeInfo& GraphFactory::Type() const {
  using F = GraphFactory;
  // One line for each kind of chart, in slot order.
  static const host::TypeInfo type =
      host::Describe<F>("The factory of the charts.")
          .Method("CreateAreaGraph", &F::CreateAreaGraph, {}, {"A new area chart"})
          .Method("CreateColumnGraph", &F::CreateColumnGraph, {}, {"A new column chart"})
          .Method("CreatePieGraph", &F::CreatePieGraph, {}, {"A new pie chart"})
          .Method("CreateRibbonGraph", &F::CreateRibbonGraph, {}, {"A new ribbon chart"})
          .Method("CreateScatterGraph", &F::CreateScatterGraph, {}, {"A new scatter chart"})
          .Method("CreateSurfaceGraph", &F::CreateSurfaceGraph, {}, {"A new surface chart"})
          .Method("CreateDensityGraph", &F::CreateDensityGraph, {}, {"A new density chart"})
          .Method("CreateSCComboGraph", &F::CreateSCComboGraph, {},
                  {"A new chart of columns under surfaces"})
          .Method("CreateRCComboGraph", &F::CreateRCComboGraph, {},
                  {"A new chart of ribbons under surfaces"});
  return type;
}

}  // namespace orvane
