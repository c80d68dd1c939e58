/// Numbers as text, by a format picture.
#pragma once

#include "orvane/automation/Export.h"

#include <string>
#include <string_view>

namespace orvane {

/// `value` written as `picture` shows, always with "," and "." whatever the locale.
///
/// "0" is a digit that always shows, "#" one that shows only when it is significant, "," between
/// digits asks for groups of three, "." marks the decimal point, "%" multiplies by 100. Anything
/// else stands for itself, as does what is in double quotes or behind a "\". Up to three sections
/// separated by ";" serve positive, negative and zero values; a section that is missing or empty is
/// served by the first, with a "-" in front of negative values. Rounding is half away from zero on
/// the shortest decimal that reads back to `value`. An empty picture gives that decimal.
ORVANE_API std::string FormatNumber(float value, std::string_view picture);

}  // namespace orvane
