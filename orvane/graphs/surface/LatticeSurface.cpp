#include "orvane/graphs/surface/LatticeSurface.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/scene/frmMain.h"

#include <utility>

namespace orvane {

LatticeSurface::LatticeSurface()
    : m_toggle(scene::Create<scene::ContentToggle>()),
      m_surface(scene::Create<scene::Surface>()),
      m_wireframeHolder(scene::Create<scene::Transform>()),
      m_wireframe(scene::Create<scene::ElevationWireframe>()),
      m_appearance(scene::Create<scene::Appearance>()),
      m_material(scene::Create<scene::Material>()),
      m_lattices{LatticeOf(*m_surface), LatticeOf(*m_wireframe)} {
  constexpr float kWireLift = 0.025F;
  m_toggle->contentsExist.Value(true);
  m_appearance->material.Value(m_material);
  m_surface->appearance.Value(m_appearance);
  m_wireframeHolder->children.Append(m_wireframe);
  m_wireframeHolder->translation.Y(kWireLift);
  m_toggle->contents.Append(m_surface);
  m_toggle->contents.Append(m_wireframeHolder);
  Root()->children.Append(m_toggle);
}

void LatticeSurface::Spacing(float spacing, scene::SFFloat* Lattice::*field, const char* message) {
  host::Require(spacing > 0, message);
  for (const auto& lattice : m_lattices) (lattice.*field)->Value(spacing);
}

void LatticeSurface::XSpacing(float spacing) {
  Spacing(spacing, &Lattice::xSpacing, "Invalid X axis surface spacing, must be greater than 0");
}

void LatticeSurface::ZSpacing(float spacing) {
  Spacing(spacing, &Lattice::zSpacing, "Invalid Z axis surface spacing, must be greater than 0");
}

std::int16_t LatticeSurface::XCount() const { return host::Int16(m_surface->xDimension.Value()); }

void LatticeSurface::XCount(std::int16_t count) { Resize(CheckedXCount(count), ZCount()); }

std::int16_t LatticeSurface::ZCount() const { return host::Int16(m_surface->zDimension.Value()); }

void LatticeSurface::ZCount(std::int16_t count) { Resize(XCount(), CheckedZCount(count)); }

std::int16_t LatticeSurface::CheckedXCount(std::int16_t count) {
  host::Require(count > 1, "Invalid X axis surface point count, must be greater than 1");
  return count;
}

std::int16_t LatticeSurface::CheckedZCount(std::int16_t count) {
  host::Require(count > 1, "Invalid Z axis surface point count, must be greater than 1");
  return count;
}

void LatticeSurface::Resize(std::int16_t xCount, std::int16_t zCount) {
  (void)PointCount(xCount, zCount);
  for (const auto& lattice : m_lattices) {
    lattice.xDimension->Value(xCount);
    lattice.zDimension->Value(zCount);
  }
}

void LatticeSurface::Heights(HeightLists heights) {
  for (std::size_t i = 0; i < heights.size(); ++i) {
    m_lattices[i].height->Items(std::move(heights[i]));
  }
}

void LatticeSurface::Height(std::int32_t index, float height) {
  for (const auto& lattice : m_lattices) lattice.height->Item(index, height);
}

std::size_t LatticeSurface::PointCount(std::int16_t xCount, std::int16_t zCount) {
  const std::int32_t count = std::int32_t{xCount} * zCount;
  if (count > kMostPoints) RaiseTooLarge(xCount, zCount);
  return static_cast<std::size_t>(count);
}

void LatticeSurface::RaiseTooLarge(std::int16_t xCount, std::int16_t zCount) {
  throw host::AutomationError(host::ErrorNumber::Overflow,
                              "Overflow: a surface of " + std::to_string(xCount) + " x " +
                                  std::to_string(zCount) + " points does not fit in memory");
}

}  // namespace orvane
