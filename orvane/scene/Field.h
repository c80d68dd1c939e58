/// What every field of a node has in common, and the interface of a node as a list of entries.
#pragma once

#include "orvane/automation/Interval.h"
#include "orvane/automation/Object.h"

#include <functional>
#include <memory>
#include <string>

namespace orvane::scene {

class Field;
class Node;
class SceneWriter;
enum class NodeRole;

/// How VRML97 lets a field or event of a node be used.
enum class AccessKind { Field, ExposedField, EventIn, EventOut };

/// "field", "exposedField", "eventIn" or "eventOut".
ORVANE_API const char* NameOf(AccessKind access);

/// One line of a node's interface.
struct InterfaceEntry {
  const char* name;
  const char* type;  ///< VRML97 field type, "SFFloat".
  AccessKind access;
  Field* field;  ///< nullptr for an eventIn or eventOut, which hold no value.
};

using host::Interval;
using host::kAnyNumber;
using host::kNotNegative;
using host::kPositive;
using host::kUnit;

/// A field object: bound to its node for life, or free-standing. Changing it changes the scene.
class ORVANE_API Field : public host::Object {
 public:
  static constexpr const char* kClassName = "Field";

  /// True while the value is the one that VRML97 or the PROTO declares; such a field is not
  /// written.
  virtual bool IsDefault() const = 0;
  /// Writes the value as VRML97 text.
  virtual void Write(SceneWriter& out) const = 0;
  /// About how many characters the value takes as text: 0 unless it may be long.
  virtual std::size_t ExpectedSize() const { return 0; }
  /// What VRML97 lets the field's numbers be.
  virtual Interval Range() const { return kAnyNumber; }
  /// Calls `visit` for every node that the field holds, in order.
  virtual void VisitNodes(const std::function<void(const Node&)>& visit) const;

  std::shared_ptr<host::Object> Self() override;

  /// "Transform.translation", or the field type when free-standing. For messages.
  std::string Where() const;

 protected:
  Field() = default;
  /// Becomes the next entry of the interface of `owner`.
  Field(Node& owner, const char* name, const char* type, AccessKind access);

  /// `value` when it is finite and in `range`; else NotFinite or OutOfRange, naming the field.
  template <class T>
  T Checked(T value, const Interval& range = kAnyNumber) const {
    if (!(value - value == 0) || !range.Contains(value)) RaiseRange(value, range);
    return value;
  }

  /// `node` when it may stand in a field for `role`; else TypeMismatch, naming the field.
  const std::shared_ptr<Node>& Checked(const std::shared_ptr<Node>& node, NodeRole role) const;

  [[noreturn]] void RaiseRange(double value, const Interval& range) const;

 private:
  Node* m_owner = nullptr;
  const char* m_name = nullptr;
};

/// An eventIn or eventOut of field type `F`: declared so that ROUTEs can be checked and
/// EXTERNPROTOs written; it holds no value.
template <class F>
struct EventIn {
  EventIn(Node& owner, const char* name);
};

template <class F>
struct EventOut {
  EventOut(Node& owner, const char* name);
};

}  // namespace orvane::scene
