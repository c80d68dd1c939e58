/// Enumerations as automation hosts see them: a name, and enumerators with their values.
#pragma once

#include "orvane/automation/Export.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::host {

/// One public enumeration.
class ORVANE_API EnumInfo {
 public:
  struct Enumerator {
    std::string name;
    std::int32_t value;
  };

  EnumInfo(std::string name, std::vector<Enumerator> enumerators);

  const std::string& Name() const { return m_name; }
  const std::vector<Enumerator>& Enumerators() const { return m_enumerators; }

  /// The name of the enumerator with value `value`; the number itself where there is none.
  std::string NameOf(std::int32_t value) const;
  /// The value of the enumerator called `name`, in any case.
  std::optional<std::int32_t> ValueOf(std::string_view name) const;

 private:
  std::string m_name;
  std::vector<Enumerator> m_enumerators;
};

/// The EnumInfo of enumeration `E`. Every public enumeration specialises it beside its definition.
template <class E>
const EnumInfo& Enumeration();

/// True when both names are equal but for the case of ASCII letters.
ORVANE_API bool EqualNoCase(std::string_view a, std::string_view b);

}  // namespace orvane::host
