/// Errors of the scene library: raised under its own name, with numbers of its own.
#pragma once

#include "orvane/automation/AutomationError.h"

#include <string>

namespace orvane::scene {

[[noreturn]] inline void Raise(host::ErrorNumber number, const std::string& description) {
  throw host::AutomationError(number, description, "Nodewright");
}

}  // namespace orvane::scene
