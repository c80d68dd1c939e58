/// What the series of area, column and ribbon charts share.
#pragma once

#include "orvane/automation/Describe.h"
#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/components/SeriesPopupInfo.h"
#include "orvane/graphs/SeriesCollection.h"
#include "orvane/scene/ShapeNodes.h"
#include "orvane/scene/UiProtos.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace orvane {

/// One row of values: a shape and its popups behind a content toggle, under a root that the chart
/// places. The shape may come in several variants, one of which is shown; every let writes them
/// all, so that changing the variant keeps every size.
class ORVANE_API GridSeries : public host::Object,
                              public ISeriesInfo,
                              public RootedAt<scene::Transform> {
 public:
  static constexpr const char* kClassName = "GridSeries";

  /// Thickness along Z in scene units, > 0. The popups become a little deeper than the shape.
  float Depth() const { return m_variants.front().depth->Value(); }
  void Depth(float depth);
  /// Colours and transparency of the series.
  std::shared_ptr<scene::Material> Material() const { return m_material; }
  /// The values themselves, one an X cell, in scene units; a live list.
  scene::MFFloat& Height() { return *m_variants[m_shown].heights; }
  /// Text of the legend entry. Default "".
  std::string LegendText() const { return m_legendText; }
  void LegendText(const std::string& text) { m_legendText = text; }
  std::shared_ptr<SeriesPopupInfo> PopupProps() const { return m_popups; }
  /// Whether the series has a legend entry, and with it a toggle. Default true.
  bool ShowInLegend() const { return m_showInLegend; }
  void ShowInLegend(bool show) { m_showInLegend = show; }

  std::shared_ptr<scene::ContentToggle> ContentToggle() const { return m_toggle; }
  /// Distance between neighbouring values along X in scene units, > 0.
  float Spacing() const { return m_variants.front().spacing->Value(); }
  void Spacing(float spacing);
  /// Number of values along X, >= 1.
  std::int16_t Count() const;
  void Count(std::int16_t count);
  std::shared_ptr<scene::Appearance> Appearance() const { return m_appearance; }

 protected:
  /// The fields that every series PROTO has.
  struct Variant {
    std::shared_ptr<scene::Node> node;
    scene::SFInt32* count;
    scene::SFFloat* spacing;
    scene::SFFloat* depth;
    scene::MFFloat* heights;
  };
  template <class P>
  static Variant VariantOf(const std::shared_ptr<P>& proto) {
    return {proto, &proto->count, &proto->spacing, &proto->depth, &proto->heights};
  }

  /// Shows the first of `variants`.
  explicit GridSeries(std::vector<Variant> variants);

  std::size_t Shown() const { return m_shown; }
  /// Puts variant `index`, from 0, in place of the one that is shown; it takes over the heights.
  void Show(std::size_t index);

 private:
  std::vector<Variant> m_variants;
  std::size_t m_shown = 0;
  std::shared_ptr<SeriesPopupInfo> m_popups;
  std::shared_ptr<scene::ContentToggle> m_toggle;
  std::shared_ptr<scene::Appearance> m_appearance;
  std::shared_ptr<scene::Material> m_material;
  std::string m_legendText;
  bool m_showInLegend = true;
};

}  // namespace orvane
