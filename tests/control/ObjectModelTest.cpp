/// The object model as a whole: every class describes itself completely and truly.

#include "support/Raises.h"

#include "orvane/automation/Coercion.h"
#include "orvane/control/ObjectModel.h"

#include <map>
#include <regex>
#include <set>

#include <gtest/gtest.h>

namespace orvane {
namespace {

using host::Value;

/// A stated default in the form in which the property reads.
std::string Stated(const host::Member& member) {
  const std::string& initial = member.help.initial;
  if (member.type.enumeration != nullptr) {
    return std::to_string(member.type.enumeration->ValueOf(initial).value_or(-1));
  }
  if (initial == "true") return "True";
  if (initial == "false") return "False";
  if (initial.starts_with('"')) return initial.substr(1, initial.size() - 2);
  return initial;
}

TEST(ObjectModel, DescribesEveryMemberOnceAndTruly) {
  std::set<std::string> names;
  std::set<std::string> classes = {"",       "Boolean", "Int16", "Int32",  "Single",     "Double",
                                   "String", "Numbers", "Node",  "Object", "ISeriesInfo"};
  const auto model = ObjectModel();
  for (const auto& object : model) classes.insert(object->Type().Name());
  for (const auto& object : model) {
    const auto& type = object->Type();
    EXPECT_TRUE(names.insert(type.Name()).second) << type.Name() << " twice";
    EXPECT_FALSE(type.Text().empty()) << type.Name();
    std::set<std::string> members;
    for (const auto& member : type.Members()) {
      const auto where = type.Name() + "." + member.name;
      EXPECT_TRUE(members.insert(member.name).second) << where << " twice";
      EXPECT_FALSE(member.help.text.empty()) << where << " has no help";
      const bool isKnown = member.type.enumeration != nullptr || classes.contains(member.type.name);
      EXPECT_TRUE(isKnown) << where << ": " << member.type.name << " is nowhere described";
      if (member.help.initial.empty()) continue;
      EXPECT_EQ(host::ToText(object->Get(member.name)), Stated(member)) << where;
    }
  }
}

TEST(ObjectModel, WritesBackEveryValueItReads) {
  for (const auto& object : ObjectModel()) {
    for (const auto& member : object->Type().Members()) {
      if (!member.let || !member.get || !member.parameters.empty()) continue;
      if (member.name == "PointFrameCount") continue;  // 0 at first, but 1 or more when it is set.
      const Value value = object->Get(member.name);
      object->Let(member.name, value);
      EXPECT_EQ(object->Get(member.name), value) << object->Type().Name() << "." << member.name;
    }
  }
}

/// Values at the limits that `range` states, and the nearest beyond them; none where it is no range
/// of numbers.
struct Limits {
  std::vector<double> accepted, refused;
};

Limits LimitsOf(const std::string& range, double step) {
  std::smatch part;
  if (range.starts_with("> 0")) return {{step, 5}, {0, -step}};
  if (!std::regex_match(range, part, std::regex(R"((>= )?(\d+)(\.\.(\d+))?(, finite)?)")))
    return {};
  const double low = std::stod(part[2]);
  if (!part[4].matched) return {{low, low + 1}, {low - step}};
  const double high = std::stod(part[4]);
  return {{low, high}, {low - step, high + step}};
}

std::vector<Value> StateOf(host::Object& object) {
  std::vector<Value> values;
  for (const auto& member : object.Type().Members()) {
    if (!member.isMethod && member.parameters.empty()) values.push_back(object.Get(member.name));
  }
  return values;
}

TEST(ObjectModel, HoldsEveryStatedRangeAndChangesNothingBeyondIt) {
  using Names = std::set<std::string>;
  std::map<std::string, Names> complaints;
  for (const auto& object : ObjectModel()) {
    for (const auto& member : object->Type().Members()) {
      if (!member.let || !member.parameters.empty()) continue;
      const auto name = object->Type().Name() + "." + member.name;
      const bool isWhole = member.type.name.starts_with("Int");
      const auto limits = LimitsOf(member.help.range, isWhole ? 1 : 0.01);
      for (const double value : limits.accepted) {
        object->Let(member.name, value);
        EXPECT_NEAR(std::stod(host::ToText(object->Get(member.name))), value, 1e-6) << name;
      }
      const auto before = StateOf(*object);
      for (const double value : limits.refused) {
        const auto error = tests::ErrorOf([&] { object->Let(member.name, value); });
        EXPECT_EQ(StateOf(*object), before) << name << " := " << value;
        if (error.number == host::ErrorNumber::Component) {
          complaints[error.message].insert(name);
        } else {
          using enum host::ErrorNumber;
          EXPECT_EQ(error.number, limits.accepted.back() == 0xFFFFFF ? OutOfRange : Overflow)
              << name;
        }
      }
    }
  }
  const std::map<std::string, Names> expected = {
      {"Invalid Header height, must be greater than 0",
       {"ContinuousAxis.HeaderHeight", "DiscreteAxis.HeaderHeight"}},
      {"Invalid Text height, must be greater than 0", {"TextInfo.TextHeight"}},
      {"Invalid axis height, must be greater than 0", {"PieSpinAxisInfo.Height"}},
      {"Invalid axis radius, must be greater than 0", {"PieSpinAxisInfo.radius"}},
      {"Invalid bevel radius, must be greater than 0",
       {"ColumnSeriesInfo.BevelRadius", "PieGraph.BevelRadius", "RibbonSeriesInfo.BevelRadius"}},
      {"Invalid height, must be greater than 0",
       {"DrillDownInfo.ConeHeight", "DrillUpInfo.ConeHeight", "SeriesToggleInfo.Height"}},
      {"Invalid index into the list",
       {"DensityGraph.SurfaceCount", "PieGraph.SliceCount", "RCComboGraph.SurfaceCount",
        "SCComboGraph.SurfaceCount", "SurfaceGraph.SurfaceCount"}},
      {"Invalid inner radius, must be greater than 0", {"PieGraph.InnerRadius"}},
      {"Invalid label height, must be greater than 0",
       {"ContinuousAxis.LabelHeight", "DiscreteAxis.LabelHeight", "SliderInfo.LabelHeight"}},
      {"Invalid legend text height, must be greater than 0",
       {"LegendInfo.TextHeight", "ScatterLegendInfo.TextHeight"}},
      {"Invalid popup height, must be greater than 0",
       {"SeriesPopupInfo.TextHeight", "SurfacePopupInfo.TextHeight"}},
      {"Invalid radius, must be greater than 0",
       {"DrillDownInfo.ConeRadius", "DrillUpInfo.ConeRadius", "PieGraph.radius"}},
      {"Invalid series depth, must be greater than 0",
       {"AreaSeriesInfo.Depth", "ColumnSeriesInfo.Depth", "RibbonSeriesInfo.Depth"}},
      {"Invalid series thickness, must be greater than 0", {"RibbonSeriesInfo.Thickness"}},
      {"Invalid series width, must be greater than 0", {"ColumnSeriesInfo.Width"}},
      {"Invalid sigma value, must be greater than 0", {"DensityGraph.Sigma"}},
      {"Invalid slice height, must be greater than 0", {"PieSliceInfo.Height"}},
      {"Invalid slice percentage, must be in the range [0..1]", {"PieSliceInfo.Percentage"}},
      {"Invalid slider length, must be greater than 0", {"SliderInfo.SliderLength"}},
      {"Invalid slider radius, must be greater than 0", {"SliderInfo.SliderRadius"}},
      {"Invalid spacing, must be greater than 0", {"SeriesToggleInfo.Spacing"}},
      {"Invalid transparency, must be in the range [0..1]", {"DrillUpInfo.ConeTransparency"}},
      {"The frame time gap must take at least 1 second", {"ScatterGraph.FrameTimeGap"}},
      {"The graph must be deeper than 0", {"GridInfo.Depth"}},
      {"The graph must be taller than 0", {"GridInfo.Height"}},
      {"The graph must be wider than 0", {"GridInfo.Width"}},
      {"The graph must have at least one cell on the X axis", {"GridInfo.XAxisCellCount"}},
      {"The graph must have at least one cell on the Y axis", {"GridInfo.YAxisCellCount"}},
      {"The graph must have at least one cell on the Z axis", {"GridInfo.ZAxisCellCount"}},
      {"The number of columns per cell must be greater than or equal to 1",
       {"ColumnGraph.ColumnsPerCell", "SCComboGraph.ColumnsPerCell"}},
      {"There must be at least one point frame in the scene", {"ScatterGraph.PointFrameCount"}},
      {"Transparency must be in the range [0..1]", {"GridInfo.Transparency"}},
  };
  EXPECT_EQ(complaints, expected);
}

std::string Written(host::Object& chart) {
  return *chart.Call("ExportToString", {true, true}).If<std::string>();
}

TEST(ObjectModel, LeavesNothingOfWhatIsSwitchedOnAndOff) {
  for (const char* name : {"AreaGraph", "ColumnGraph", "RibbonGraph", "PieGraph", "ScatterGraph",
                           "SurfaceGraph", "DensityGraph", "SCComboGraph", "RCComboGraph"}) {
    const auto chart = CreateChart(name);
    std::vector<std::shared_ptr<host::Object>> objects = {chart};
    for (const auto& member : chart->Type().Members()) {
      if (member.name.ends_with("Count")) chart->Let(member.name, 2);
      if (member.name == "GridProps") chart->Get("GridProps").AsObject()->Let("ZAxisCellCount", 2);
    }
    for (const auto& member : chart->Type().Members()) {
      if (member.name.starts_with("Export") || !member.get) continue;
      const Value value = member.isMethod ? chart->Call(member.name, {1}) : chart->Get(member.name);
      if (const auto* part = value.If<std::shared_ptr<host::Object>>()) objects.push_back(*part);
    }
    const std::string before = Written(*chart);
    for (const auto& object : objects) {
      for (const auto& member : object->Type().Members()) {
        // The names that a spin axis gives to nodes stay.
        if (member.type.name != "Boolean" || !member.let || member.name == "UseSpinAxis") continue;
        const bool isOn = *object->Get(member.name).If<bool>();
        object->Let(member.name, !isOn);
        (void)Written(*chart);
        object->Let(member.name, isOn);
        EXPECT_EQ(Written(*chart), before) << name << ": " << member.name;
      }
    }
  }
}

TEST(ObjectModel, MakesWhatHostsMakeThemselves) {
  for (const char* name :
       {"OrvaneTemplateCtl", "AreaGraph", "OrvaneScaler", "Material", "MFVec3f"}) {
    const auto object = CreateObject(name);
    ASSERT_NE(object, nullptr) << name;
    EXPECT_EQ(object->Type().Name(), name);
    EXPECT_NE(CreateObject(name), object) << "one " << name << " handed out twice";
  }
  EXPECT_NE(CreateObject("material"), nullptr);
  EXPECT_NE(CreateChart("areagraph"), nullptr);
  EXPECT_EQ(CreateChart("TextInfo"), nullptr);
  for (const char* name : {"GraphFactory", "TextInfo", "Nothing"}) {
    EXPECT_EQ(CreateObject(name), nullptr) << name;
  }
}

}  // namespace
}  // namespace orvane
