/// What happens to a table between its reading and its chart.
#pragma once

#include "orvane/tables/read/Table.h"

namespace orvane::tables {

/// Puts a category of gaps for each day, month, ... that is missing between the first and the last,
/// in the order of time. Raises FileError where a category is no date.
void FillDates(Table& table, const std::string& dateFormat);

/// Warns of dates that do not follow one another in one step, where all categories are dates.
void WarnOfUnevenDates(Table& table, const std::string& dateFormat);

/// Puts into gaps what stands for them.
void FillGaps(Table& table, Missing missing);

void SortCategories(Table& table, Sort sort);

/// Makes categories of series, and series of categories.
void Transpose(Table& table);

/// Puts each number in per cent of the sum of its category; raises FileError where a number is
/// below 0, or the sum is 0.
void MakePercent(Table& table);

}  // namespace orvane::tables
