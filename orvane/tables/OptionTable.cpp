#include "orvane/tables/OptionTable.h"

#include "orvane/tables/read/Table.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <sstream>
#include <string>

namespace orvane::tables {
namespace {

using Set = std::function<void(ChartOptions&, const std::string&)>;

/// The number that all of `text` spells, in `least`..`most`.
double NumberIn(std::string_view text, double least, double most) {
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  if (error == std::errc() && rest == end && number >= least && number <= most) return number;
  std::ostringstream complaint;
  complaint << text << " is not a number from " << least << " to " << most;
  throw OptionError(complaint.str());
}

GridSize SizeIn(const std::string& text) {
  std::vector<float> extents;
  std::istringstream parts(text);
  for (std::string part; std::getline(parts, part, ',');) {
    extents.push_back(static_cast<float>(NumberIn(part, kLeastExtent, kMostExtent)));
  }
  if (extents.size() != 3) throw OptionError(text + " is not three numbers: W,H,D");
  return {extents[0], extents[1], extents[2]};
}

HostColor ColorIn(const std::string& text) {
  if (const auto color = ParseColor(text)) return *color;
  throw OptionError(text + " is not a colour (#rrggbb)");
}

/// One of several names, each with what it stands for.
template <class T>
struct Name {
  std::string name;
  T value;
};

/// An option that takes one of `names` and puts what it stands for into `member`.
template <class T>
Option Choice(const std::string& option, const std::string& help, T ChartOptions::*member,
              const std::vector<Name<T>>& names) {
  std::string values;
  for (const auto& name : names) values += (values.empty() ? "" : "|") + name.name;
  const Set set = [names, values, member](ChartOptions& options, const std::string& text) {
    const auto chosen = std::find_if(names.begin(), names.end(),
                                     [&](const auto& name) { return name.name == text; });
    if (chosen == names.end()) throw OptionError(text + " is not one of " + values);
    options.*member = chosen->value;
  };
  return {option, values, help, "", false, set};
}

/// A switch that puts `value` into `member`.
Option Switch(const std::string& option, const std::string& help, bool ChartOptions::*member,
              bool value, const std::string& excludes = "") {
  return {option,
          "",
          help,
          excludes,
          false,
          [member, value](ChartOptions& options, const std::string&) { options.*member = value; }};
}

/// An option whose text goes into `member` as it is.
Option Text(const std::string& option, const std::string& values, const std::string& help,
            std::string ChartOptions::*member) {
  return {
      option, values,
      help,   "",
      false,  [member](ChartOptions& options, const std::string& text) { options.*member = text; }};
}

/// How the table is written.
std::vector<Option> DialectOptions() {
  return {
      Choice<char>("separator", "What stands between cells; left out, recognised from the file",
                   &ChartOptions::separator, {{",", ','}, {";", ';'}, {"|", '|'}, {"tab", '\t'}}),
      Choice<std::optional<DecimalMark>>(
          "decimal", "The decimal mark; left out, recognised from all numbers of the file",
          &ChartOptions::decimal, {{".", DecimalMark::Point}, {",", DecimalMark::Comma}}),
      Text("encoding", "NAME", "Encoding of the file, as iconv calls it; left out, UTF-8 or UTF-16",
           &ChartOptions::encoding),
      Switch("no-header", "The first row holds data, not names", &ChartOptions::hasHeader, false),
  };
}

/// What of the table is charted.
std::vector<Option> ChoosingOptions() {
  return {
      Text("columns", "A,C,E-G", "Columns to take, by name, letter or number; left out, all",
           &ChartOptions::columns),
      Text("rows", "1-12,20-", "Rows below the header to take; left out, all", &ChartOptions::rows),
      Text("category", "COLUMN", "Of a table with one row a value: the column of categories",
           &ChartOptions::category),
      Text("series", "COLUMN", "... the column that names the series; left out, there is one",
           &ChartOptions::series),
      Text("value", "COLUMN", "... the column of values", &ChartOptions::value),
      Choice<std::optional<Aggregate>>(
          "aggregate", "What becomes of values that meet; left out, that is an error",
          &ChartOptions::aggregate,
          {{"sum", Aggregate::Sum},
           {"mean", Aggregate::Mean},
           {"median", Aggregate::Median},
           {"min", Aggregate::Min},
           {"max", Aggregate::Max},
           {"count", Aggregate::Count}}),
      Choice<std::optional<Period>>(
          "by", "Aggregates categories that are dates; left out, as they are", &ChartOptions::by,
          {{"day", Period::Day},
           {"week", Period::Week},
           {"month", Period::Month},
           {"quarter", Period::Quarter},
           {"year", Period::Year}}),
      Text("date-format", "FORMAT", "How dates are written: %d.%m.%Y; left out, 2024-03-05",
           &ChartOptions::dateFormat),
      Switch("fill-dates", "Days, months, ... without a row become gaps", &ChartOptions::fillDates,
             true),
      Choice<Sort>("sort", "Order of the categories, largest sum first for value; left out, none",
                   &ChartOptions::sort,
                   {{"label", Sort::Label}, {"value", Sort::Value}, {"none", Sort::None}}),
      {"top", "N", "Keeps the N categories with the largest sums, the rest as \"Other\"", "", false,
       [](ChartOptions& options, const std::string& text) {
         const double count = NumberIn(text, 1, kMostCells - 1);
         if (count != std::floor(count)) throw OptionError(text + " is not a whole number");
         options.top = static_cast<std::size_t>(count);
       }},
      Switch("percent", "Values in per cent of the sum of their category", &ChartOptions::isPercent,
             true),
      Switch("transpose", "Categories become series, and series categories",
             &ChartOptions::isTransposed, true),
  };
}

std::vector<Option> LookOptions() {
  return {
      {"title", "TEXT", "Title above the chart", "", false,
       [](ChartOptions& options, const std::string& text) { options.title = text; }},
      {"background", "#rrggbb", "Colour behind the chart; texts and lines go with it", "", false,
       [](ChartOptions& options, const std::string& text) { options.background = ColorIn(text); }},
      Choice<Missing>("missing",
                      "What an empty cell stands for: 0, the value before, or one between its"
                      " neighbours; left out, it is an error",
                      &ChartOptions::missing,
                      {{"error", Missing::Error},
                       {"zero", Missing::Zero},
                       {"previous", Missing::Previous},
                       {"linear", Missing::Linear}}),
      {"size", "W,H,D", "Extents of the grid in scene units; left out, fitted to the table", "",
       false, [](ChartOptions& options, const std::string& text) { options.size = SizeIn(text); }},
      Switch("no-toggles", "Leave out the legend's check boxes", &ChartOptions::useToggles, false),
      Switch("no-popups", "Leave out the texts shown at a value", &ChartOptions::usePopups, false),
      Choice<ShapeStyle>("style", "Edges of the shapes; left out, outlined", &ChartOptions::style,
                         {{"outlined", ShapeStyle::Outlined}, {"rounded", ShapeStyle::Rounded}}),
      Switch("grouped", "Series side by side in each cell", &ChartOptions::isGrouped, true),
      Switch("stacked-rows", "A row for each series, one behind the other: the default",
             &ChartOptions::isGrouped, false, "grouped"),
      {"surface", "GRID.csv",
       "CSV grid of the surface: the rows and columns of the table, its name in the corner", "",
       true,
       [](ChartOptions& options, const std::string& text) { options.surface = TableFile(text); }},
      Choice<ShapeStyle>("slice-style", "Shape of the slices; left out, outlined",
                         &ChartOptions::style,
                         {{"outlined", ShapeStyle::Outlined},
                          {"rounded", ShapeStyle::Rounded},
                          {"ring", ShapeStyle::Ring}}),
      Choice<SliceLabels>("labels",
                          "When slices show their labels; left out, while they are touched",
                          &ChartOptions::sliceLabels,
                          {{"always", SliceLabels::Always}, {"touch", SliceLabels::Touch}}),
      Switch("spin", "An axis that turns the pie", &ChartOptions::useSpinAxis, true),
      Choice<AnimationStyle>(
          "animate", "Points that move, or a slider that picks the frame; left out, smooth",
          &ChartOptions::animation,
          {{"smooth", AnimationStyle::VRML_ANALOG}, {"slider", AnimationStyle::VRML_DISCRETE}}),
      Choice<LoopStyle>("loop", "What points do after the last frame; left out, break",
                        &ChartOptions::loop,
                        {{"continuous", LoopStyle::VRML_LOOP_CONTINUOUS},
                         {"break", LoopStyle::VRML_LOOP_BREAK},
                         {"back-and-forth", LoopStyle::VRML_BACK_AND_FORTH},
                         {"none", LoopStyle::VRML_NO_LOOP}}),
      {"frame-seconds", "S", "Time from one frame to the next; left out, 1", "", false,
       [](ChartOptions& options, const std::string& text) {
         options.frameSeconds = NumberIn(text, 1, 3600);
       }},
      {"sigma", "WIDTH",
       "Width of the hill around a point in scene units; left out, by Silverman's rule of thumb",
       "", false,
       [](ChartOptions& options, const std::string& text) {
         options.sigma = static_cast<float>(NumberIn(text, kLeastSigma, kMostExtent));
       }},
  };
}

}  // namespace

std::vector<Option> OptionsNamed(OptionNames names) {
  static const std::vector<Option> all = [] {
    auto options = LookOptions();
    for (const auto& more : {DialectOptions(), ChoosingOptions()}) {
      options.insert(options.end(), more.begin(), more.end());
    }
    return options;
  }();
  std::vector<Option> options;
  for (const std::string_view name : names) {
    options.push_back(*std::find_if(all.begin(), all.end(),
                                    [name](const Option& option) { return option.name == name; }));
  }
  // Slices have one style more, under the name that all shapes have.
  for (Option& option : options) {
    if (option.name == "slice-style") option.name = "style";
  }
  return options;
}

}  // namespace orvane::tables
