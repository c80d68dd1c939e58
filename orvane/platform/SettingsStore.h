/// Settings that a program keeps for its user between runs.
#pragma once

#include "orvane/automation/Export.h"

#include <string>

namespace orvane::host {

/// A text for each application, section and key.
class ORVANE_API SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// The setting, or `fallback` where there is none that can be read. Raises nothing.
  virtual std::string Get(const std::string& application, const std::string& section,
                          const std::string& key, const std::string& fallback) const = 0;

  /// Raises FileAccess when it cannot be saved, a component error for a name that cannot be used.
  virtual void Save(const std::string& application, const std::string& section,
                    const std::string& key, const std::string& value) = 0;
};

/// This platform's store: the file settings.ini in the user's configuration folder of the
/// application, safe for several programs that save at once.
class ORVANE_API UserSettings final : public SettingsStore {
 public:
  std::string Get(const std::string& application, const std::string& section,
                  const std::string& key, const std::string& fallback) const override;
  void Save(const std::string& application, const std::string& section, const std::string& key,
            const std::string& value) override;
};

}  // namespace orvane::host
