/// The ROUTE statements of a world, in the order in which they were added.
#pragma once

#include "orvane/automation/Object.h"

#include <memory>
#include <string>
#include <vector>

namespace orvane::scene {

class Node;

struct Route {
  std::shared_ptr<Node> fromNode;
  std::string fromEventOut;
  std::shared_ptr<Node> toNode;
  std::string toEventIn;
};

class ORVANE_API RouteList final : public host::Object {
 public:
  static constexpr const char* kClassName = "RouteList";
  const host::TypeInfo& Type() const override;

  /// Appends one ROUTE. The nodes may be named later, but by the time the scene is written both
  /// need a DEF name. Raises NoNode, UnknownEvent, and EventTypeMismatch.
  void AddRoute(const std::shared_ptr<Node>& fromNode, const std::string& fromEventOut,
                const std::shared_ptr<Node>& toNode, const std::string& toEventIn);
  void ClearRoutes() { m_routes.clear(); }

  const std::vector<Route>& Routes() const { return m_routes; }

 private:
  std::vector<Route> m_routes;
};

}  // namespace orvane::scene
