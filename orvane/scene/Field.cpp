#include "orvane/scene/Field.h"

#include "orvane/scene/Node.h"
#include "orvane/scene/SceneError.h"

#include <sstream>

namespace orvane::scene {

const char* NameOf(AccessKind access) {
  switch (access) {
    case AccessKind::Field:
      return "field";
    case AccessKind::ExposedField:
      return "exposedField";
    case AccessKind::EventIn:
      return "eventIn";
    case AccessKind::EventOut:
      return "eventOut";
  }
  return "";
}

namespace {

const char* NameOf(NodeRole role) {
  switch (role) {
    case NodeRole::Any:
      return "nodes";
    case NodeRole::Child:
      return "children nodes";
    case NodeRole::Appearance:
      return "Appearance";
    case NodeRole::Material:
      return "Material";
    case NodeRole::Texture:
      return "texture nodes";
    case NodeRole::TextureTransform:
      return "TextureTransform";
    case NodeRole::Geometry:
      return "geometry nodes";
    case NodeRole::FontStyle:
      return "FontStyle";
  }
  return "";
}

}  // namespace

Field::Field(Node& owner, const char* name, const char* type, AccessKind access)
    : m_owner(&owner), m_name(name) {
  owner.AddToInterface({name, type, access, this});
}

void Field::VisitNodes(const std::function<void(const Node&)>& /*visit*/) const {}

std::shared_ptr<host::Object> Field::Self() {
  // A field is a member of its node: the pointer shares ownership of the node.
  if (m_owner != nullptr) return {m_owner->shared_from_this(), this};
  return shared_from_this();
}

std::string Field::Where() const {
  return m_owner == nullptr ? Type().Name() : m_owner->TypeName() + std::string(".") + m_name;
}

const std::shared_ptr<Node>& Field::Checked(const std::shared_ptr<Node>& node,
                                            NodeRole role) const {
  if (node != nullptr && role != NodeRole::Any && node->Role() != role) {
    Raise(host::ErrorNumber::TypeMismatch,
          Where() + " takes " + NameOf(role) + ", not " + node->TypeName());
  }
  return node;
}

void Field::RaiseRange(double value, const Interval& range) const {
  if (!(value - value == 0)) {
    Raise(host::ErrorNumber::NotFinite, Where() + " takes finite numbers only");
  }
  std::ostringstream message;
  message << Where() << " takes numbers in the range " << (range.isOpen ? '(' : '[') << range.low
          << ".." << range.high << (range.isOpen ? ')' : ']') << ", got " << value;
  Raise(host::ErrorNumber::OutOfRange, message.str());
}

}  // namespace orvane::scene
