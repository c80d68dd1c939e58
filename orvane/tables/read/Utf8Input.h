/// The bytes of a file as UTF-8, in pieces, whatever their encoding.
#pragma once

#include <cstddef>
#include <istream>
#include <memory>
#include <string>

namespace orvane::tables {

/// A byte-order mark says the encoding, unless one is given; else it is UTF-8, which is passed on
/// as it is. All others go through iconv. Raises FileError.
class Utf8Input {
 public:
  /// `name` is what messages call the file.
  Utf8Input(std::string name, std::unique_ptr<std::istream> bytes, std::string encoding);
  Utf8Input(const Utf8Input&) = delete;
  Utf8Input& operator=(const Utf8Input&) = delete;
  ~Utf8Input();

  /// Appends the next piece, without byte-order mark, to `text`; false at the end.
  bool Read(std::string& text);
  void Rewind();

 private:
  bool ReadConverted(std::string& text);
  std::size_t ReadBytes(char* to, std::size_t size);
  void Start();

  std::string m_name;
  std::unique_ptr<std::istream> m_bytes;
  std::string m_encoding;
  void* m_converter = nullptr;  ///< An iconv_t; nullptr for UTF-8.
  std::string m_pending;        ///< Bytes read and not yet converted.
  std::size_t m_converted = 0;  ///< Bytes of the file.
};

}  // namespace orvane::tables
