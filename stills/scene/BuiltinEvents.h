/// What nodes of the standard do with events that are not simply values of a field.
#pragma once

#include "stills/scene/Node.h"

#include <optional>
#include <string_view>

namespace orvane::stills {

/// What has become of an event: a field has a new value, which the node tells or not.
struct Reaction {
  int field;
  Value value;
  bool isSent;
};

/// What a node does when `field`, an eventIn, takes a value; nothing for events that only a viewer
/// with a clock or a pointer would act on.
std::optional<Reaction> React(const Node& node, int field, const Value& value);

}  // namespace orvane::stills
