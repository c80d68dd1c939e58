#include "stills/shapes/PartNames.h"

#include <algorithm>

namespace orvane::stills {

namespace {

template <typename T>
const std::vector<T>* ListOf(const Node& node, std::string_view name) {
  const int field = node.Find(name);
  return field < 0 ? nullptr : std::get_if<std::vector<T>>(&node.Field(field).value);
}

/// Calls `take` with the PROTO instances of that field below some nodes, not looking into PROTOs.
template <typename Take>
void ForInstances(const std::vector<Node*>& nodes, const Take& take, int depth = 0) {
  if (depth > 20) return;
  for (const Node* node : nodes) {
    if (!node) continue;
    if (node->Type().proto)
      take(*node);
    else if (const auto* children = ListOf<Node*>(*node, "children")) {
      ForInstances(*children, take, depth + 1);
    }
  }
}

std::string PlainName(const Node& instance) {
  std::string name = instance.TypeName();
  if (name.starts_with("qm4_")) name = name.substr(4);
  std::string words;
  for (const char c : name) {
    const bool isUpper = c >= 'A' && c <= 'Z';
    if (isUpper && !words.empty()) words += ' ';
    words += isUpper && !words.empty() ? static_cast<char>(c - 'A' + 'a') : c;
  }
  return words;
}

}  // namespace

void PartNames::Learn(const Scene& scene) {
  m_legend.clear();
  m_used.clear();
  for (const Node& node : scene.AllNodes()) {
    if (!node.Type().proto) continue;
    const auto* keys = ListOf<Node*>(node, "keyAppearances");
    const auto* texts = ListOf<std::string>(node, "entryTexts");
    for (std::size_t i = 0; keys && texts && i < std::min(keys->size(), texts->size()); ++i) {
      m_legend.emplace((*keys)[i], (*texts)[i]);
    }
  }
}

void PartNames::Enter(const Node& instance) {
  std::string name = SeriesOf(instance);
  if (name.empty()) name = ToggledSeries(instance);
  if (name.empty() && !m_owners.empty()) name = m_owners.back().name;
  if (name.empty() && ListOf<Node*>(instance, "contents") == nullptr) name = PlainName(instance);
  m_owners.push_back({&instance, std::move(name)});
}

std::string PartNames::SeriesOf(const Node& instance) const {
  const auto* looks = ListOf<Node*>(instance, "appearance");
  if (!looks || looks->empty()) return "";
  const auto found = m_legend.find((*looks)[0]);
  return found == m_legend.end() ? "" : found->second;
}

std::string PartNames::ToggledSeries(const Node& instance) const {
  std::string name;
  if (const auto* contents = ListOf<Node*>(instance, "contents")) {
    ForInstances(*contents, [&](const Node& inner) {
      if (name.empty()) name = SeriesOf(inner);
    });
  }
  return name;
}

void PartNames::Describe(Part& part, const Node& geometry, const Node* appearance) {
  const Owner* owner = m_owners.empty() ? nullptr : &m_owners.back();
  part.name = owner ? owner->name : "";
  if (part.kind == PartKind::Lines) part.name += part.name.empty() ? "Lines" : " lines";
  if (part.kind == PartKind::Text) {
    const auto& strings = geometry.Strings("string");
    part.name = strings.empty() ? "Text" : "Text " + strings[0];
  }
  const auto key = m_legend.find(appearance);
  const bool isKey = owner && owner->instance->Find("keyAppearances") >= 0;
  if (isKey && part.kind == PartKind::Faces && key != m_legend.end())
    part.name += " " + key->second;
  if (part.name.empty()) part.name = "Shape";
  const int count = ++m_used[part.name];
  if (count > 1) part.name += " " + std::to_string(count);
  if (part.kind != PartKind::Faces || !owner) return;

  const auto* values = ListOf<float>(*owner->instance, "heights");
  if (!values) values = ListOf<float>(*owner->instance, "height");
  const bool isSeries = values && ListOf<Node*>(*owner->instance, "appearance") != nullptr;
  if (!isSeries) return;
  part.values = *values;
  for (std::size_t i = m_owners.size(); i-- > 0 && part.texts.empty();) {
    const auto* contents = ListOf<Node*>(*m_owners[i].instance, "contents");
    if (!contents) continue;
    ForInstances(*contents, [&](const Node& inner) {
      const auto* texts = ListOf<std::string>(inner, "popupTexts");
      if (!texts) texts = ListOf<std::string>(inner, "popupText");
      if (texts) part.texts = *texts;
    });
  }
}

}  // namespace orvane::stills
