/// What a call raises, in a form that tests compare with one line.
#pragma once

#include "orvane/automation/AutomationError.h"

#include <functional>
#include <initializer_list>
#include <ostream>
#include <string>
#include <utility>

#include <gtest/gtest.h>

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

/// Holds each call against the component error that it must raise.
inline void ExpectErrors(
    std::initializer_list<std::pair<std::function<void()>, std::string>> calls) {
  for (const auto& [call, message] : calls) EXPECT_EQ(ErrorOf(call), ComponentError(message));
}

}  // namespace orvane::tests
