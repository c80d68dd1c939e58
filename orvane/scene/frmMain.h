/// The hidden form that holds one control of each scene module, and through which every node is
/// made.
#pragma once

#include "orvane/scene/Factory.h"
#include "orvane/scene/OrvaneModule.h"

#include <memory>
#include <string>
#include <type_traits>

namespace orvane::scene {

/// The control of one scene module; it exposes its module's factory.
class ORVANE_API ModuleControl : public host::Object {
 public:
  static constexpr const char* kClassName = "ModuleControl";
  const host::TypeInfo& Type() const override;

  std::shared_ptr<scene::Factory> Factory() const { return m_factory; }

 protected:
  explicit ModuleControl(Module module) : m_factory(std::make_shared<scene::Factory>(module)) {}

 private:
  std::shared_ptr<scene::Factory> m_factory;
};

/// Standard nodes.
class ORVANE_API NodewrightCtl final : public ModuleControl {
 public:
  NodewrightCtl() : ModuleControl(Module::Core) {}
};

/// Chart shapes, "VR_GRAPH.wrl".
class ORVANE_API VRGraphCtl final : public ModuleControl {
 public:
  VRGraphCtl() : ModuleControl(Module::Graph) {}
};

/// Navigation, "VR_NAV.wrl".
class ORVANE_API VRNavCtl final : public ModuleControl {
 public:
  VRNavCtl() : ModuleControl(Module::Nav) {}
};

/// Widgets, "VR_UI.wrl".
class ORVANE_API VRUICtl final : public ModuleControl {
 public:
  VRUICtl() : ModuleControl(Module::Ui) {}
};

/// One a process, made when it is first used.
class ORVANE_API frmMain {
 public:
  static frmMain& Instance();

  NodewrightCtl core;
  VRGraphCtl graph;
  VRNavCtl nav;
  VRUICtl ui;

  std::shared_ptr<Factory> FactoryOf(Module module) const;

 private:
  frmMain() = default;
};

/// The factory for standard nodes, fields, route lists and writers.
inline std::shared_ptr<Factory> CoreFactory() { return frmMain::Instance().core.Factory(); }

/// A new node of type `N` from the factory of its module. A PROTO instance is given its source at
/// once: the RelativeProtoPath of this moment, followed by the module's file.
template <class N>
std::shared_ptr<N> Create() {
  const auto factory = frmMain::Instance().FactoryOf(N::kModule);
  auto node = std::static_pointer_cast<N>(factory->CreateNode(N::kClassName));
  if constexpr (std::is_base_of_v<ProtoInstance, N>) {
    node->SetProtoSource(OrvaneModule::RelativeProtoPath() + ProtoFileOf(N::kModule));
  }
  return node;
}

}  // namespace orvane::scene
