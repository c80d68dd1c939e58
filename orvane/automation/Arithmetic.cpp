#include "orvane/automation/Arithmetic.h"

#include "orvane/automation/AutomationError.h"

#include <cmath>
#include <limits>
#include <string>

namespace orvane::host {

float Single(double value) {
  const auto single = static_cast<float>(value);
  if (std::isnan(value)) throw AutomationError(ErrorNumber::Overflow, "Overflow: not a number");
  if (std::isinf(single)) {
    throw AutomationError(ErrorNumber::Overflow, "Overflow: the value does not fit a 32-bit float");
  }
  return single;
}

double Quotient(double numerator, double denominator) {
  if (denominator == 0) throw AutomationError(ErrorNumber::DivisionByZero, "Division by zero");
  return numerator / denominator;
}

std::int16_t Int16(std::int64_t value) {
  using Limits = std::numeric_limits<std::int16_t>;
  if (value < Limits::min() || value > Limits::max()) {
    throw AutomationError(ErrorNumber::Overflow,
                          "Overflow: " + std::to_string(value) + " does not fit a 16-bit integer");
  }
  return static_cast<std::int16_t>(value);
}

}  // namespace orvane::host
