/// A host for tests: settings in memory, and messages written down.
#pragma once

#include "orvane/platform/HostServices.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace orvane::tests {

class MemorySettings final : public host::SettingsStore {
 public:
  std::string Get(const std::string& application, const std::string& section,
                  const std::string& key, const std::string& fallback) const override {
    const auto found = saved.find(application + "/" + section + "/" + key);
    return found == saved.end() ? fallback : found->second;
  }
  void Save(const std::string& application, const std::string& section, const std::string& key,
            const std::string& value) override {
    saved[application + "/" + section + "/" + key] = value;
  }

  std::map<std::string, std::string> saved;  ///< By "application/section/key".
};

class MessageRecorder final : public host::MessageBox {
 public:
  void Show(const std::string& text, host::MessageIcon icon, const std::string& title) override {
    shown.push_back(std::to_string(static_cast<int>(icon)) + " " + title + ": " + text);
  }

  std::vector<std::string> shown;
};

/// In place of the platform's services for as long as it lives.
struct HostRecorder {
  HostRecorder() {
    host::Services().settings.Use(settings);
    host::Services().messages.Use(messages);
  }

  /// The two settings of the property page.
  void Set(const std::string& outputDir, const std::string& protoDir) const {
    settings->saved["NVOCX/ProtoPath/OutputDir"] = outputDir;
    settings->saved["NVOCX/ProtoPath/ProtoDir"] = protoDir;
  }

  std::shared_ptr<MemorySettings> settings = std::make_shared<MemorySettings>();
  std::shared_ptr<MessageRecorder> messages = std::make_shared<MessageRecorder>();
};

}  // namespace orvane::tests
