/// One point frame of a scatter chart: a set of coloured spheres.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/graphs/SeriesCollection.h"
#include "orvane/scene/GraphProtos.h"

#include <cstdint>
#include <memory>
#include <string>

namespace orvane {

/// The points live in the lists of one qm4_SphereCollection and nowhere else. Indexes count from 1;
/// one outside 1..Count raises ListIndex.
class ORVANE_API PointCollection final : public host::Object,
                                         public RootedAt<scene::Group>,
                                         public ISeriesInfo {
 public:
  static constexpr const char* kClassName = "PointCollection";
  const host::TypeInfo& Type() const override;

  PointCollection();

  /// Adds a sphere about (x, y, z), in scene units in the chart's frame. `radius` is 0 or more, in
  /// scene units; `color` a host RGB colour, 0..0xFFFFFF; `transparency` 0 (opaque)..1. Point 32768
  /// raises Overflow. What raises adds nothing.
  void AddPoint(float x, float y, float z, float radius, std::int32_t color, float transparency);
  void RemovePoint(std::int16_t index);
  /// Hands back what point `index` was added with.
  void Get1Point(std::int16_t index, float& x, float& y, float& z, float& radius,
                 std::int32_t& color, float& transparency) const;
  void ClearPoints();
  std::int16_t Count() const;

  /// The frame's name, which labels its step of the frame slider. Default "".
  std::string Description() const { return m_description; }
  void Description(const std::string& text) { m_description = text; }

  std::shared_ptr<scene::Node> SphereCollectionNode() const { return m_spheres; }
  /// The centres of all points, for C++.
  const scene::MFVec3f::List& Locations() const { return m_spheres->locations.Items(); }

 private:
  std::shared_ptr<scene::SphereCollection> m_spheres;
  std::string m_description;
};

}  // namespace orvane
