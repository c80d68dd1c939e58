#include "Output.h"

#include "Source.h"

#include <cerrno>
#include <fstream>
#include <random>
#include <string_view>
#include <system_error>

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const fs::path& path, const std::error_code& error) {
  throw FileError(path.string() + ": cannot be written: " + error.message());
}

void Put(const fs::path& path, std::string_view text, const fs::path& shownPath) {
  errno = 0;
  std::ofstream stream(path, std::ios::binary | std::ios::trunc);
  stream.write(text.data(), static_cast<std::streamsize>(text.size()));
  stream.close();
  if (!stream) Fail(shownPath, {errno, std::generic_category()});
}

/// A written neighbour of one file, removed again unless it is moved into the file's place.
class Neighbour {
 public:
  explicit Neighbour(const OutputFile& file) : m_file(&file), m_target(file.path) {
    const fs::file_status status = fs::status(file.path);
    if (fs::is_directory(status)) Fail(file.path, std::make_error_code(std::errc::is_a_directory));
    if (fs::exists(status)) {
      if (!fs::is_regular_file(status)) return;
      m_target = fs::canonical(file.path);
    } else if (fs::is_symlink(file.path)) {
      return;  // To a file that is not there yet.
    }
    m_path = m_target;
    m_path.replace_filename("." + std::to_string(std::random_device()()) + ".tmp");
    Put(m_path, file.text, file.path);
    if (fs::exists(status)) fs::permissions(m_path, status.permissions());
  }
  Neighbour(Neighbour&& other) noexcept
      : m_file(other.m_file), m_target(std::move(other.m_target)), m_path(std::move(other.m_path)) {
    other.m_path.clear();
  }
  Neighbour& operator=(Neighbour&&) = delete;
  ~Neighbour() {
    std::error_code ignored;
    if (!m_path.empty()) fs::remove(m_path, ignored);
  }

  void MoveIntoPlace() {
    if (m_path.empty()) {
      Put(m_target, m_file->text, m_target);
      return;
    }
    std::error_code error;
    fs::rename(m_path, m_target, error);
    if (error) Fail(m_target, error);
    m_path.clear();
  }

 private:
  const OutputFile* m_file;
  fs::path m_target;
  fs::path m_path;  ///< Empty when there is nothing to move or remove.
};

}  // namespace

void WriteFiles(const std::vector<OutputFile>& files) try {
  std::vector<Neighbour> neighbours;
  neighbours.reserve(files.size());
  for (const OutputFile& file : files) neighbours.emplace_back(file);
  for (Neighbour& neighbour : neighbours) neighbour.MoveIntoPlace();
} catch (const fs::filesystem_error& error) {
  Fail(error.path1(), error.code());
}

}  // namespace orvane::tool
