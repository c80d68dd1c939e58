#include "orvane/host/ReplaceFile.h"

#include <cerrno>
#include <fstream>
#include <random>
#include <string>

namespace orvane::host {
namespace {

namespace fs = std::filesystem;

std::error_code Put(const fs::path& file, std::string_view text) {
  errno = 0;
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream.write(text.data(), static_cast<std::streamsize>(text.size()));
  stream.close();
  if (stream) return {};
  return {errno == 0 ? EIO : errno, std::generic_category()};
}

}  // namespace

std::error_code ReplaceFile(fs::path file, std::string_view text) {
  std::error_code error;
  if (file.empty()) return std::make_error_code(std::errc::no_such_file_or_directory);
  const auto status = fs::status(file, error);
  if (fs::is_directory(status)) return std::make_error_code(std::errc::is_a_directory);
  if (fs::exists(status)) {
    if (!fs::is_regular_file(status)) return Put(file, text);
    file = fs::canonical(file, error);
    if (error) return error;
  } else if (fs::is_symlink(file, error)) {
    return Put(file, text);  // The file that it leads to is not there yet.
  }
  fs::path neighbour = file;
  neighbour.replace_filename("." + std::to_string(std::random_device()()) + ".tmp");
  error = Put(neighbour, text);
  if (!error && fs::exists(status)) fs::permissions(neighbour, status.permissions(), error);
  if (!error) fs::rename(neighbour, file, error);
  std::error_code ignored;
  if (error) fs::remove(neighbour, ignored);
  return error;
}

}  // namespace orvane::host
