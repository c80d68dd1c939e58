/// One surface of a surface or combination chart.
#pragma once

#include "orvane/graphs/surface/LatticeSurface.h"
#include "orvane/graphs/surface/SurfacePopupInfo.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace orvane {

/// A height and a popup text for each cell of the chart's grid, set point by point.
class ORVANE_API SurfaceInfo final : public LatticeSurface {
 public:
  static constexpr const char* kClassName = "SurfaceInfo";
  const host::TypeInfo& Type() const override;

  SurfaceInfo();

  /// Sets the height, in scene units, and the popup text of the point over the cell `xIndex`,
  /// 1..XCount, `zIndex`, 1..ZCount; a component error otherwise.
  void Set1HeightPoint(std::int16_t xIndex, std::int16_t zIndex, float newHeight,
                       const std::string& PopupText);
  std::shared_ptr<SurfacePopupInfo> PopupProps() const { return m_popups; }

  /// Place of the popups along z, in scene units in the surface's frame. Default 0.
  float PopupZOffset() const { return m_popups->Root()->translation.Z(); }
  void PopupZOffset(float offset) { m_popups->Root()->translation.Z(offset); }

  /// A lattice of other point counts: its heights are 0 and its texts empty.
  struct Blank {
    std::int16_t xCount;
    std::int16_t zCount;
    HeightLists heights;
    std::vector<std::string> texts;
  };
  /// What a let of XCount or ZCount puts in place, made and not yet there; raises as they do.
  Blank BlankOfXCount(std::int16_t count) const { return BlankOf(CheckedXCount(count), ZCount()); }
  Blank BlankOfZCount(std::int16_t count) const { return BlankOf(XCount(), CheckedZCount(count)); }
  void Take(Blank blank);

  /// Puts the lattice points over the centres of a grid's cells.
  void StandInCells(float cellWidth, float cellDepth);

 private:
  Blank BlankOf(std::int16_t xCount, std::int16_t zCount) const;
  /// Sets all heights to 0 and all texts to nothing as well.
  void Resize(std::int16_t xCount, std::int16_t zCount) override { Take(BlankOf(xCount, zCount)); }

  std::shared_ptr<SurfacePopupInfo> m_popups = std::make_shared<SurfacePopupInfo>();
};

}  // namespace orvane
