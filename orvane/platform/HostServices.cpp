#include "orvane/platform/HostServices.h"

namespace orvane::host {

HostServices& Services() {
  static HostServices services{Service<SettingsStore>(std::make_shared<UserSettings>()),
                               Service<MessageBox>(std::make_shared<ErrorStreamMessages>()),
                               Service<Directories>(std::make_shared<SingleDrive>())};
  return services;
}

}  // namespace orvane::host
