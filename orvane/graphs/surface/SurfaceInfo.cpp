#include "orvane/graphs/surface/SurfaceInfo.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/graphs/surface/DescribeSurface.h"

#include <new>
#include <utility>
#include <vector>

namespace orvane {

const host::TypeInfo& SurfaceInfo::Type() const {
  using Info = SurfaceInfo;
  static const host::TypeInfo type =
      host::Describe<Info>("One surface of a surface or combination chart.")
          .With(DescribeMaterial<Info>)
          .Method(
              "Set1HeightPoint", &Info::Set1HeightPoint,
              {{"xIndex", host::UpTo("X cells")},
               {"zIndex", host::UpTo("Z cells")},
               "newHeight",
               "PopupText"},
              {"Height and popup text of the point over one cell; the height is in scene units"})
          .With(DescribeLegendText<Info>)
          .With(DescribeWireColor<Info>)
          .Property<std::shared_ptr<SurfacePopupInfo>>("PopupProps", &Info::PopupProps,
                                                       {"The texts that pop up over the surface"});
  return type;
}

SurfaceInfo::SurfaceInfo() {
  Join(LatticeOf(*m_popups->PopupSurfaceNode()));
  Root()->children.Append(m_popups->Root());
  Take(BlankOf(2, 2));
}

SurfaceInfo::Blank SurfaceInfo::BlankOf(std::int16_t xCount, std::int16_t zCount) const {
  const std::size_t count = PointCount(xCount, zCount);
  try {
    return {xCount, zCount, ForAll(std::vector<float>(count)), std::vector<std::string>(count)};
  } catch (const std::bad_alloc&) {
    RaiseTooLarge(xCount, zCount);
  }
}

void SurfaceInfo::Take(Blank blank) {
  LatticeSurface::Resize(blank.xCount, blank.zCount);
  Heights(std::move(blank.heights));
  m_popups->PopupSurfaceNode()->popupText.Items(std::move(blank.texts));
}

void SurfaceInfo::Set1HeightPoint(std::int16_t xIndex, std::int16_t zIndex, float newHeight,
                                  const std::string& PopupText) {
  const auto require = [](std::int16_t index, std::int16_t count, const std::string& axis) {
    const auto message = "Invalid " + axis + " axis surface point, must be in the range [1.." +
                         std::to_string(count);
    host::Require(index >= 1 && index <= count, message.c_str());
  };
  require(xIndex, XCount(), "X");
  require(zIndex, ZCount(), "Z");
  const std::int32_t point = (zIndex - 1) * XCount() + xIndex;
  std::string text = PopupText;
  Height(point, newHeight);
  m_popups->PopupSurfaceNode()->popupText.Item(point, std::move(text));
}

void SurfaceInfo::StandInCells(float cellWidth, float cellDepth) {
  constexpr float kLift = 0.01F;        // Clear of the floor.
  constexpr double kPopupDepth = 0.15;  // Of a cell's.
  XSpacing(cellWidth);
  ZSpacing(cellDepth);
  Root()->translation.X(host::Single(cellWidth / 2.0));
  Root()->translation.Y(kLift);
  Root()->translation.Z(host::Single(cellDepth / 2.0));
  m_popups->PopupSurfaceNode()->popupDepth.Value(host::Single(kPopupDepth * cellDepth));
}

}  // namespace orvane
