#include "orvane/graphs/scatter/ScatterLegendInfo.h"

#include "orvane/components/DescribeLegend.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& ScatterLegendInfo::Type() const {
  static const host::TypeInfo type =
      host::Describe<ScatterLegendInfo>("The key of a scatter chart: a colour and a text an entry.")
          .With(DescribeLegend<ScatterLegendInfo>)
          .Method("AddLegendEntry", &ScatterLegendInfo::AddLegendEntry,
                  {host::Parameter::Color("newColor"), "newText"},
                  {"Adds an entry below those there are"})
          .Method("ClearLegend", &ScatterLegendInfo::ClearLegend, {}, {"Removes all entries"});
  return type;
}

void ScatterLegendInfo::AddLegendEntry(std::int32_t newColor, const std::string& newText) {
  const auto appearance = scene::Create<scene::Appearance>();
  const auto material = scene::Create<scene::Material>();
  appearance->material.Value(material);
  material->diffuseColor.Value(newColor);
  AddEntries({{appearance, newText}});
}

}  // namespace orvane
