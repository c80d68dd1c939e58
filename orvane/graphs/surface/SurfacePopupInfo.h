/// The texts that pop up when a viewer points at a surface.
#pragma once

#include "orvane/components/PopupLook.h"
#include "orvane/scene/GraphProtos.h"

#include <memory>

namespace orvane {

/// An invisible surface over the lattice.
class ORVANE_API SurfacePopupInfo final : public PopupLook<scene::PopupSurface> {
 public:
  static constexpr const char* kClassName = "SurfacePopupInfo";
  const host::TypeInfo& Type() const override;

  SurfacePopupInfo();

  std::shared_ptr<scene::PopupSurface> PopupSurfaceNode() const { return Shape(); }
};

}  // namespace orvane
