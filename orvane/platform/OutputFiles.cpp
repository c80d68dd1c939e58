#include "orvane/platform/OutputFiles.h"

#include "orvane/automation/AutomationError.h"
#include "orvane/platform/FileReplacement.h"

#include <cstddef>
#include <deque>
#include <set>
#include <system_error>

namespace orvane::host {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const OutputFile& file, const std::string& reason) {
  throw AutomationError(ErrorNumber::FileAccess,
                        file.path.string() + ": cannot be written: " + reason);
}

void FailOn(const std::error_code& error, const OutputFile& file) {
  if (error) Fail(file, error.message());
}

}  // namespace

void WriteFiles(const std::vector<OutputFile>& files, const std::vector<fs::path>& inputs) {
  std::deque<FileReplacement> replacements;
  std::set<fs::path> written;
  for (const OutputFile& file : files) {
    const auto& replacement = replacements.emplace_back(file.path, file.text);
    FailOn(replacement.Error(), file);
    if (replacement.IsDevice()) continue;
    if (!written.insert(replacement.File()).second)
      Fail(file, "it is another file of this command");
    std::error_code ignored;
    for (const auto& input : inputs) {
      if (fs::equivalent(input, file.path, ignored)) Fail(file, "it is read by this command");
    }
  }
  for (std::size_t i = 0; i < files.size(); ++i) FailOn(replacements[i].MoveIntoPlace(), files[i]);
}

}  // namespace orvane::host
