#include "orvane/control/ObjectModel.h"

#include "orvane/automation/Coercion.h"
#include "orvane/control/OrvaneTemplateCtl.h"
#include "orvane/scene/frmMain.h"

namespace orvane {
namespace {

using Objects = std::vector<std::shared_ptr<host::Object>>;

template <class... T>
Objects Make() {
  return {std::make_shared<T>()...};
}

/// The control and its factory. Making a control sets the process-wide path of PROTO files, which
/// is put back here.
Objects ControlAndFactory() {
  // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): it changes in between.
  const std::string path = OrvaneModule::RelativeProtoPath();
  const auto control = std::make_shared<OrvaneTemplateCtl>();
  OrvaneModule::RelativeProtoPath(path);
  return {control, control->CreateFactory()};
}

/// One chart of each kind, as the factory makes them.
Objects Charts() {
  GraphFactory factory;
  Objects charts;
  for (const auto& create : factory.Type().Members()) {
    charts.push_back(factory.Call(create.name).AsObject());
  }
  return charts;
}

void Append(Objects& all, const Objects& more) { all.insert(all.end(), more.begin(), more.end()); }

/// A value of type `type`, for people; empty for objects and rows.
std::string TextOf(const host::Value& value, const host::ValueType& type) {
  if (const auto* truth = value.If<bool>()) return *truth ? "true" : "false";
  if (const auto* text = value.If<std::string>()) return '"' + *text + '"';
  if (const auto* number = value.If<std::int32_t>()) {
    if (type == host::kColorType) return host::ColorText(*number);
    if (type.enumeration != nullptr) return type.enumeration->NameOf(*number);
  }
  const bool isNumber = value.If<std::int32_t>() || value.If<float>() || value.If<double>();
  return isNumber ? host::ToText(value) : "";
}

}  // namespace

std::string InitialText(host::Object& fresh, const host::Member& member) {
  if (member.isMethod || !member.parameters.empty() || !member.get || member.help.isShared)
    return "";
  const host::Value value = member.get(fresh, {});
  const auto* object = value.If<std::shared_ptr<host::Object>>();
  if (object == nullptr) return TextOf(value, member.type);
  if (*object == nullptr) return "";
  std::string text;
  for (const int id : (*object)->Type().ValueMembers()) {
    const auto& part = (*object)->Type().Members()[static_cast<std::size_t>(id)];
    text += (text.empty() ? "" : " ") + InitialText(**object, part);
  }
  return text;
}

Objects ObjectModel() {
  Objects all = ControlAndFactory();
  Append(all, Charts());
  Append(all, Make<AreaSeriesInfo, ColumnSeriesInfo, RibbonSeriesInfo, PieSliceInfo,
                   PieSpinAxisInfo, PointCollection, ScatterLegendInfo, SliderInfo, SurfaceInfo,
                   SurfacePopupInfo, DensitySurfaceInfo, SeriesCollection, TextInfo, BackgroundInfo,
                   GridInfo, DiscreteAxis, ContinuousAxis, LegendInfo, SeriesToggleInfo,
                   DrillUpInfo, DrillDownInfo, GridInteractivityInfo, SeriesPopupInfo,
                   ViewpointCollection, LightCollection, OrvaneScaler>());
  const auto factory = scene::CoreFactory();
  for (const auto& name : factory->NodeTypes()) all.push_back(factory->CreateNode(name));
  for (const auto& name : factory->FieldTypes()) all.push_back(factory->CreateField(name));
  return all;
}

std::shared_ptr<host::Object> CreateChart(std::string_view className) {
  GraphFactory factory;
  for (const auto& create : factory.Type().Members()) {
    if (host::EqualNoCase(create.type.name, className)) {
      return factory.Call(create.name).AsObject();
    }
  }
  return nullptr;
}

std::shared_ptr<host::Object> CreateObject(std::string_view className) {
  if (auto chart = CreateChart(className)) return chart;
  const auto isIt = [=](std::string_view name) { return host::EqualNoCase(name, className); };
  if (isIt(OrvaneTemplateCtl::kClassName)) return std::make_shared<OrvaneTemplateCtl>();
  if (isIt(OrvaneScaler::kClassName)) return std::make_shared<OrvaneScaler>();
  const auto factory = scene::CoreFactory();
  for (const auto& name : factory->NodeTypes()) {
    if (isIt(name)) return factory->CreateNode(name);
  }
  for (const auto& name : scene::Factory::FieldTypes()) {
    if (isIt(name)) return factory->CreateField(name);
  }
  return nullptr;
}

}  // namespace orvane
