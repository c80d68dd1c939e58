/// The box that a chart's data stands in.
#pragma once

#include "orvane/automation/Event.h"
#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/scene/GraphProtos.h"
#include "orvane/scene/ShapeNodes.h"

#include <cstdint>
#include <memory>

namespace orvane {

/// The box of grid lines and walls, from (0, 0, 0) to (Width, Height, Depth) in scene units.
///
/// Extent = spacing x cells along each axis; the node's own fields are the only store. A cell count
/// of 32767 raises Overflow: its line count does not fit 16 bits. So does an extent or a count that
/// makes cells smaller than 1.17549e-38, the least float of full precision.
class ORVANE_API GridInfo final : public host::Object, public RootedAt<scene::Transform> {
 public:
  static constexpr const char* kClassName = "GridInfo";
  const host::TypeInfo& Type() const override;

  GridInfo();

  /// Extent along X in scene units, > 0. Stretches the spacing and keeps the cell count. Default 8.
  float Width() const;
  void Width(float value);
  /// Number of cells along X, 1..32766. Keeps Width, raises XCellCountChanged. Default 4.
  std::int16_t XAxisCellCount() const;
  void XAxisCellCount(std::int16_t count);

  /// Extent along Y in scene units, > 0. Default 6.
  float Height() const;
  void Height(float value);
  /// Number of cells along Y, 1..32766. Keeps Height, raises YCellCountChanged. Default 4.
  std::int16_t YAxisCellCount() const;
  void YAxisCellCount(std::int16_t count);

  /// Extent along Z in scene units, > 0. Default 8.
  float Depth() const;
  void Depth(float value);
  /// Number of cells along Z, 1..32766. Keeps Depth, raises ZCellCountChanged. Default 4.
  std::int16_t ZAxisCellCount() const;
  void ZAxisCellCount(std::int16_t count);

  /// Host RGB colours, 0..0xFFFFFF. Lines are black and walls white by default.
  std::int32_t LineColor() const { return m_grid->lineColor.Value(); }
  void LineColor(std::int32_t rgb) { m_grid->lineColor.Value(rgb); }
  std::int32_t WallColor() const { return m_wallMaterial->diffuseColor.Value(); }
  void WallColor(std::int32_t rgb) { m_wallMaterial->diffuseColor.Value(rgb); }

  /// Transparency of the walls, 0 (opaque)..1. Default 0.
  float Transparency() const { return m_wallMaterial->transparency.Value(); }
  void Transparency(float value);

  /// Raised after the count and its spacing have changed and the chart has followed, with the new
  /// count. What a handler raises changes nothing of that.
  host::Event<std::int16_t> XCellCountChanged;
  host::Event<std::int16_t> YCellCountChanged;
  host::Event<std::int16_t> ZCellCountChanged;

  /// For the grid's chart alone, which follows a new count here, all the way or, raising an error,
  /// not at all: then the let is rejected and the grid keeps the old count.
  host::Event<std::int16_t> XCellCountFollowed;
  host::Event<std::int16_t> ZCellCountFollowed;

 private:
  std::shared_ptr<scene::ChartGrid> m_grid;
  std::shared_ptr<scene::Appearance> m_wallAppearance;
  std::shared_ptr<scene::Material> m_wallMaterial;
};

}  // namespace orvane
