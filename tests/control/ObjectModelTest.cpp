/// The object model as a whole: every class describes itself completely and truly.

#include "support/Raises.h"

#include "orvane/automation/Coercion.h"
#include "orvane/control/ObjectModel.h"

#include <cmath>
#include <map>
#include <set>
#include <utility>

#include <gtest/gtest.h>

namespace orvane {
namespace {

using host::Value;

TEST(ObjectModel, DescribesEveryMemberOnceAndTruly) {
  std::set<std::string> names;
  std::set<std::string> classes = {"",        "Boolean", "Int16",  "Int32",
                                   "Color",   "Single",  "Double", "String",
                                   "Numbers", "Node",    "Object", "ISeriesInfo"};
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
    }
    const auto& entry = type.Entry().name;
    EXPECT_EQ(entry.empty(), !type.Name().starts_with("MF")) << type.Name();
    EXPECT_TRUE(classes.contains(entry)) << type.Name();
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

/// Values at the ends of `range`, and the nearest beyond them.
struct Limits {
  std::vector<double> accepted, refused;
};

Limits LimitsOf(const host::Range& range, const host::ValueType& type) {
  const bool isWhole = type == host::kColorType || type.name.starts_with("Int");
  const double step = isWhole ? 1 : 0.01;
  Limits limits;
  for (const auto& [end, outward] : {std::pair(range.low, -step), {range.high, step}}) {
    if (std::isinf(end)) continue;
    limits.accepted.push_back(range.isOpen ? end - outward : end);
    limits.refused.push_back(end + outward);
    if (range.isOpen) limits.refused.push_back(end);
  }
  return limits;
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
      const auto limits = LimitsOf(member.help.range, member.type);
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
          EXPECT_EQ(error.number, member.type == host::kColorType ? OutOfRange : Overflow) << name;
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

/// An argument that a parameter takes, if nothing else is wrong.
Value ArgumentFor(const host::Parameter& parameter) {
  if (parameter.type.name == "Node") return CreateObject("Group");
  return parameter.type.name == "String" ? Value("x") : Value(1);
}

TEST(ObjectModel, RefusesArgumentsBeyondTheirRangesAndChangesNothing) {
  for (const auto& object : ObjectModel()) {
    for (const auto& member : object->Type().Members()) {
      for (std::size_t i = 0; i < member.parameters.size(); ++i) {
        const auto& parameter = member.parameters[i];
        if (parameter.isOut) continue;
        for (const double value : LimitsOf(parameter.range, parameter.type).refused) {
          std::vector<Value> arguments;
          for (const auto& each : member.parameters) {
            if (!each.isOut) arguments.push_back(ArgumentFor(each));
          }
          arguments[i] = value;
          const auto before = StateOf(*object);
          const auto error =
              tests::ErrorOf([&] { object->Get(object->Type().IdOf(member.name), arguments); });
          using enum host::ErrorNumber;
          EXPECT_TRUE(std::set({Component, ListIndex, OutOfRange}).contains(error.number))
              << object->Type().Name() << "." << member.name << ": " << parameter.name << " "
              << value << ": " << error.message;
          EXPECT_EQ(StateOf(*object), before) << object->Type().Name() << "." << member.name;
        }
      }
    }
  }
}

TEST(ObjectModel, KeepsEachEnumeratorAndIgnoresMostOtherNumbers) {
  std::set<std::string> keepers;
  for (const auto& object : ObjectModel()) {
    for (const auto& member : object->Type().Members()) {
      if (member.type.enumeration == nullptr || !member.let) continue;
      const auto name = object->Type().Name() + "." + member.name;
      for (const auto& enumerator : member.type.enumeration->Enumerators()) {
        object->Let(member.name, enumerator.name);
        EXPECT_EQ(object->Get(member.name), Value(enumerator.value)) << name;
        object->Let(member.name, 99);
        if (object->Get(member.name) == Value(99)) keepers.insert(name);
      }
    }
  }
  EXPECT_EQ(keepers, (std::set<std::string>{
                         "ColumnGraph.ColumnSpacingStyle", "PieGraph.SliceTextDisplayStyle",
                         "SCComboGraph.ColumnSpacingStyle", "ScatterGraph.AnimationLoopStyle",
                         "ScatterGraph.PointAnimationStyle", "SliderInfo.SliderOrientation",
                         "SliderInfo.TextAlignment"}));
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
