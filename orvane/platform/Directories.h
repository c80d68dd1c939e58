/// The folders of this machine as directory lists show them.
#pragma once

#include "orvane/automation/Export.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::host {

/// Directory lists name a folder by drive letter and backslashes, without a backslash at the end
/// but for a drive's root: "C:\", "C:\Web\Protos".
class ORVANE_API Directories {
 public:
  virtual ~Directories() = default;

  /// `folder`, named in either way, as a list shows it. Raises PathNotFound when there is no such
  /// folder or no list can show it.
  virtual std::string Shown(const std::string& folder) const = 0;

  /// The path by which this platform knows what a list shows.
  virtual std::filesystem::path PathOf(const std::string& shown) const = 0;

  /// Names of the folders in the one shown, sorted. Those that may not be read have none.
  virtual std::vector<std::string> FoldersIn(const std::string& shown) const = 0;
};

/// A platform without drives: all of it is drive C, "C:\" being "/". A folder with a backslash in
/// its name cannot be shown.
class ORVANE_API SingleDrive final : public Directories {
 public:
  std::string Shown(const std::string& folder) const override;
  std::filesystem::path PathOf(const std::string& shown) const override;
  std::vector<std::string> FoldersIn(const std::string& shown) const override;
};

}  // namespace orvane::host
