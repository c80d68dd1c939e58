/// What stands on a property page: the state of each control, for a front end to draw and to set.
#pragma once

#include "orvane/automation/Event.h"
#include "orvane/platform/HostServices.h"

#include <string>
#include <utility>
#include <vector>

namespace orvane::host {

/// One of several choices; the page sees to it that one is selected.
struct OptionButton {
  std::string caption;
  bool isSelected = false;
};

/// A frame around controls, which can be used while it is enabled.
struct Frame {
  bool isEnabled = false;
};

class TextBox {
 public:
  const std::string& Text() const { return m_text; }
  /// Any text. Raises Change.
  void Text(std::string text) {
    m_text = std::move(text);
    Change();
  }

  Event<> Change;

 private:
  std::string m_text;
};

/// A folder to choose, and those in it to go down into.
class DirectoryList {
 public:
  explicit DirectoryList(std::string label) : m_label(std::move(label)) {}

  const std::string& Label() const { return m_label; }

  /// The folder shown, as Directories shows it; empty until one is set.
  const std::string& Path() const { return m_path; }
  /// Raises Change, or the error PathNotFound for a folder that is not there.
  void Path(const std::string& folder) {
    m_path = Services().directories->Shown(folder);
    Change();
  }

  /// Names of the folders in the one shown.
  std::vector<std::string> Folders() const { return Services().directories->FoldersIn(m_path); }

  Event<> Change;

 private:
  std::string m_label;
  std::string m_path;
};

}  // namespace orvane::host
