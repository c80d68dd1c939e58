#include "orvane/scene/frmMain.h"

#include "orvane/automation/Describe.h"

namespace orvane::scene {

const host::TypeInfo& ModuleControl::Type() const {
  static const host::TypeInfo type =
      host::Describe<ModuleControl>("The control of one scene module.")
          .Property<std::shared_ptr<scene::Factory>>("Factory", &ModuleControl::Factory,
                                                     {"The module's factory"});
  return type;
}

frmMain& frmMain::Instance() {
  static frmMain form;
  return form;
}

std::shared_ptr<Factory> frmMain::FactoryOf(Module module) const {
  switch (module) {
    case Module::Graph:
      return graph.Factory();
    case Module::Nav:
      return nav.Factory();
    case Module::Ui:
      return ui.Factory();
    case Module::Core:
      break;
  }
  return core.Factory();
}

}  // namespace orvane::scene
