/// Charts from tables stay what they are: whatever a host switches off and on again is where it
/// was.
#include "orvane/scene/Node.h"
#include "orvane/tables/ChartKinds.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace orvane::tables {
namespace {

using host::Value;

struct Kind {
  std::string name;
  AnimationStyle animation = AnimationStyle::VRML_ANALOG;
};

std::vector<Kind> AllKinds() {
  std::vector<Kind> kinds{{"scatter", AnimationStyle::VRML_DISCRETE}};
  for (const ChartKind& kind : ChartKinds()) kinds.push_back({kind.name});
  return kinds;
}

std::string NameOf(const Kind& kind) {
  std::string name = kind.name;
  std::erase(name, '-');
  return kind.animation == AnimationStyle::VRML_DISCRETE ? name + "WithSlider" : name;
}

std::shared_ptr<Chart> ChartOf(const Kind& kind) {
  const std::string series = "Month,2014,2015\nMay,1,2\nJune,3,4\nJuly,2,5\n";
  std::string table = series;
  if (kind.name == "scatter") table = "x,y,z,group,frame\n0,0,0,a,1\n1,1,1,b,2\n2,2,2,c,3\n";
  if (kind.name == "density") table = "x,z,group\n0,0,a\n1,2,b\n2,1,a\n3,3,b\n";
  ChartOptions options;
  options.title = "A title that is wider than its grid is";
  options.size = GridSize{3, 2, 4};
  options.surface = TableText("s.csv", series);
  options.sliceLabels = SliceLabels::Always;
  options.useSpinAxis = true;
  options.animation = kind.animation;
  options.loop = LoopStyle::VRML_NO_LOOP;
  return ChartKindOf(kind.name).make(TableText("t.csv", table), options).chart;
}

class Toggles : public testing::TestWithParam<Kind> {
 protected:
  std::string Written() { return m_chart->ExportToString(true, true); }

  /// Switches every boolean property of `object` and of the parts that it hands out, of those in
  /// lists the first one.
  void Walk(host::Object& object, const std::string& path) {
    for (const auto& member : object.Type().Members()) {
      const auto where = path + "." + member.name;
      const bool isListed = member.isMethod && member.name.starts_with("Get");
      if (!isListed && (member.isMethod || !member.parameters.empty())) continue;
      const Value first[] = {Value(1)};
      const Value value =
          isListed ? object.Get(object.Type().IdOf(member.name), first) : object.Get(member.name);
      if (const bool* flag = value.If<bool>(); flag != nullptr && member.let) {
        object.Let(member.name, !*flag);
        EXPECT_FALSE(Written().empty());
        object.Let(member.name, *flag);
        EXPECT_TRUE(Written() == m_world) << where;
        ++m_count;
      }
      const auto* part = value.If<std::shared_ptr<host::Object>>();
      if (part != nullptr && dynamic_cast<scene::Node*>(part->get()) == nullptr)
        Walk(**part, where);
    }
  }

  std::shared_ptr<Chart> m_chart = ChartOf(GetParam());
  std::string m_world = Written();
  int m_count = 0;
};

TEST_P(Toggles, LeaveTheWorldAsItWas) {
  Walk(*m_chart, NameOf(GetParam()));
  EXPECT_GE(m_count, 7) << "sky, title, headlight and more";
}

INSTANTIATE_TEST_SUITE_P(Kinds, Toggles, testing::ValuesIn(AllKinds()),
                         [](const auto& kind) { return NameOf(kind.param); });

}  // namespace
}  // namespace orvane::tables
