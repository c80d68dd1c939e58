#include "orvane/scene/Factory.h"

#include "orvane/automation/Describe.h"
#include "orvane/scene/GraphProtos.h"
#include "orvane/scene/GroupingNodes.h"
#include "orvane/scene/NavProtos.h"
#include "orvane/scene/SceneError.h"
#include "orvane/scene/SensorNodes.h"
#include "orvane/scene/ShapeNodes.h"
#include "orvane/scene/Traversers.h"
#include "orvane/scene/UiProtos.h"
#include "orvane/scene/ViewNodes.h"

#include <array>
#include <string_view>

namespace orvane::scene {
namespace {

template <class Base>
struct Maker {
  std::string_view name;
  std::shared_ptr<Base> (*make)();
};

template <class Base, class... T>
constexpr auto MakersOf() {
  return std::array{Maker<Base>{
      T::kClassName, []() -> std::shared_ptr<Base> { return std::make_shared<T>(); }}...};
}

constexpr auto kFields =
    MakersOf<Field, SFBool, SFInt32, SFFloat, SFTime, SFString, SFColor, SFVec2f, SFVec3f,
             SFRotation, SFNode, MFNode, MFString, MFFloat, MFColor, MFVec2f, MFVec3f>();

constexpr auto kTraversers = MakersOf<host::Object, VRMLFileTraverser, VRMLStringTraverser>();

struct NodeMaker : Maker<Node> {
  Module module;
};

template <class... T>
constexpr auto NodeMakersOf() {
  return std::array{
      NodeMaker{{T::kClassName, []() -> std::shared_ptr<Node> { return std::make_shared<T>(); }},
                T::kModule}...};
}

constexpr auto kNodes =
    NodeMakersOf<Anchor, Appearance, Background, Billboard, Cone, CoordinateInterpolator, Cylinder,
                 CylinderSensor, FontStyle, Group, Material, NavigationInfo, PlaneSensor,
                 PointLight, Shape, Switch, Text, TimeSensor, TouchSensor, Transform, Viewpoint,
                 ChartGrid, Legend, OutlinedAreaSeries, OutlinedColumnSeries, RoundedColumnSeries,
                 OutlinedRibbonSeries, RoundedRibbonSeries, ConeCollection, PopupStrip,
                 OutlinedPieSlice, RoundedPieSlice, RoundedRingSlice, SphereCollection, Surface,
                 ElevationWireframe, PopupSurface, Router, ContentToggle, CheckBox, Slider>();

[[noreturn]] void RaiseUnknown(const char* kind, const std::string& name) {
  Raise(host::ErrorNumber::UnknownType, std::string("There is no ") + kind + " \"" + name + "\"");
}

template <class Makers>
auto MakeFrom(const Makers& makers, const char* kind, const std::string& name) {
  for (const auto& maker : makers) {
    if (maker.name == name) return maker.make();
  }
  RaiseUnknown(kind, name);
}

}  // namespace

const host::TypeInfo& Factory::Type() const {
  static const host::TypeInfo type =
      host::Describe<Factory>("Makes nodes, fields, writers and route lists by name.")
          .Method("CreateField", &Factory::CreateField, {"fieldType"}, {"A free-standing field"})
          .Method("CreateNode", &Factory::CreateNode, {"typeName"},
                  {"A node by VRML97 type or PROTO name"})
          .Method("CreateTraverser", &Factory::CreateTraverser, {"name"}, {"A writer"})
          .Method("CreateRouteList", &Factory::CreateRouteList, {}, {"An empty route list"});
  return type;
}

std::shared_ptr<Field> Factory::CreateField(const std::string& fieldType) {
  return MakeFrom(kFields, "field type", fieldType);
}

std::shared_ptr<Node> Factory::CreateNode(const std::string& typeName) {
  for (const auto& maker : kNodes) {
    const bool isMine = maker.module == Module::Core || maker.module == m_module;
    if (isMine && maker.name == typeName) return maker.make();
  }
  RaiseUnknown("node type", typeName);
}

std::shared_ptr<host::Object> Factory::CreateTraverser(const std::string& name) {
  return MakeFrom(kTraversers, "writer", name);
}

std::shared_ptr<RouteList> Factory::CreateRouteList() { return std::make_shared<RouteList>(); }

std::vector<std::string> Factory::NodeTypes() const {
  std::vector<std::string> names;
  for (const auto& maker : kNodes) {
    if (maker.module == Module::Core || maker.module == m_module) names.emplace_back(maker.name);
  }
  return names;
}

std::vector<std::string> Factory::FieldTypes() {
  std::vector<std::string> names;
  names.reserve(kFields.size());
  for (const auto& maker : kFields) names.emplace_back(maker.name);
  return names;
}

}  // namespace orvane::scene
