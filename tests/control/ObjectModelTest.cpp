/// The object model as a whole: every class describes itself completely and truly.

#include "orvane/control/ObjectModel.h"
#include "orvane/host/Coercion.h"

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
