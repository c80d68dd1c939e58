/// What the program around the components does for them, and how it puts its own in place.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/platform/Directories.h"
#include "orvane/platform/MessageBox.h"
#include "orvane/platform/SettingsStore.h"

#include <memory>
#include <utility>
#include <vector>

namespace orvane::host {

/// One service: this platform's own, unless the host program puts another in its place.
template <class S>
class Service {
 public:
  explicit Service(std::shared_ptr<S> standard) : m_standard(std::move(standard)) {}

  /// Uses `service` from now on, for as long as the host program keeps it; then what was used
  /// before is used again.
  void Use(const std::shared_ptr<S>& service) {
    std::erase_if(m_replacements, [](const auto& old) { return old.expired(); });
    m_replacements.push_back(service);
  }

  std::shared_ptr<S> InUse() const {
    for (auto it = m_replacements.rbegin(); it != m_replacements.rend(); ++it) {
      if (auto service = it->lock()) return service;
    }
    return m_standard;
  }

  std::shared_ptr<S> operator->() const { return InUse(); }

 private:
  std::shared_ptr<S> m_standard;
  std::vector<std::weak_ptr<S>> m_replacements;
};

/// All services, one set a process, not locked.
struct HostServices {
  Service<SettingsStore> settings;
  Service<MessageBox> messages;
  Service<Directories> directories;
};

ORVANE_API HostServices& Services();

}  // namespace orvane::host
