/// An input file as text, and the way back from a place in it to a line and a column for messages.
#pragma once

#include "orvane/automation/Export.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace orvane::tables {

/// What is wrong with a file, in words for the person who gave it.
class ORVANE_API FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The bytes of a file. Raises FileError when it cannot be read.
std::ifstream OpenFile(const std::filesystem::path& path);

/// The whole text of one input file: UTF-8 without NUL, its byte-order mark taken off.
class ORVANE_API Source {
 public:
  /// `name` is what messages call the file. Raises FileError for malformed UTF-8 and NUL.
  Source(std::string name, std::string text);

  /// Raises FileError also when the file cannot be read.
  static Source Read(const std::filesystem::path& path);

  const std::string& Name() const { return m_name; }
  const std::string& Text() const { return m_text; }

  /// Raises FileError with `problem` at byte `offset`: "sales.csv:3:5: problem". Lines and columns
  /// count from 1, columns in characters; CRLF, LF and CR each end a line.
  [[noreturn]] void Fail(std::size_t offset, const std::string& problem) const;

 private:
  std::string m_name;
  std::string m_text;
};

}  // namespace orvane::tables
