#include "orvane/tables/read/Dates.h"

#include <charconv>
#include <cstdio>
#include <ctime>
#include <iomanip>
#include <locale>
#include <sstream>

namespace orvane::tables {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr int kDaysInWeek = 7;
constexpr int kThursday = 3;  ///< Days after Monday; a week is in the year of its Thursday.

/// A number of just `digits` digits at the beginning of `text`, which is taken off.
std::optional<int> TakeNumber(std::string_view& text, std::size_t digits) {
  if (text.size() < digits) return {};
  int number = 0;
  const auto result = std::from_chars(text.data(), text.data() + digits, number);
  if (result.ec != std::errc() || result.ptr != text.data() + digits || number < 0) return {};
  text.remove_prefix(digits);
  return number;
}

std::optional<sys_days> DayOf(int year, int month, int day) {
  const year_month_day date{std::chrono::year(year),
                            std::chrono::month(static_cast<unsigned>(month)),
                            std::chrono::day(static_cast<unsigned>(day))};
  if (!date.ok()) return {};
  return sys_days(date);
}

/// Days since the Monday before, or on, `day`.
int DaysIntoWeek(sys_days day) {
  return static_cast<int>(std::chrono::weekday(day).iso_encoding()) - 1;
}

sys_days FirstWeekOf(int year) {
  const sys_days fourth = *DayOf(year, 1, 4);
  return fourth - std::chrono::days(DaysIntoWeek(fourth));
}

int YearOf(sys_days day) { return static_cast<int>(year_month_day(day).year()); }

std::optional<Date> Spanned(std::optional<sys_days> day, Period period) {
  if (!day) return {};
  return Date{*day, period};
}

}  // namespace

std::optional<Date> ReadIsoDate(std::string_view text) {
  const auto year = TakeNumber(text, 4);
  if (!year) return {};
  if (text.empty()) return Spanned(DayOf(*year, 1, 1), Period::Year);
  if (text.front() != '-') return {};
  text.remove_prefix(1);
  if (text.starts_with('Q')) {
    text.remove_prefix(1);
    const auto quarter = TakeNumber(text, 1);
    if (!quarter || *quarter < 1 || *quarter > 4 || !text.empty()) return {};
    return Spanned(DayOf(*year, 3 * *quarter - 2, 1), Period::Quarter);
  }
  if (text.starts_with('W')) {
    text.remove_prefix(1);
    const auto week = TakeNumber(text, 2);
    if (!week || *week < 1 || !text.empty()) return {};
    const sys_days day = FirstWeekOf(*year) + std::chrono::days(kDaysInWeek * (*week - 1));
    if (day >= FirstWeekOf(*year + 1)) return {};
    return Date{day, Period::Week};
  }
  const auto month = TakeNumber(text, 2);
  if (!month) return {};
  if (text.empty()) return Spanned(DayOf(*year, *month, 1), Period::Month);
  if (text.front() != '-') return {};
  text.remove_prefix(1);
  const auto day = TakeNumber(text, 2);
  if (!day) return {};
  // Times of day say nothing about the day.
  const auto isTime = [](std::string_view time) {
    return (time.front() == 'T' || time.front() == ' ') && time.size() >= 6 && time[3] == ':';
  };
  if (!text.empty() && !isTime(text)) return {};
  return Spanned(DayOf(*year, *month, *day), Period::Day);
}

std::optional<Date> ReadDate(std::string_view text, const std::string& format) {
  if (format.empty()) return ReadIsoDate(text);
  std::istringstream stream{std::string(text)};
  stream.imbue(std::locale::classic());
  std::tm time{};
  time.tm_mday = 1;
  stream >> std::get_time(&time, format.c_str());
  if (stream.fail() || stream.peek() != std::istringstream::traits_type::eof()) return {};
  const auto has = [&](const char* fields) {
    for (std::size_t i = 0; i + 1 < format.size(); ++i) {
      if (format[i] == '%' && std::string_view(fields).find(format[i + 1]) != std::string::npos) {
        return true;
      }
    }
    return false;
  };
  const Period period = has("deDFx") ? Period::Day : has("mbBh") ? Period::Month : Period::Year;
  return Spanned(DayOf(time.tm_year + 1900, time.tm_mon + 1, time.tm_mday), period);
}

Date SpanAt(sys_days day, Period period) {
  const year_month_day date(day);
  const auto month = static_cast<int>(static_cast<unsigned>(date.month()));
  switch (period) {
    case Period::Day:
      break;
    case Period::Week:
      return {day - std::chrono::days(DaysIntoWeek(day)), period};
    case Period::Month:
      return {*DayOf(YearOf(day), month, 1), period};
    case Period::Quarter:
      return {*DayOf(YearOf(day), month - (month - 1) % 3, 1), period};
    case Period::Year:
      return {*DayOf(YearOf(day), 1, 1), period};
  }
  return {day, Period::Day};
}

Date NextSpan(const Date& date) {
  constexpr int kBeyondYear = 366;
  switch (date.period) {
    case Period::Day:
      break;
    case Period::Week:
      return SpanAt(date.day + std::chrono::days(kDaysInWeek), Period::Week);
    case Period::Month:
      return SpanAt(date.day + std::chrono::days(31), Period::Month);
    case Period::Quarter:
      return SpanAt(date.day + std::chrono::days(92), Period::Quarter);
    case Period::Year:
      return SpanAt(date.day + std::chrono::days(kBeyondYear), Period::Year);
  }
  return {date.day + std::chrono::days(1), Period::Day};
}

std::string SpellDate(const Date& date) {
  const year_month_day parts(date.day);
  const auto month = static_cast<unsigned>(parts.month());
  const auto spell = [](const char* format, auto... numbers) {
    std::string text(32, '\0');
    text.resize(
        static_cast<std::size_t>(std::snprintf(text.data(), text.size(), format, numbers...)));
    return text;
  };
  switch (date.period) {
    case Period::Day:
      break;
    case Period::Week: {
      const int year = YearOf(date.day + std::chrono::days(kThursday));
      const auto weeks = (date.day - FirstWeekOf(year)).count() / kDaysInWeek;
      return spell("%04d-W%02d", year, static_cast<int>(weeks) + 1);
    }
    case Period::Month:
      return spell("%04d-%02u", YearOf(date.day), month);
    case Period::Quarter:
      return spell("%04d-Q%u", YearOf(date.day), (month + 2) / 3);
    case Period::Year:
      return spell("%04d", YearOf(date.day));
  }
  return spell("%04d-%02u-%02u", YearOf(date.day), month, static_cast<unsigned>(parts.day()));
}

}  // namespace orvane::tables
