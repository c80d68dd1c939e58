#include "orvane/automation/Enumeration.h"

#include <algorithm>
#include <utility>

namespace orvane::host {

EnumInfo::EnumInfo(std::string name, std::vector<Enumerator> enumerators)
    : m_name(std::move(name)), m_enumerators(std::move(enumerators)) {}

std::string EnumInfo::NameOf(std::int32_t value) const {
  const auto found = std::ranges::find(m_enumerators, value, &Enumerator::value);
  return found == m_enumerators.end() ? std::to_string(value) : found->name;
}

std::optional<std::int32_t> EnumInfo::ValueOf(std::string_view name) const {
  for (const auto& enumerator : m_enumerators) {
    if (EqualNoCase(enumerator.name, name)) return enumerator.value;
  }
  return std::nullopt;
}

bool EqualNoCase(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return std::ranges::equal(a, b, {}, lower, lower);
}

}  // namespace orvane::host
