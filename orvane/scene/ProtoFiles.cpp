#include "orvane/scene/ProtoFiles.h"

#include "orvane/automation/AutomationError.h"

#include <system_error>

namespace orvane {

std::vector<host::OutputFile> ProtoFilesIn(const std::filesystem::path& folder) {
  std::vector<host::OutputFile> files;
  for (const ProtoFile& proto : ProtoFiles()) files.push_back({folder / proto.name, proto.text});
  return files;
}

void WriteProtos(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) {
    throw host::AutomationError(host::ErrorNumber::FileAccess,
                                folder.string() + ": cannot be made: " + error.message());
  }
  host::WriteFiles(ProtoFilesIn(folder));
}

}  // namespace orvane
