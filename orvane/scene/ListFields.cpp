#include "orvane/scene/ListFields.h"

#include "orvane/automation/Describe.h"
#include "orvane/scene/Node.h"
#include "orvane/scene/SceneError.h"
#include "orvane/scene/SceneWriter.h"

#include <algorithm>
#include <array>
#include <bit>

namespace orvane::host {

/// How many numbers an entry of a list has.
template <class Entry>
constexpr std::size_t kComponents = 3;
template <>
constexpr std::size_t kComponents<float> = 1;
template <>
constexpr std::size_t kComponents<scene::Vec2f> = 2;

template <class Entry>
using Components = std::array<float, kComponents<Entry>>;

/// Entries of more than one component reach late-bound callers as a row of numbers, and so do all
/// entries of a list, component after component.
template <class Entry>
struct RowAutomation {
  static ValueType Type() { return {"Numbers", nullptr, kComponents<Entry>}; }
  static Value To(const Entry& entry) {
    const auto components = std::bit_cast<Components<Entry>>(entry);
    return Value::Numbers(components.begin(), components.end());
  }
};

template <>
struct Automation<scene::Vec2f> : RowAutomation<scene::Vec2f> {};
template <>
struct Automation<scene::Vec3f> : RowAutomation<scene::Vec3f> {};
template <>
struct Automation<scene::Color> : RowAutomation<scene::Color> {};

template <class Entry>
struct Automation<std::vector<Entry>> {
  static constexpr std::size_t kCount = kComponents<Entry>;

  static ValueType Type() { return {"Numbers", nullptr, kCount}; }

  static std::vector<Entry> From(const Value& value, const Place& place) {
    const auto* row = value.If<Value::Numbers>();
    if (row == nullptr || row->size() % kCount != 0) {
      RaiseMismatch(
          value,
          kCount == 1 ? "a row of numbers" : "rows of " + std::to_string(kCount) + " numbers",
          place);
    }
    std::vector<Entry> entries;
    entries.reserve(row->size() / kCount);
    for (std::size_t i = 0; i < row->size(); i += kCount) {
      Components<Entry> components;
      for (std::size_t k = 0; k < kCount; ++k) components[k] = ToSingle((*row)[i + k], place);
      entries.push_back(std::bit_cast<Entry>(components));
    }
    return entries;
  }

  static Value To(const std::vector<Entry>& entries) {
    Value::Numbers row;
    row.reserve(entries.size() * kCount);
    for (const Entry& entry : entries) {
      const auto components = std::bit_cast<Components<Entry>>(entry);
      row.insert(row.end(), components.begin(), components.end());
    }
    return row;
  }
};

}  // namespace orvane::host

namespace orvane::scene {

using host::Describe;
using host::ErrorNumber;
using host::Help;
using host::TypeInfo;

namespace {

void WriteItem(SceneWriter& out, const std::string& item) { out.PutString(item); }

void WriteItem(SceneWriter& out, float item) { out.PutNumber(item); }

void WriteItem(SceneWriter& out, Vec2f item) { out.PutNumbers({item.x, item.y}); }

void WriteItem(SceneWriter& out, Vec3f item) { out.PutNumbers({item.x, item.y, item.z}); }

void WriteItem(SceneWriter& out, Color item) { out.PutNumbers({item.red, item.green, item.blue}); }

const Help kAppend = {"Adds an entry at the end"};

// The members that all lists have in common; the order of slots differs.
template <class F>
void DescribeRemoveAt(Describe<F>& list) {
  list.Method("RemoveAt", &F::RemoveAt, {{"Index", host::UpTo("Count")}}, {"Removes one entry"});
}

template <class F>
void DescribeClear(Describe<F>& list) {
  list.Method("Clear", &F::Clear, {}, {"Removes all entries"});
}

template <class F>
void DescribeCount(Describe<F>& list) {
  list.template Property<std::int32_t>("Count", &F::Count, {"Number of entries"});
}

template <class F>
void DescribeCopy(Describe<F>& list) {
  using Copy = void (F::*)(const std::shared_ptr<F>&) const;
  list.Method("CopyTo", static_cast<Copy>(&F::CopyTo), {"list"},
              {"Replaces the entries of another list with a copy of these"});
}

template <class F>
void DescribeItems(Describe<F>& list) {
  list.template Property<typename F::List>(
      "Items", &F::Items, &F::Items,
      {"All entries at once, component after component; a let replaces all or none"});
}

}  // namespace

const TypeInfo& MFNode::Type() const {
  static const TypeInfo type =
      Describe<MFNode>("A list of nodes.")
          .ListOf<std::shared_ptr<Node>>()
          .Method("Append", &MFNode::Append, {"node"}, kAppend)
          .Method("Insert", &MFNode::Insert, {{"Index", host::UpTo("Count + 1")}, "node"},
                  {"Puts a node at a position, moving later ones back"})
          .Method("Remove", &MFNode::Remove, {"node"}, {"Removes a node from the list"})
          .With(DescribeClear<MFNode>)
          .Indexed<std::shared_ptr<Node>>("Item", &MFNode::Item, {"One entry"})
          .With(DescribeCount<MFNode>)
          .With(DescribeRemoveAt<MFNode>);
  return type;
}

const TypeInfo& MFString::Type() const {
  static const TypeInfo type =
      Describe<MFString>("A list of texts.")
          .ListOf<std::string>()
          .Indexed<std::string>("Item", &MFString::Item, &MFString::Item, {"One entry"})
          .With(DescribeRemoveAt<MFString>)
          .Method("Append", &MFString::Append, {"text"}, kAppend)
          .With(DescribeClear<MFString>)
          .With(DescribeCount<MFString>)
          .Method("Insert", &MFString::Insert, {{"Index", host::UpTo("Count + 1")}, "text"},
                  {"Puts a text at a position, moving later ones back"})
          .With(DescribeCopy<MFString>);
  return type;
}

const TypeInfo& MFFloat::Type() const {
  static const TypeInfo type =
      Describe<MFFloat>("A list of numbers.")
          .ListOf<float>()
          .Indexed<float>("Item", &MFFloat::Item, &MFFloat::Item, {"One entry"})
          .Method("Append", &MFFloat::Append, {"value"}, kAppend)
          .With(DescribeRemoveAt<MFFloat>)
          .With(DescribeCopy<MFFloat>)
          .With(DescribeClear<MFFloat>)
          .With(DescribeCount<MFFloat>)
          .With(DescribeItems<MFFloat>);
  return type;
}

const TypeInfo& MFColor::Type() const {
  static const TypeInfo type =
      Describe<MFColor>("A list of colours.")
          .ListOf<Color>()
          .Indexed<Color>("Item", &MFColor::Item, {"One entry as three numbers"})
          .Method(
              "SetItem", &MFColor::SetItem,
              {{"Index", host::UpTo("Count")}, {"red", kUnit}, {"green", kUnit}, {"blue", kUnit}},
              {"Replaces one entry"})
          .Method("Append", &MFColor::Append, {{"red", kUnit}, {"green", kUnit}, {"blue", kUnit}},
                  kAppend)
          .With(DescribeRemoveAt<MFColor>)
          .With(DescribeClear<MFColor>)
          .With(DescribeCount<MFColor>)
          .With(DescribeItems<MFColor>);
  return type;
}

const TypeInfo& MFVec2f::Type() const {
  static const TypeInfo type =
      Describe<MFVec2f>("A list of points in the plane.")
          .ListOf<Vec2f>()
          .Indexed<Vec2f>("Item", &MFVec2f::Item, {"One entry as two numbers"})
          .With(DescribeCount<MFVec2f>)
          .Method("Append", &MFVec2f::Append, {"x", "y"}, kAppend)
          .With(DescribeRemoveAt<MFVec2f>)
          .With(DescribeClear<MFVec2f>)
          .With(DescribeItems<MFVec2f>);
  return type;
}

const TypeInfo& MFVec3f::Type() const {
  static const TypeInfo type =
      Describe<MFVec3f>("A list of points in space.")
          .ListOf<Vec3f>()
          .Indexed<Vec3f>("Item", &MFVec3f::Item, {"One entry as three numbers"})
          .Method("Append", &MFVec3f::Append, {"x", "y", "z"}, kAppend)
          .With(DescribeRemoveAt<MFVec3f>)
          .With(DescribeClear<MFVec3f>)
          .With(DescribeCount<MFVec3f>)
          .With(DescribeItems<MFVec3f>);
  return type;
}

template <class F, class T>
void ListField<F, T>::RaiseIndex(std::int32_t index, std::int32_t count) const {
  Raise(ErrorNumber::ListIndex, "Index " + std::to_string(index) + " is outside the range [1.." +
                                    std::to_string(count) + "] of " + Where());
}

template <class F, class T>
void ListField<F, T>::RaiseNoList() const {
  Raise(ErrorNumber::NoNode, "CopyTo of " + Where() + " needs a list to copy to");
}

template <class F, class T>
void ListField<F, T>::Write(SceneWriter& out) const {
  out.Put("[ ");
  bool isFirst = true;
  for (const auto& item : m_items) {
    if (!isFirst) out.Put(", ");
    isFirst = false;
    WriteItem(out, item);
  }
  out.Put(m_items.empty() ? "]" : " ]");
}

template <class F, class T>
std::size_t ListField<F, T>::ExpectedSize() const {
  constexpr std::size_t kCharactersPerByte = 3;  // A float of 4 bytes takes some 10 characters.
  return m_items.size() * sizeof(T) * kCharactersPerByte;
}

template <>
void ListField<MFNode, std::shared_ptr<Node>>::Write(SceneWriter& out) const {
  out.Put("[");
  out.Indent();
  for (const auto& node : m_items) {
    out.NewLine();
    out.PutNode(*node);
  }
  out.Outdent();
  out.NewLine();
  out.Put("]");
}

template class ListField<MFNode, std::shared_ptr<Node>>;
template class ListField<MFString, std::string>;
template class ListField<MFFloat, float>;
template class ListField<MFColor, Color>;
template class ListField<MFVec2f, Vec2f>;
template class ListField<MFVec3f, Vec3f>;

void MFString::Insert(std::int32_t index, const std::string& text) {
  const auto place = index == Count() + 1 ? m_items.size() : Position(index);
  m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(place), text);
}

void MFFloat::Check(const List& items) const {
  for (const float item : items) (void)Checked(item, m_range);
}

Color MFColor::CheckedColor(float red, float green, float blue) const {
  for (const float component : {red, green, blue}) {
    if (!(component >= 0 && component <= 1)) {
      Raise(ErrorNumber::OutOfRange, Where() + " takes components in the range [0..1]");
    }
  }
  return {red, green, blue};
}

void MFColor::Check(const List& items) const {
  for (const Color& item : items) (void)CheckedColor(item.red, item.green, item.blue);
}

void MFVec2f::Check(const List& items) const {
  for (const Vec2f& item : items) {
    for (const float component : {item.x, item.y}) (void)Checked(component);
  }
}

void MFVec3f::Check(const List& items) const {
  for (const Vec3f& item : items) {
    for (const float component : {item.x, item.y, item.z}) (void)Checked(component);
  }
}

void MFNode::Check(const List& items) const {
  for (const auto& item : items) (void)CheckedNode(item);
}

void MFNode::Append(const std::shared_ptr<Node>& node) { m_items.push_back(CheckedNode(node)); }

void MFNode::Insert(std::int32_t index, const std::shared_ptr<Node>& node) {
  const auto place = index == Count() + 1 ? m_items.size() : Position(index);
  m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(place), CheckedNode(node));
}

void MFNode::Remove(const std::shared_ptr<Node>& node) {
  RequireNode(node);
  const auto found = std::ranges::find(m_items, node);
  if (found == m_items.end()) {
    Raise(ErrorNumber::NodeNotInList,
          Where() + " does not hold this " + node->TypeName() + ", so it cannot be removed");
  }
  m_items.erase(found);
}

const std::shared_ptr<Node>& MFNode::CheckedNode(const std::shared_ptr<Node>& node) const {
  RequireNode(node);
  return Checked(node, m_role);
}

void MFNode::RequireNode(const std::shared_ptr<Node>& node) const {
  if (node == nullptr) Raise(ErrorNumber::NoNode, Where() + " takes nodes only");
}

void MFNode::VisitNodes(const std::function<void(const Node&)>& visit) const {
  for (const auto& node : m_items) visit(*node);
}

}  // namespace orvane::scene
