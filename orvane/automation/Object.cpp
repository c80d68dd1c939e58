#include "orvane/automation/Object.h"

#include "orvane/automation/AutomationError.h"

#include <algorithm>
#include <map>

namespace orvane::host {
namespace {

const Member& MemberAt(const TypeInfo& type, int id) {
  if (id < 0 || static_cast<std::size_t>(id) >= type.Members().size()) {
    throw AutomationError(ErrorNumber::UnknownMember,
                          type.Name() + " has no member number " + std::to_string(id));
  }
  return type.Members()[static_cast<std::size_t>(id)];
}

/// The parameters that a caller may give values for.
std::size_t MostArguments(const Member& member) {
  return static_cast<std::size_t>(std::ranges::count(member.parameters, false, &Parameter::isOut));
}

std::size_t LeastArguments(const Member& member) {
  return static_cast<std::size_t>(std::ranges::count_if(
      member.parameters,
      [](const auto& parameter) { return !parameter.isOut && parameter.fallback.IsEmpty(); }));
}

[[noreturn]] void RaiseArgumentCount(const TypeInfo& type, const Member& member,
                                     const std::string& expected, std::size_t got) {
  throw AutomationError(ErrorNumber::WrongArgumentCount,
                        type.Name() + "." + member.name + " takes " + expected +
                            " argument(s), got " + std::to_string(got));
}

}  // namespace

int TypeInfo::Find(std::string_view name) const {
  for (std::size_t id = 0; id < m_members.size(); ++id) {
    if (EqualNoCase(m_members[id].name, name)) return static_cast<int>(id);
  }
  return -1;
}

int TypeInfo::IdOf(std::string_view name) const {
  const int id = Find(name);
  if (id < 0) {
    throw AutomationError(ErrorNumber::UnknownMember,
                          m_name + " has no member \"" + std::string(name) + "\"");
  }
  return id;
}

Value Object::Get(int id, Arguments arguments) {
  const Member& member = MemberAt(Type(), id);
  const std::size_t most = MostArguments(member);
  const std::size_t least = LeastArguments(member);
  if (arguments.size() < least || arguments.size() > most) {
    const auto range = least == most ? std::to_string(most)
                                     : std::to_string(least) + " to " + std::to_string(most);
    RaiseArgumentCount(Type(), member, range, arguments.size());
  }
  if (!member.get) {
    throw AutomationError(ErrorNumber::UnknownMember,
                          Type().Name() + "." + member.name + " cannot be read");
  }
  return member.get(*this, arguments);
}

void Object::Let(int id, Arguments argumentsAndValue) {
  const Member& member = MemberAt(Type(), id);
  if (!member.let) {
    throw AutomationError(
        ErrorNumber::ReadOnlyProperty,
        Type().Name() + "." + member.name + (member.isMethod ? " is a method" : " is read-only"));
  }
  if (argumentsAndValue.size() != member.parameters.size() + 1) {
    RaiseArgumentCount(Type(), member, std::to_string(member.parameters.size() + 1),
                       argumentsAndValue.size());
  }
  member.let(*this, argumentsAndValue);
}

struct Object::Subscriptions {
  std::map<int, Subscription> all;
  int last = 0;
};

int Object::Subscribe(std::string_view event, EventHandler handler) {
  const auto isIt = [=](const EventInfo& info) { return EqualNoCase(info.name, event); };
  const auto found = std::ranges::find_if(Type().Events(), isIt);
  if (found == Type().Events().end()) {
    throw AutomationError(ErrorNumber::UnknownMember,
                          Type().Name() + " has no event \"" + std::string(event) + "\"");
  }
  if (m_subscriptions == nullptr) m_subscriptions = std::make_shared<Subscriptions>();
  m_subscriptions->all[++m_subscriptions->last] = found->connect(*this, std::move(handler));
  return m_subscriptions->last;
}

void Object::Unsubscribe(int subscription) {
  if (m_subscriptions == nullptr || m_subscriptions->all.erase(subscription) == 0) {
    throw AutomationError(ErrorNumber::NoSubscription,
                          Type().Name() + " has no subscription " + std::to_string(subscription));
  }
}

}  // namespace orvane::host
