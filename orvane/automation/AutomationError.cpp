#include "orvane/automation/AutomationError.h"

#include <utility>

namespace orvane::host {

AutomationError::AutomationError(ErrorNumber number, const std::string& description,
                                 std::string source)
    : std::runtime_error(description), m_number(number), m_source(std::move(source)) {}

void Require(bool accepted, const char* message) {
  if (!accepted) throw AutomationError(ErrorNumber::Component, message);
}

}  // namespace orvane::host
