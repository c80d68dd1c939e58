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

/// What a chart does with a surface at export.
class ORVANE_API IInternalSurfaceInfo {
 public:
  virtual ~IInternalSurfaceInfo() = default;

  /// Distance between neighbouring lattice points in scene units, > 0. Default 1.
  virtual float XSpacing() const = 0;
  virtual void XSpacing(float spacing) = 0;
  virtual float ZSpacing() const = 0;
  virtual void ZSpacing(float spacing) = 0;
  /// Number of lattice points along an axis, >= 2. Default 2.
  virtual std::int16_t XCount() const = 0;
  virtual void XCount(std::int16_t count) = 0;
  virtual std::int16_t ZCount() const = 0;
  virtual void ZCount(std::int16_t count) = 0;
  virtual std::shared_ptr<scene::ContentToggle> ContentToggle() const = 0;
  virtual std::shared_ptr<scene::Appearance> Appearance() const = 0;
  /// Place of the popups along z, in scene units in the surface's frame. Default 0.
  virtual float PopupZOffset() const = 0;
  virtual void PopupZOffset(float offset) = 0;
};

/// A lattice of heights: a shaded surface behind a content toggle, its wires just above it, and a
/// root that the chart places. All lattices of a surface are kept alike. Heights are stored row by
/// row, X fastest.
class ORVANE_API LatticeSurface : public host::Object,
                                  public ISeriesInfo,
                                  public ISceneRoot,
                                  public IInternalSurfaceInfo {
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

  float XSpacing() const override { return m_surface->xSpacing.Value(); }
  void XSpacing(float spacing) override;
  float ZSpacing() const override { return m_surface->zSpacing.Value(); }
  void ZSpacing(float spacing) override;
  /// A let raises Overflow for a lattice of more than kMostPoints, and changes nothing then.
  std::int16_t XCount() const override;
  void XCount(std::int16_t count) override;
  std::int16_t ZCount() const override;
  void ZCount(std::int16_t count) override;
  std::shared_ptr<scene::ContentToggle> ContentToggle() const override { return m_toggle; }
  std::shared_ptr<scene::Appearance> Appearance() const override { return m_appearance; }

  std::shared_ptr<scene::Node> RootNode() const override { return m_root; }
  /// The same node; the chart places it.
  const std::shared_ptr<scene::Transform>& Root() const { return m_root; }

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

  std::shared_ptr<scene::Transform> m_root;
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
