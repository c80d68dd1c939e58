#include "orvane/tables/OptionTable.h"

#include <algorithm>
#include <charconv>
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

std::vector<Option> AllOptions() {
  return {
      {"title", "TEXT", "Title above the chart", "", false,
       [](ChartOptions& options, const std::string& text) { options.title = text; }},
      {"background", "#rrggbb", "Colour behind the chart; texts and lines go with it", "", false,
       [](ChartOptions& options, const std::string& text) { options.background = ColorIn(text); }},
      Choice<MissingCell>("missing", "What an empty cell stands for; left out, it is an error",
                          &ChartOptions::missing, {{"zero", MissingCell::Zero}}),
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
       [](ChartOptions& options, const std::string& text) {
         options.surface = Source::Read(text);
       }},
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
  static const std::vector<Option> all = AllOptions();
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
