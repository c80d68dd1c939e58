#include "orvane/scene/RouteList.h"

#include "orvane/automation/Describe.h"
#include "orvane/scene/Node.h"
#include "orvane/scene/SceneError.h"

#include <string_view>

namespace orvane::scene {
namespace {

using host::ErrorNumber;

/// The field type of event `name` of `node`. An exposedField x is also the eventIn set_x and the
/// eventOut x_changed (ISO/IEC 14772-1, 4.7).
std::string_view EventType(const Node& node, std::string_view name, AccessKind direction) {
  const bool isOut = direction == AccessKind::EventOut;
  for (const auto& member : node.Interface()) {
    const std::string_view own = member.name;
    if (member.access == direction && own == name) return member.type;
    if (member.access != AccessKind::ExposedField) continue;
    const auto implied = isOut ? std::string(own) + "_changed" : "set_" + std::string(own);
    if (name == own || name == implied) return member.type;
  }
  Raise(ErrorNumber::UnknownEvent, std::string(node.TypeName()) + " has no " + NameOf(direction) +
                                       " \"" + std::string(name) + "\"");
}

}  // namespace

const host::TypeInfo& RouteList::Type() const {
  static const host::TypeInfo type =
      host::Describe<RouteList>("The ROUTE statements of a world.")
          .Method("AddRoute", &RouteList::AddRoute,
                  {"fromNode", "fromEventOut", "toNode", "toEventIn"}, {"Appends one ROUTE"})
          .Method("ClearRoutes", &RouteList::ClearRoutes, {}, {"Empties the list"});
  return type;
}

void RouteList::AddRoute(const std::shared_ptr<Node>& fromNode, const std::string& fromEventOut,
                         const std::shared_ptr<Node>& toNode, const std::string& toEventIn) {
  if (fromNode == nullptr || toNode == nullptr) {
    Raise(ErrorNumber::NoNode, "A ROUTE leads from a node to a node");
  }
  const auto from = EventType(*fromNode, fromEventOut, AccessKind::EventOut);
  const auto to = EventType(*toNode, toEventIn, AccessKind::EventIn);
  if (from != to) {
    Raise(ErrorNumber::EventTypeMismatch,
          std::string(fromNode->TypeName()) + "." + fromEventOut + " sends " + std::string(from) +
              ", " + toNode->TypeName() + "." + toEventIn + " takes " + std::string(to));
  }
  m_routes.push_back({fromNode, fromEventOut, toNode, toEventIn});
}

}  // namespace orvane::scene
