#include "orvane/control/MakeRelativePath.h"

#include "orvane/automation/AutomationError.h"

#include <string_view>
#include <utility>

namespace orvane {
namespace {

bool HasDrive(std::string_view path) { return path.size() > 1 && path[1] == ':'; }

std::string PathBetween(std::string source, std::string dest) {
  host::Require(HasDrive(source), "Invalid source drive");
  host::Require(HasDrive(dest), "Invalid destination drive");
  host::Require(source[0] == dest[0], "Source and destination drives must match");
  if (!source.ends_with('\\')) source += '\\';
  if (!dest.ends_with('\\')) dest += '\\';

  // Where the first segment of the source begins that the destination does not share.
  std::size_t mark = 0;
  for (auto end = source.find('\\'); end != std::string::npos; end = source.find('\\', mark)) {
    const std::size_t common = end + 1;
    if (dest.compare(0, common, source, 0, common) != 0) break;
    mark = common;
  }

  std::string path;
  for (auto at = mark; at + 1 < source.size(); at = source.find('\\', at) + 1) path += "..\\";
  return path.append(dest, mark);
}

}  // namespace

std::string MakeRelativePath(std::string sourceDir, std::string destDir) try {
  return PathBetween(std::move(sourceDir), std::move(destDir));
} catch (const host::AutomationError& error) {
  throw host::AutomationError(host::ErrorNumber::Component,
                              "Error making relative path : " + error.Description());
}

}  // namespace orvane
