/// The property page on which a designer says where worlds find their PROTO files.
#pragma once

#include "orvane/forms/PageControls.h"
#include "orvane/forms/PropertyPage.h"

#include <array>
#include <string>

namespace orvane {

/// Either an Internet URL, or the way from the folder of worlds to that of the PROTO files.
/// Applying saves the choice in the user's settings and gives it to the controls selected.
class ORVANE_API ProtoPath final : public host::PropertyPage {
 public:
  /// Which of the two ways is chosen; the index of its option button and of its frame.
  enum class Mode { Url = 0, Relative = 1 };

  ProtoPath();

  std::string Caption() const override { return "ProtoPath"; }

  const host::OptionButton& optPath(Mode mode) const { return m_optPath[Index(mode)]; }
  /// Selects one option button, and with it the other's frame goes out of use.
  void optPath_Click(Mode mode);
  /// The frame around Text1, or around Dir1 and Dir2.
  const host::Frame& Frame1(Mode mode) const { return m_frame1[Index(mode)]; }

  host::TextBox Text1;       ///< The URL.
  host::DirectoryList Dir1;  ///< Where worlds are written.
  host::DirectoryList Dir2;  ///< Where the PROTO files are.

 private:
  static std::size_t Index(Mode mode) { return static_cast<std::size_t>(mode); }

  /// Reads the settings; a folder that is no longer there shows as "C:\".
  void PropertyPage_Initialize() override;
  /// Raises the error of MakeRelativePath; the settings are saved by then. A control refuses a path
  /// in its own way.
  void PropertyPage_ApplyChanges() override;

  std::array<host::OptionButton, 2> m_optPath;
  std::array<host::Frame, 2> m_frame1;
  std::array<host::Subscription, 3> m_changes;
};

}  // namespace orvane
