/// The arithmetic that can fail, checked: geometry is worked in double precision and stored through
/// these, so that no NaN or infinity ever reaches a field.
#pragma once

#include "orvane/automation/Export.h"

#include <cstdint>

namespace orvane::host {

/// `value` rounded to a 32-bit float. Raises Overflow when it does not fit or is not a number.
ORVANE_API float Single(double value);

/// numerator / denominator. Raises DivisionByZero when `denominator` is 0, 0 / 0 included.
ORVANE_API double Quotient(double numerator, double denominator);

/// `value` as a 16-bit integer. Raises Overflow outside -32768..32767.
ORVANE_API std::int16_t Int16(std::int64_t value);

}  // namespace orvane::host
