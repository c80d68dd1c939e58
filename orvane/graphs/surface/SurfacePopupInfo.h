/// The texts that pop up when a viewer points at a surface.
#pragma once

#include "orvane/components/ISceneRoot.h"
#include "orvane/host/Object.h"
#include "orvane/scene/GraphProtos.h"
#include "orvane/scene/GroupingNodes.h"

#include <cstdint>
#include <memory>

namespace orvane {

/// What a surface does with its popups.
class ORVANE_API ISurfacePopupInfo {
 public:
  virtual ~ISurfacePopupInfo() = default;

  virtual std::shared_ptr<scene::PopupSurface> PopupSurfaceNode() const = 0;
};

/// An invisible surface over the lattice; it is in the scene only while UsePopups is true.
class ORVANE_API SurfacePopupInfo final : public host::Object,
                                          public ISceneRoot,
                                          public ISurfacePopupInfo {
 public:
  static constexpr const char* kClassName = "SurfacePopupInfo";
  const host::TypeInfo& Type() const override;

  SurfacePopupInfo();

  /// Host RGB colours, 0..0xFFFFFF. Default dark on pale yellow.
  std::int32_t TextColor() const { return m_surface->textColor.Value(); }
  void TextColor(std::int32_t rgb) { m_surface->textColor.Value(rgb); }
  std::int32_t BackgroundColor() const { return m_surface->backgroundColor.Value(); }
  void BackgroundColor(std::int32_t rgb) { m_surface->backgroundColor.Value(rgb); }
  std::int32_t BorderColor() const { return m_surface->borderColor.Value(); }
  void BorderColor(std::int32_t rgb) { m_surface->borderColor.Value(rgb); }
  /// Height of the texts in scene units, > 0. Default 0.5.
  float TextHeight() const { return m_surface->textHeight.Value(); }
  void TextHeight(float height);
  /// Default false.
  bool UsePopups() const { return m_usesPopups; }
  void UsePopups(bool use);

  std::shared_ptr<scene::PopupSurface> PopupSurfaceNode() const override { return m_surface; }

  std::shared_ptr<scene::Node> RootNode() const override { return m_root; }
  /// The same node; the surface places it.
  const std::shared_ptr<scene::Transform>& Root() const { return m_root; }

 private:
  std::shared_ptr<scene::Transform> m_root;
  std::shared_ptr<scene::PopupSurface> m_surface;
  bool m_usesPopups = false;
};

}  // namespace orvane
