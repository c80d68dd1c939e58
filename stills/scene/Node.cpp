#include "stills/scene/Node.h"

namespace orvane::stills {

Node::Node(std::shared_ptr<const NodeType> type) : m_type(std::move(type)) {
  m_fields.reserve(m_type->interface.fields.size());
  for (const FieldText& field : m_type->interface.fields) {
    m_fields.emplace_back().value = field.value;
    if (field.type == FieldType::SFNode) m_fields.back().value = std::vector<Node*>(1);
  }
}

const Node* Node::Child(std::string_view name) const {
  const auto& nodes = Nodes(name);
  return nodes.empty() || !nodes[0] ? nullptr : nodes[0]->Shown();
}

const Node* Node::Shown() const {
  const Node* node = this;
  while (node && node->m_type->proto) node = node->body.empty() ? nullptr : node->body[0];
  return node;
}

}  // namespace orvane::stills
