/// The step that every chart repeats for each of its series: a legend entry, and the check box that
/// shows and hides the series.
#pragma once

#include "orvane/components/LegendInfo.h"
#include "orvane/scene/RouteList.h"
#include "orvane/scene/UiProtos.h"

#include <cstdint>
#include <memory>
#include <string>

namespace orvane {

/// One run through a chart's series. It begins with an empty legend; `Finish` ends it.
class ORVANE_API LegendWiring {
 public:
  LegendWiring(LegendInfo& legend, scene::RouteList& routes) : m_legend(legend), m_routes(routes) {
    m_legend.ClearLegend();
  }

  /// Takes the name of an earlier export off a series that has no entry now.
  static void Skip(scene::ContentToggle& toggle) { toggle.SetDefName(""); }

  /// Adds an entry. When check boxes are in use, names `toggle` and routes the entry's box to it,
  /// and returns the box; else returns nullptr.
  std::shared_ptr<scene::Node> Add(const std::shared_ptr<scene::Appearance>& appearance,
                                   const std::string& text,
                                   const std::shared_ptr<scene::ContentToggle>& toggle,
                                   const std::string& toggleName);

  /// Shows the entries.
  void Finish() { m_legend.ShowPending(); }

 private:
  LegendInfo& m_legend;
  scene::RouteList& m_routes;
  std::int16_t m_entryCount = 0;
};

}  // namespace orvane
