/// Days, weeks, months, quarters and years as tables spell them.
#pragma once

#include "orvane/tables/read/ReadOptions.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace orvane::tables {

/// A span of time, by its first day.
struct Date {
  std::chrono::sys_days day;
  Period period = Period::Day;
};

/// Reads ISO 8601: "2024-03-05", with or without a time of day behind "T" or a blank, "2024-W10",
/// "2024-03", "2024"; and "2024-Q1". Nothing for any other text.
std::optional<Date> ReadIsoDate(std::string_view text);

/// Reads a day as `format` has it, in the fields of strptime: "%d.%m.%Y". A format without a day,
/// or without a month, gives a month, or a year.
std::optional<Date> ReadDate(std::string_view text, const std::string& format);

/// The span of length `period` that `day` is in.
Date SpanAt(std::chrono::sys_days day, Period period);
Date NextSpan(const Date& date);

/// "2024-03-05", "2024-W10", "2024-03", "2024-Q1" or "2024".
std::string SpellDate(const Date& date);

}  // namespace orvane::tables
