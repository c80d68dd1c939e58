/// The base of every public class: members that a scripting host reaches by name.
#pragma once

#include "orvane/automation/Enumeration.h"
#include "orvane/automation/Event.h"
#include "orvane/automation/Export.h"
#include "orvane/automation/Interval.h"
#include "orvane/automation/Value.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane::host {

/// The type of a property, a parameter or a result.
struct ValueType {
  std::string name = {};                  ///< "Single", "GridInfo", ...; empty for no result.
  const EnumInfo* enumeration = nullptr;  ///< When the type is an enumeration.
  std::size_t components = 1;             ///< How many of a row's numbers make one entry of it.

  friend bool operator==(const ValueType&, const ValueType&) = default;
};

/// A colour: red in bits 0-7 of a 32-bit integer, green in 8-15, blue in 16-23. A late-bound caller
/// may also give the text "#rrggbb".
inline const ValueType kColorType{"Color"};

/// What a reader of the object model needs to know beyond a member's name and type.
struct Help {
  std::string text = {};
  std::string unit = {};  ///< Empty where there is none.
  Range range = {};       ///< What a let accepts.
  bool isShared = false;  ///< Whether the value is that of the process, not of the object.
};

struct Parameter {
  Parameter(const char* name) : name(name) {}  // NOLINT(google-explicit-constructor)
  Parameter(const char* name, Value fallback) : name(name), fallback(std::move(fallback)) {}
  Parameter(const char* name, Range range) : name(name), range(std::move(range)) {}
  Parameter(const char* name, Range range, Value fallback)
      : name(name), range(std::move(range)), fallback(std::move(fallback)) {}
  /// A colour, which C++ takes as a 32-bit integer.
  static Parameter Color(const char* name) {
    Parameter color(name, kColors);
    color.type = kColorType;
    return color;
  }

  std::string name;
  ValueType type;
  Range range;         ///< What the call accepts.
  Value fallback;      ///< Taken where the argument is left out; empty for a required parameter.
  bool isOut = false;  ///< The call hands it back. Out-parameters stand behind all others.
};

/// One property or method.
struct Member {
  using Access = std::function<Value(Object&, std::span<const Value>)>;

  std::string name;
  bool isMethod = false;
  ValueType type;
  std::vector<Parameter> parameters;
  Access get;  ///< Reads the property, or calls the method.
  Access let;  ///< Writes the property; its value is the last argument. Empty when read-only.
  Help help;
};

/// Called with the arguments of an event each time that it is raised. What the handler raises ends
/// the call that raised the event, and is that call's error.
using EventHandler = std::function<void(std::span<const Value>)>;

/// One event.
struct EventInfo {
  std::string name;
  std::vector<Parameter> parameters;
  std::function<Subscription(Object&, EventHandler)> connect;
  std::string text;  ///< When it is raised.
};

/// The public interface of one class, in slot order.
class ORVANE_API TypeInfo {
 public:
  TypeInfo(std::string name, std::string text) : m_name(std::move(name)), m_text(std::move(text)) {}

  const std::string& Name() const { return m_name; }
  /// One sentence on what the class is for.
  const std::string& Text() const { return m_text; }
  const std::vector<Member>& Members() const { return m_members; }

  const std::vector<EventInfo>& Events() const { return m_events; }
  /// What Append, Item and Items take and give, for a list; a type without a name for other
  /// classes.
  const ValueType& Entry() const { return m_entry; }
  /// The identifiers of the members that make up the value of a field, in the order in which VRML97
  /// writes it: its Value, its X and Y, or a method that takes all its numbers. None elsewhere.
  const std::vector<int>& ValueMembers() const { return m_valueMembers; }

  /// The identifier of the member called `name`, in any case. Raises UnknownMember.
  int IdOf(std::string_view name) const;
  /// The same, or -1.
  int Find(std::string_view name) const;

  void Add(Member member) { m_members.push_back(std::move(member)); }
  Member& Last() { return m_members.back(); }
  void Add(EventInfo event) { m_events.push_back(std::move(event)); }
  void SetEntry(ValueType entry) { m_entry = std::move(entry); }
  void AddLastToValue() { m_valueMembers.push_back(static_cast<int>(m_members.size()) - 1); }

 private:
  std::string m_name;
  std::string m_text;
  std::vector<Member> m_members;
  std::vector<EventInfo> m_events;
  ValueType m_entry;
  std::vector<int> m_valueMembers;
};

/// An automation object. Early bound it is an ordinary C++ class; late bound its members are
/// reached by name in any case, or by the identifier that TypeInfo::IdOf gives for the name.
///
/// A method with out-parameters is called without them and returns their values, in order, as a row
/// of numbers.
///
/// All three calls raise UnknownMember, WrongArgumentCount, TypeMismatch, Overflow and
/// ReadOnlyProperty, besides what the member itself raises.
class ORVANE_API Object : public std::enable_shared_from_this<Object> {
 public:
  static constexpr const char* kClassName = "Object";
  using Arguments = std::span<const Value>;

  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object() = default;

  virtual const TypeInfo& Type() const = 0;

  /// A pointer that keeps this object alive. A field object keeps its node alive.
  virtual std::shared_ptr<Object> Self() { return shared_from_this(); }

  Value Get(int id, Arguments arguments = {});
  void Let(int id, const Value& value) { Let(id, Arguments(&value, 1)); }
  /// Writes a property; the value is the last of `argumentsAndValue`, after the indexes of an
  /// indexed property.
  void Let(int id, Arguments argumentsAndValue);
  Value Call(int id, Arguments arguments = {}) { return Get(id, arguments); }

  Value Get(std::string_view member, std::initializer_list<Value> arguments = {}) {
    return Get(Type().IdOf(member), arguments);
  }
  void Let(std::string_view member, const Value& value) { Let(Type().IdOf(member), value); }
  void Let(std::string_view member, std::initializer_list<Value> argumentsAndValue) {
    Let(Type().IdOf(member), Arguments(argumentsAndValue));
  }
  Value Call(std::string_view member, std::initializer_list<Value> arguments = {}) {
    return Call(Type().IdOf(member), Arguments(arguments));
  }

  /// Connects `handler` to the event called `event`, in any case, until Unsubscribe or the end of
  /// this object. Raises UnknownMember.
  int Subscribe(std::string_view event, EventHandler handler);
  /// Disconnects the handler that Subscribe gave `subscription` for. Raises NoSubscription.
  void Unsubscribe(int subscription);

 private:
  struct Subscriptions;
  std::shared_ptr<Subscriptions> m_subscriptions;  ///< nullptr until there is one.
};

}  // namespace orvane::host
