#include "orvane/tables/layout/ChartDress.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/scene/GroupingNodes.h"
#include "orvane/scene/ViewNodes.h"

namespace orvane::tables {

using host::Single;

Style::Style(HostColor background) {
  const bool isLight = Contrast(background, kDarkInk) > Contrast(background, kLightInk);
  ink = isLight ? kDarkInk : kLightInk;
  wall = Mix(background, ink, isLight ? 0.24 : 0.12);
  litWall = isLight ? Mix(background, wall, 0.3) : wall;
  line = Mix(background, ink, 0.4);
}

void FaceViewer(scene::Billboard& billboard) { billboard.axisOfRotation.Y(0); }

void DressBackground(Chart& chart, HostColor background) {
  chart.BackgroundProps()->BackgroundColor(background);
  chart.BackgroundProps()->UseBackgroundColorFade(false);
}

void DressTitle(TextInfo& title, const std::string& text, double height, const Style& style) {
  title.Text(text);
  title.TextHeight(Single(height));
  title.TextColor(style.ink);
  title.TextFont(VRMLFontFamily::VRML_SANS);
  title.TextStyle(VRMLFontStyle::VRML_BOLD);
  title.IsBillboarded(true);
  FaceViewer(*title.BillboardNode());
}

void DressLegend(ChartLegend& legend, double height, const Style& style) {
  legend.TextHeight(Single(height));
  legend.TextColor(style.ink);
  legend.IsBillboarded(true);
  FaceViewer(*legend.BillboardNode());
}

void AddViews(Chart& chart, const std::vector<View>& views) {
  for (const View& view : views) {
    scene::Viewpoint& viewpoint = *chart.Viewpoints()->AddViewpoint();
    viewpoint.description.Value(view.description);
    viewpoint.position.X(Single(view.position.x));
    viewpoint.position.Y(Single(view.position.y));
    viewpoint.position.Z(Single(view.position.z));
    viewpoint.fieldOfView.Value(Single(kFieldOfView));
    viewpoint.orientation.SetFromAngles(Single(view.pitch), Single(view.yaw), 0);
  }
}

void AddLight(Chart& chart, const Point& middle, double distance, const Point& direction,
              double intensity) {
  scene::PointLight& light = *chart.Lights()->AddLightSource();
  light.location.X(Single(middle.x + distance * direction.x));
  light.location.Y(Single(middle.y + distance * direction.y));
  light.location.Z(Single(middle.z + distance * direction.z));
  light.radius.Value(Single(2 * distance));
  light.intensity.Value(Single(intensity));
  light.ambientIntensity.Value(Single(0.4 * intensity));
}

void AddLights(Chart& chart, const Point& middle, double distance) {
  chart.Lights()->UseHeadlight(false);
  AddLight(chart, middle, distance, {0.35, 0.62, 0.70}, 0.85);
  AddLight(chart, middle, distance, {-0.70, 0.35, 0.62}, 0.35);
  AddLight(chart, middle, distance, {0.90, 0.20, -0.39}, 0.4);
  AddLight(chart, middle, distance, {-0.30, 0.30, -0.90}, 0.45);
}

void CentreForExamining(Chart& chart, const Point& middle) {
  auto& translation = chart.RootNode()->translation;
  translation.X(Single(-middle.x));
  translation.Y(Single(-middle.y));
  translation.Z(Single(-middle.z));

  auto& type = chart.Lights()->Navigation()->type;
  type.Clear();
  type.Append("EXAMINE");
  type.Append("ANY");
}

}  // namespace orvane::tables
