/// What a call raises, in a form that tests compare with one line.
#pragma once

#include "orvane/host/AutomationError.h"

#include <ostream>
#include <string>

namespace orvane::host {

inline void PrintTo(ErrorNumber number, std::ostream* out) {
  *out << "0x" << std::hex << static_cast<std::uint32_t>(number) << std::dec;
}

}  // namespace orvane::host

namespace orvane::tests {

struct Raised {
  host::ErrorNumber number{};
  std::string message;
  friend bool operator==(const Raised&, const Raised&) = default;
};

inline void PrintTo(const Raised& raised, std::ostream* out) {
  PrintTo(raised.number, out);
  *out << " \"" << raised.message << '"';
}

/// What `call` raises; number 0 and "nothing raised" when it returns.
template <class F>
Raised ErrorOf(F&& call) {
  try {
    call();
  } catch (const host::AutomationError& error) {
    return {error.Number(), error.Description()};
  }
  return {{}, "nothing raised"};
}

inline Raised ComponentError(const std::string& message) {
  return {host::ErrorNumber::Component, message};
}

}  // namespace orvane::tests
