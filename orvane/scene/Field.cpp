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
