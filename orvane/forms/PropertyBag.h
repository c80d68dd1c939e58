/// What a container keeps of a control between runs.
#pragma once

#include "orvane/platform/IniText.h"

#include <string>
#include <string_view>

namespace orvane::host {

/// Texts by name. A value that is equal to its default is not kept.
class ORVANE_API PropertyBag {
 public:
  /// A new bag, or one that was saved as `text`. What is damaged in it reads as its default.
  explicit PropertyBag(std::string_view text = {}) : m_text(text) {}

  std::string ReadProperty(const std::string& name, const std::string& fallback) const {
    return m_text.Get("", name).value_or(fallback);
  }

  /// Writes into a bag that does not have the property yet. Raises a component error for a name
  /// that IniText cannot hold.
  void WriteProperty(const std::string& name, const std::string& value,
                     const std::string& fallback) {
    if (value != fallback) m_text.Set("", name, value);
  }

  /// The bag as readable text, one line for each value kept.
  std::string Text() const { return m_text.Text(); }

 private:
  IniText m_text;
};

}  // namespace orvane::host
