/// How a class describes itself, once, in slot order. Name look-up, coercion, help texts, the
/// generated reference and every binding read the table that this makes.
#pragma once

#include "orvane/automation/Coercion.h"
#include "orvane/automation/Object.h"

#include <array>
#include <memory>
#include <span>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace orvane::host {

/// How a let of type `T` is declared: numbers by value, texts by constant reference.
template <class T>
using LetArgument = std::conditional_t<std::is_same_v<T, std::string>, const std::string&, T>;

/// Whether a parameter declared as `A` is an out-parameter: `float&`, but not `const float&`.
template <class A>
inline constexpr bool kIsOut =
    std::is_lvalue_reference_v<A> && !std::is_const_v<std::remove_reference_t<A>>;

/// Builds the TypeInfo of class `C`:
///
///     static const TypeInfo type =
///         Describe<GridInfo>("The box of grid lines and walls.")
///             .Property<float>("Width", &GridInfo::Width, &GridInfo::Width, {"Extent along X"})
///             .Method("GetSeries", &AreaGraph::GetSeries, {"Index"}, {"One series"});
template <class C>
class Describe {
 public:
  explicit Describe(const char* text) : m_type(C::kClassName, text) {}

  /// A read-only property.
  template <class T>
  Describe& Property(const char* name, T (C::*get)() const, Help help) {
    return Add<T>(name, Getter<T>(get), {}, std::move(help));
  }

  /// A live object that C++ is handed by reference, such as a list field.
  template <class T>
  Describe& Property(const char* name, T& (C::*get)(), Help help) {
    return Add<T&>(name, Getter<T&>(get), {}, std::move(help));
  }

  template <class T>
  Describe& Property(const char* name, T (C::*get)() const, void (C::*let)(LetArgument<T>),
                     Help help) {
    return Add<T>(name, Getter<T>(get), Letter<T>(let), std::move(help));
  }

  /// A property that C++ reads by reference, such as all entries of a list.
  template <class T, class Reader, class Writer>
  Describe& Property(const char* name, const T& (Reader::*get)() const, void (Writer::*let)(T),
                     Help help) {
    return Add<T>(name, Getter<T>(get), Letter<T>(let), std::move(help));
  }

  /// A colour, which C++ has as a 32-bit integer.
  Describe& Color(const char* name, std::int32_t (C::*get)() const, void (C::*let)(std::int32_t),
                  Help help) {
    Property<std::int32_t>(name, get, let, std::move(help));
    m_type.Last().type = kColorType;
    m_type.Last().help.range = kColors;
    return *this;
  }

  /// A property that can be set but not read.
  template <class T>
  Describe& WriteOnly(const char* name, void (C::*let)(LetArgument<T>), Help help) {
    return Add<T>(name, {}, Letter<T>(let), std::move(help));
  }

  /// Parameters of a number type by reference are out-parameters; such a method returns nothing
  /// else.
  template <class R, class Owner, class... A>
  Describe& Method(const char* name, R (Owner::*method)(A...), std::vector<Parameter> parameters,
                   Help help) {
    return AddMethod<R, A...>(name, method, std::move(parameters), std::move(help));
  }

  template <class R, class Owner, class... A>
  Describe& Method(const char* name, R (Owner::*method)(A...) const,
                   std::vector<Parameter> parameters, Help help) {
    return AddMethod<R, A...>(name, method, std::move(parameters), std::move(help));
  }

  /// An event that the class raises.
  template <class... A>
  Describe& Event(const char* name, host::Event<A...> C::*event, std::vector<Parameter> parameters,
                  const char* text) {
    std::size_t next = 0;
    ((parameters.at(next++).type = Automation<A>::Type()), ...);
    const auto connect = [event](Object& object, EventHandler handler) {
      return (static_cast<C&>(object).*event).Connect([handler = std::move(handler)](A... values) {
        const std::array<Value, sizeof...(A)> arguments{Automation<A>::To(values)...};
        handler(arguments);
      });
    };
    m_type.Add(EventInfo{name, std::move(parameters), connect, text});
    return *this;
  }

  /// Says that the class is a list with entries of type `T`.
  template <class T>
  Describe& ListOf() {
    m_type.SetEntry(Automation<T>::Type());
    return *this;
  }

  /// Says that the last member makes up the value of a field, alone or with others.
  Describe& IsValue() {
    m_type.AddLastToValue();
    return *this;
  }

  /// A read-only property with an index, such as the Item of a list.
  template <class T, class Owner, class Index>
  Describe& Indexed(const char* name, T (Owner::*get)(Index) const, Help help) {
    AddMethod<T, Index>(name, get, {{"Index", UpTo("Count")}}, std::move(help));
    m_type.Last().isMethod = false;
    return *this;
  }

  template <class T, class Getter, class Letter, class Index, class Argument>
  Describe& Indexed(const char* name, T (Getter::*get)(Index) const,
                    void (Letter::*let)(Index, Argument), Help help) {
    Indexed<T>(name, get, std::move(help));
    m_type.Last().let = [let, id = m_type.Members().size() - 1](Object& object,
                                                                Object::Arguments values) {
      const TypeInfo& info = object.Type();
      const Member& member = info.Members()[id];
      (static_cast<C&>(object).*let)(Automation<Index>::From(values[0], {info, member, 0}),
                                     Automation<T>::From(values[1], {info, member, 1}));
      return Value();
    };
    return *this;
  }

  /// Applies `describe(*this)`: members that several classes share, described once.
  template <class F>
  Describe& With(F describe) {
    describe(*this);
    return *this;
  }

  operator TypeInfo() { return std::move(m_type); }  // NOLINT(google-explicit-constructor)

 private:
  template <class R, class Get>
  static Member::Access Getter(Get get) {
    return [get](Object& object, Object::Arguments) {
      return Automation<R>::To((static_cast<C&>(object).*get)());
    };
  }

  template <class T, class Let>
  Member::Access Letter(Let let) const {
    return [let, id = m_type.Members().size()](Object& object, Object::Arguments values) {
      const TypeInfo& info = object.Type();
      (static_cast<C&>(object).*let)(Automation<T>::From(values[0], {info, info.Members()[id], 0}));
      return Value();
    };
  }

  template <class R>
  Describe& Add(const char* name, Member::Access get, Member::Access let, Help help) {
    m_type.Add(
        {name, false, Automation<R>::Type(), {}, std::move(get), std::move(let), std::move(help)});
    return *this;
  }

  /// What the declaration of a parameter as `A` says of it.
  template <class A>
  static void Complete(Parameter& parameter) {
    parameter.isOut = kIsOut<A>;
    if (parameter.type != kColorType) parameter.type = Automation<std::remove_cvref_t<A>>::Type();
  }

  template <class R, class... A, class Pointer>
  Describe& AddMethod(const char* name, Pointer method, std::vector<Parameter> parameters,
                      Help help) {
    [[maybe_unused]] std::size_t next = 0;
    (Complete<A>(parameters.at(next++)), ...);
    ValueType result;
    if constexpr ((kIsOut<A> || ...)) result = {"Numbers"};
    if constexpr (!std::is_void_v<R>) result = Automation<R>::Type();
    auto call = [method, id = m_type.Members().size()](Object& object, Object::Arguments values) {
      return Invoke<R, A...>(static_cast<C&>(object), method, id, values,
                             std::index_sequence_for<A...>());
    };
    m_type.Add({name, true, result, std::move(parameters), call, {}, std::move(help)});
    return *this;
  }

  template <class R, class... A, class Pointer, std::size_t... I>
  static Value Invoke(C& object, Pointer method, std::size_t id,
                      [[maybe_unused]] Object::Arguments values, std::index_sequence<I...>) {
    [[maybe_unused]] const TypeInfo& info = object.Type();
    [[maybe_unused]] const Member& member = info.Members()[id];
    std::tuple<std::remove_cvref_t<A>...> arguments{Argument<A>(
        I < values.size() ? values[I] : member.parameters[I].fallback, {info, member, I})...};
    const auto call = [&] { return (object.*method)(std::get<I>(arguments)...); };
    if constexpr ((kIsOut<A> || ...)) {
      static_assert(std::is_void_v<R>);
      call();
      Value::Numbers row;
      (PutOut<A>(row, std::get<I>(arguments)), ...);
      return row;
    } else if constexpr (std::is_void_v<R>) {
      call();
      return {};
    } else {
      return Automation<R>::To(call());
    }
  }

  /// What goes into parameter `A` of a method: `value`, or room for what it hands back.
  template <class A>
  static std::remove_cvref_t<A> Argument(const Value& value, const Place& place) {
    if constexpr (kIsOut<A>) {
      return {};
    } else {
      return Automation<std::remove_cvref_t<A>>::From(value, place);
    }
  }

  template <class A, class T>
  static void PutOut(Value::Numbers& row, const T& argument) {
    if constexpr (kIsOut<A>) row.push_back(argument);
  }

  TypeInfo m_type;
};

}  // namespace orvane::host
