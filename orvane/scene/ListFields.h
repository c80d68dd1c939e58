/// The list-valued field types of VRML97: MFNode, MFString, MFFloat, MFColor, MFVec2f and MFVec3f.
///
/// Indexes count from 1. Reading, replacing or removing an entry outside 1..Count raises ListIndex.
#pragma once

#include "orvane/scene/Field.h"
#include "orvane/scene/Geometry.h"
#include "orvane/scene/Node.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orvane::scene {

/// What all lists share.
template <class F, class T>
class ORVANE_API ListField : public Field {
 public:
  using List = std::vector<T>;

  std::int32_t Count() const { return static_cast<std::int32_t>(m_items.size()); }
  T Item(std::int32_t index) const { return m_items[Position(index)]; }
  void RemoveAt(std::int32_t index) {
    m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(Position(index)));
  }
  void Clear() { m_items.clear(); }
  /// Replaces the entries of `list` with a copy of these, or none when it may not hold one of them.
  void CopyTo(const std::shared_ptr<F>& list) const {
    if (list == nullptr) RaiseNoList();
    CopyTo(*list);
  }
  void CopyTo(F& list) const { list.Items(m_items); }

  const List& Items() const { return m_items; }
  /// Replaces all entries, or none when one of them raises.
  void Items(List items) {
    Check(items);
    m_items = std::move(items);
  }

  bool IsDefault() const override { return m_items == m_default; }
  void Write(SceneWriter& out) const override;
  std::size_t ExpectedSize() const override;

 protected:
  ListField() = default;
  ListField(Node& owner, const char* name, List items, AccessKind access)
      : Field(owner, name, F::kClassName, access), m_items(items), m_default(std::move(items)) {}

  /// The 0-based place of entry `index`.
  std::size_t Position(std::int32_t index) const {
    if (index < 1 || index > Count()) RaiseIndex(index, Count());
    return static_cast<std::size_t>(index - 1);
  }

  List m_items;

 private:
  /// Raises for an entry that the field may not hold.
  virtual void Check(const List& /*items*/) const {}
  [[noreturn]] void RaiseIndex(std::int32_t index, std::int32_t count) const;
  [[noreturn]] void RaiseNoList() const;

  List m_default;
};

/// Nodes stand one a line, one level deeper than their list.
template <>
ORVANE_API void ListField<class MFNode, std::shared_ptr<Node>>::Write(SceneWriter& out) const;

class ORVANE_API MFString final : public ListField<MFString, std::string> {
 public:
  static constexpr const char* kClassName = "MFString";
  const host::TypeInfo& Type() const override;

  MFString() = default;
  MFString(Node& owner, const char* name, List items = {},
           AccessKind access = AccessKind::ExposedField)
      : ListField(owner, name, std::move(items), access) {}

  using ListField::Item;
  void Item(std::int32_t index, std::string text) { m_items[Position(index)] = std::move(text); }
  void Append(const std::string& text) { m_items.push_back(text); }
  /// Puts `text` at position `index`, 1..Count + 1, moving later entries back.
  void Insert(std::int32_t index, const std::string& text);
};

class ORVANE_API MFFloat final : public ListField<MFFloat, float> {
 public:
  static constexpr const char* kClassName = "MFFloat";
  const host::TypeInfo& Type() const override;

  MFFloat() = default;
  MFFloat(Node& owner, const char* name, List items = {}, Interval range = kAnyNumber)
      : ListField(owner, name, std::move(items), AccessKind::ExposedField), m_range(range) {}

  using ListField::Item;
  /// Numbers are finite and in the node's range; NotFinite or OutOfRange otherwise.
  void Item(std::int32_t index, float value) { m_items[Position(index)] = Checked(value, m_range); }
  void Append(float value) { m_items.push_back(Checked(value, m_range)); }

  Interval Range() const override { return m_range; }

 private:
  void Check(const List& items) const override;

  Interval m_range;
};

class ORVANE_API MFColor final : public ListField<MFColor, Color> {
 public:
  static constexpr const char* kClassName = "MFColor";
  const host::TypeInfo& Type() const override;

  MFColor() = default;
  MFColor(Node& owner, const char* name, List items = {},
          AccessKind access = AccessKind::ExposedField)
      : ListField(owner, name, std::move(items), access) {}

  /// Components lie in [0, 1]; OutOfRange otherwise.
  void SetItem(std::int32_t index, float red, float green, float blue) {
    m_items[Position(index)] = CheckedColor(red, green, blue);
  }
  void Append(float red, float green, float blue) {
    m_items.push_back(CheckedColor(red, green, blue));
  }

 private:
  void Check(const List& items) const override;
  Color CheckedColor(float red, float green, float blue) const;
};

class ORVANE_API MFVec2f final : public ListField<MFVec2f, Vec2f> {
 public:
  static constexpr const char* kClassName = "MFVec2f";
  const host::TypeInfo& Type() const override;

  MFVec2f() = default;
  MFVec2f(Node& owner, const char* name, List items = {},
          AccessKind access = AccessKind::ExposedField)
      : ListField(owner, name, std::move(items), access) {}

  /// Numbers are finite; NotFinite otherwise.
  void Append(float x, float y) { m_items.push_back({Checked(x), Checked(y)}); }

 private:
  void Check(const List& items) const override;
};

class ORVANE_API MFVec3f final : public ListField<MFVec3f, Vec3f> {
 public:
  static constexpr const char* kClassName = "MFVec3f";
  const host::TypeInfo& Type() const override;

  MFVec3f() = default;
  MFVec3f(Node& owner, const char* name, List items = {},
          AccessKind access = AccessKind::ExposedField)
      : ListField(owner, name, std::move(items), access) {}

  /// Numbers are finite; NotFinite otherwise.
  void Append(float x, float y, float z) {
    m_items.push_back({Checked(x), Checked(y), Checked(z)});
  }

 private:
  void Check(const List& items) const override;
};

class ORVANE_API MFNode final : public ListField<MFNode, std::shared_ptr<Node>> {
 public:
  static constexpr const char* kClassName = "MFNode";
  const host::TypeInfo& Type() const override;

  MFNode() = default;
  MFNode(Node& owner, const char* name, NodeRole role = NodeRole::Child,
         AccessKind access = AccessKind::ExposedField)
      : ListField(owner, name, {}, access), m_role(role) {}
  ~MFNode() override {
    for (auto& node : m_items) LetGo(node);
  }

  /// The node must be one, NoNode otherwise, and of a type that VRML97 lets the field hold;
  /// TypeMismatch otherwise.
  void Append(const std::shared_ptr<Node>& node);
  /// Puts `node` at position `index`, 1..Count + 1, moving later entries back.
  void Insert(std::int32_t index, const std::shared_ptr<Node>& node);
  /// Removes the first entry that is `node`; NodeNotInList when there is none.
  void Remove(const std::shared_ptr<Node>& node);

  void VisitNodes(const std::function<void(const Node&)>& visit) const override;

 private:
  void Check(const List& items) const override;
  const std::shared_ptr<Node>& CheckedNode(const std::shared_ptr<Node>& node) const;
  void RequireNode(const std::shared_ptr<Node>& node) const;

  NodeRole m_role = NodeRole::Any;
};

}  // namespace orvane::scene
