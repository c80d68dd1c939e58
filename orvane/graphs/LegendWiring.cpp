#include "orvane/graphs/LegendWiring.h"

namespace orvane {

std::shared_ptr<scene::Node> LegendWiring::Add(const std::shared_ptr<scene::Appearance>& appearance,
                                               const std::string& text,
                                               const std::shared_ptr<scene::ContentToggle>& toggle,
                                               const std::string& toggleName) {
  m_legend.AddPending(appearance, text);
  ++m_entryCount;
  if (!m_legend.UseSeriesToggle()) {
    Skip(*toggle);
    return nullptr;
  }
  toggle->SetDefName(toggleName);
  auto checkBox = m_legend.Get1CheckBox(m_entryCount);
  m_routes.AddRoute(checkBox, "value_changed", toggle, "set_contentsExist");
  return checkBox;
}

}  // namespace orvane
