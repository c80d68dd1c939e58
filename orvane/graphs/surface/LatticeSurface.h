/// What the surfaces of surface, combination and density charts share.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/graphs/SeriesCollection.h"
#include "orvane/scene/GraphProtos.h"
#include "orvane/scene/GroupingNodes.h"
#include "orvane/scene/ShapeNodes.h"
#include "orvane/scene/UiProtos.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace orvane {

/// A lattice of heights: a shaded surface behind a content toggle, its wires just above it, and a
/// root that the chart places. All lattices of a surface are kept alike. Heights are stored row by
/// row, X fastest.
class ORVANE_API LatticeSurface : public host::Object,
                                  public ISeriesInfo,
                                  public RootedAt<scene::Transform> {
 public:
  /// The most points that a lattice may have, 4096 x 4096: its lists take less than a gigabyte.
  static constexpr std::int32_t kMostPoints = 1 << 24;

  /// Colours and transparency of the surface.
  std::shared_ptr<scene::Material> Material() const { return m_material; }
  /// Text of the legend entry; none when it is empty or blank. Default "".
  std::string LegendText() const { return m_legendText; }
  void LegendText(const std::string& text) { m_legendText = text; }
  /// Host RGB colour of the wires, 0..0xFFFFFF. Default 0, black.
  std::int32_t WireColor() const { return m_wireframe->wireColor.Value(); }
  void WireColor(std::int32_t rgb) { m_wireframe->wireColor.Value(rgb); }

  /// Distance between neighbouring lattice points in scene units, > 0. Default 1.
  float XSpacing() const { return m_surface->xSpacing.Value(); }
  void XSpacing(float spacing);
  float ZSpacing() const { return m_surface->zSpacing.Value(); }
  void ZSpacing(float spacing);
  /// Number of lattice points along an axis, >= 2. Default 2. A let raises Overflow for a lattice
  /// of more than kMostPoints, and changes nothing then.
  std::int16_t XCount() const;
  void XCount(std::int16_t count);
  std::int16_t ZCount() const;
  void ZCount(std::int16_t count);
  std::shared_ptr<scene::ContentToggle> ContentToggle() const { return m_toggle; }
  std::shared_ptr<scene::Appearance> Appearance() const { return m_appearance; }

  /// The heights of all lattice points in scene units.
  const std::vector<float>& Heights() const { return m_surface->height.Items(); }

 protected:
  LatticeSurface();

  /// The fields that every lattice PROTO has.
  struct Lattice {
    scene::SFInt32* xDimension;
    scene::SFFloat* xSpacing;
    scene::SFInt32* zDimension;
    scene::SFFloat* zSpacing;
    scene::MFFloat* height;
  };
  template <class P>
  static Lattice LatticeOf(P& proto) {
    return {&proto.xDimension, &proto.xSpacing, &proto.zDimension, &proto.zSpacing, &proto.height};
  }
  /// Lets one more PROTO follow all lets; its lattice is still that of a new surface.
  void Join(const Lattice& lattice) { m_lattices.push_back(lattice); }

  /// Gives all lattices new point counts, >= 2, and leaves the heights as they are.
  virtual void Resize(std::int16_t xCount, std::int16_t zCount);

  /// The same heights for each lattice, one a point.
  using HeightLists = std::vector<std::vector<float>>;
  HeightLists ForAll(const std::vector<float>& heights) const {
    return HeightLists(m_lattices.size(), heights);
  }
  void Heights(HeightLists heights);
  /// Replaces the height of the point at `index`, counted from 1.
  void Height(std::int32_t index, float height);

  /// `count`, when a lattice may have as many points along the axis; a component error otherwise.
  static std::int16_t CheckedXCount(std::int16_t count);
  static std::int16_t CheckedZCount(std::int16_t count);
  /// Number of points of a lattice. Raises Overflow above kMostPoints.
  static std::size_t PointCount(std::int16_t xCount, std::int16_t zCount);
  /// Raises Overflow for a lattice that does not fit in memory.
  [[noreturn]] static void RaiseTooLarge(std::int16_t xCount, std::int16_t zCount);

 private:
  void Spacing(float spacing, scene::SFFloat* Lattice::*field, const char* message);

  std::shared_ptr<scene::ContentToggle> m_toggle;
  std::shared_ptr<scene::Surface> m_surface;
  std::shared_ptr<scene::Transform> m_wireframeHolder;
  std::shared_ptr<scene::ElevationWireframe> m_wireframe;
  std::shared_ptr<scene::Appearance> m_appearance;
  std::shared_ptr<scene::Material> m_material;
  std::vector<Lattice> m_lattices;
  std::string m_legendText;
};

}  // namespace orvane
