/// The surfaces of a chart, and the step of its export that lays them out.
#pragma once

#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Trimmed.h"
#include "orvane/graphs/LegendWiring.h"
#include "orvane/graphs/SeriesCollection.h"
#include "orvane/scene/ListFields.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace orvane {

/// `S` is the class of its surfaces, a LatticeSurface. Indexes count from 1.
template <class S>
class SurfaceList {
 public:
  /// `noun` is what the error for a wrong index calls a surface: "surface".
  explicit SurfaceList(std::string noun) : m_noun(std::move(noun)) {}

  std::int16_t Count() const { return m_surfaces.Count(); }

  /// Adds surfaces that `make` makes, all of them or none, or removes trailing ones. A component
  /// error for a negative count.
  void Count(std::int16_t count, const SeriesCollection::Make& make) {
    m_surfaces.Resize(count, make);
  }

  /// Surface `index`; a component error outside 1..Count.
  std::shared_ptr<S> Get(std::int16_t index) const {
    const auto message = "Invalid " + m_noun + " index, surface count = " + std::to_string(Count());
    host::Require(index >= 1 && index <= Count(), message.c_str());
    return m_surfaces.Get<S>(index);
  }

  /// Brings each surface up to date with `place(surface)`, puts it into `children`, and gives it a
  /// legend entry and its check box unless its text is blank.
  template <class F>
  void LayOut(scene::MFNode& children, LegendWiring& legend, F place) const {
    for (const std::int16_t i : Indexes(Count())) {
      auto& surface = *Get(i);
      place(surface);
      children.Append(surface.RootNode());
      if (host::Trimmed(surface.LegendText()).empty()) {
        LegendWiring::Skip(*surface.ContentToggle());
      } else {
        legend.Add(surface.Appearance(), surface.LegendText(), surface.ContentToggle(),
                   "SURFACE_" + std::to_string(i));
      }
    }
  }

 private:
  std::string m_noun;
  SeriesCollection m_surfaces;
};

}  // namespace orvane
