#include "stills/scene/BuiltinEvents.h"

#include <algorithm>

namespace orvane::stills {

namespace {

Reaction ChangeChildren(const Node& node, const Value& value, bool isAdded) {
  std::vector<Node*> children = node.Nodes("children");
  for (Node* child : std::get<std::vector<Node*>>(value)) {
    std::erase(children, child);
    if (isAdded && child) children.push_back(child);
  }
  return {node.Find("children"), std::move(children), true};
}

/// Linear between keys, number by number, as all interpolators of the standard but the one of
/// orientations, which here keeps to the axis and turns about it.
std::optional<Reaction> Interpolate(const Node& node, float fraction) {
  const auto& keys = node.Floats("key");
  const auto& values = node.Floats("keyValue");
  if (keys.empty() || values.size() < keys.size()) return std::nullopt;
  const std::size_t size = values.size() / keys.size();
  const auto after =
      static_cast<std::size_t>(std::ranges::upper_bound(keys, fraction) - keys.begin());
  const std::size_t b = std::min(after, keys.size() - 1), a = after == 0 ? 0 : after - 1;
  const float span = keys[b] - keys[a];
  const float part = span > 0 ? (fraction - keys[a]) / span : 0;
  std::vector<float> result(size);
  for (std::size_t i = 0; i < size; ++i) {
    result[i] = values[a * size + i] + part * (values[b * size + i] - values[a * size + i]);
  }
  return Reaction{node.Find("value_changed"), std::move(result), true};
}

}  // namespace

std::optional<Reaction> React(const Node& node, int field, const Value& value) {
  const std::string_view name = node.Declared(field).name;
  if (name == "addChildren") return ChangeChildren(node, value, true);
  if (name == "removeChildren") return ChangeChildren(node, value, false);
  if (name == "set_fraction") return Interpolate(node, std::get<std::vector<float>>(value)[0]);
  if (name.starts_with("set_")) {  // of a plain field: set_coordIndex, set_height
    const int plain = node.Find(name.substr(4));
    if (plain >= 0) return Reaction{plain, value, false};
  }
  return std::nullopt;
}

}  // namespace orvane::stills
