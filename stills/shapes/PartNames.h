/// Names for what is seen, as a chart's reader knows it: the series', not numbers.
#pragma once

#include "stills/Still.h"
#include "stills/scene/Scene.h"

#include <map>
#include <string>
#include <vector>

namespace orvane::stills {

/// A legend has a text for each Appearance that a series is drawn in. So whatever is drawn by a
/// PROTO with that Appearance, or stands with it behind one toggle, belongs to the series of that
/// name.
class PartNames {
 public:
  /// Looks for the legends of a scene.
  void Learn(const Scene& scene);

  /// A walk goes into a PROTO, and comes out of it.
  void Enter(const Node& instance);
  void Leave() { m_owners.pop_back(); }

  /// Gives a part its name and, to the faces of a series, its values.
  void Describe(Part& part, const Node& geometry, const Node* appearance);

 private:
  struct Owner {
    const Node* instance;
    std::string name;
  };

  std::string SeriesOf(const Node& instance) const;
  std::string ToggledSeries(const Node& instance) const;

  std::map<const Node*, std::string> m_legend;  ///< by Appearance
  std::vector<Owner> m_owners;
  std::map<std::string, int> m_used;
};

}  // namespace orvane::stills
