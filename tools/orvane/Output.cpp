#include "Output.h"

#include "orvane/platform/FileReplacement.h"
#include "orvane/tables/read/Source.h"

#include <cstddef>
#include <deque>
#include <system_error>

namespace orvane::tool {
namespace {

void FailOn(const std::error_code& error, const OutputFile& file) {
  if (!error) return;
  throw tables::FileError(file.path.string() + ": cannot be written: " + error.message());
}

}  // namespace

void WriteFiles(const std::vector<OutputFile>& files) {
  std::deque<host::FileReplacement> replacements;
  for (const OutputFile& file : files) {
    FailOn(replacements.emplace_back(file.path, file.text).Error(), file);
  }
  for (std::size_t i = 0; i < files.size(); ++i) FailOn(replacements[i].MoveIntoPlace(), files[i]);
}

}  // namespace orvane::tool
