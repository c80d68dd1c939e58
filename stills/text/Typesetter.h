/// Sets texts as meshes of their letters.
#pragma once

#include "stills/Still.h"
#include "stills/scene/Node.h"

#include <memory>

namespace orvane::stills {

/// Keeps the fonts and letters that have been used. Texts come out as wide as in the viewer page;
/// letters that its fonts lack come from the system's.
class Typesetter {
 public:
  Typesetter();
  ~Typesetter();

  /// The mesh of a Text node in its own frame; none for a text without ink.
  std::shared_ptr<const Mesh> Set(const Node& text);

 private:
  class Fonts;
  std::unique_ptr<Fonts> m_fonts;
};

}  // namespace orvane::stills
