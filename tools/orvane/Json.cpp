#include "Json.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <sstream>
#include <string_view>
#include <utility>

#include <nlohmann/json.hpp>

namespace orvane::tool {
namespace {

/// Builds the value from the parser's events. The parser does not say where a token stands: it is
/// looked for behind the place up to which the stream was read at the event before.
class Builder final : public nlohmann::json_sax<nlohmann::json> {
 public:
  Builder(const tables::Source& source, std::istream& stream)
      : m_source(source), m_stream(stream) {}

  JsonValue Take() { return std::move(m_root); }

  bool null() override { return Add(JsonValue::Null()); }
  bool boolean(bool value) override { return Add(host::Value(value)); }
  bool number_integer(number_integer_t value) override { return AddWhole(value); }
  bool number_unsigned(number_unsigned_t value) override { return AddWhole(value); }
  bool number_float(number_float_t value, const string_t&) override {
    return Add(host::Value(value));
  }
  bool string(string_t& value) override { return Add(host::Value(std::move(value))); }
  bool binary(binary_t&) override { return false; }  // JSON text has none.

  bool start_object(std::size_t) override { return Open(JsonValue::Object()); }
  bool start_array(std::size_t) override { return Open(JsonValue::Array()); }
  bool end_object() override { return Close(); }
  bool end_array() override { return Close(); }

  bool key(string_t& key) override {
    auto& members = std::get<JsonValue::Object>(m_open.back()->content);
    const std::size_t offset = NextToken();
    if (std::ranges::find(members, key, &JsonMember::key) != members.end()) {
      m_source.Fail(offset, "the key \"" + key + "\" stands twice in one object");
    }
    members.push_back({std::move(key), offset, {}});
    return true;
  }

  bool parse_error(std::size_t position, const std::string&,
                   const nlohmann::json::exception& error) override {
    // "[json.exception.parse_error.101] parse error at line 1, column 8: what we want".
    std::string_view what = error.what();
    const std::size_t column = what.find(", column ");
    const std::string_view mark = column == std::string_view::npos ? "] " : ": ";
    what.remove_prefix(what.find(mark, column == std::string_view::npos ? 0 : column) +
                       mark.size());
    m_source.Fail(std::min(position - 1, m_source.Text().size()), std::string(what));
  }

 private:
  template <class T>
  bool AddWhole(T value) {
    if (std::in_range<std::int32_t>(value))
      return Add(host::Value(static_cast<std::int32_t>(value)));
    return Add(host::Value(static_cast<double>(value)));
  }

  bool Add(decltype(JsonValue::content) content) {
    Place({std::move(content), NextToken()});
    return true;
  }

  bool Open(decltype(JsonValue::content) content) {
    constexpr std::size_t kMostLevels = 100;
    const std::size_t offset = NextToken();
    if (m_open.size() == kMostLevels) m_source.Fail(offset, "more than 100 levels of nesting");
    m_open.push_back(Place({std::move(content), offset}));
    return true;
  }

  bool Close() {
    NextToken();
    m_open.pop_back();
    return true;
  }

  /// Puts `value` where it belongs: at the top, into the open array, or to the last key.
  JsonValue* Place(JsonValue value) {
    if (m_open.empty()) return &(m_root = std::move(value));
    if (auto* array = std::get_if<JsonValue::Array>(&m_open.back()->content)) {
      return &array->emplace_back(std::move(value));
    }
    auto& members = std::get<JsonValue::Object>(m_open.back()->content);
    return &(members.back().value = std::move(value));
  }

  std::size_t NextToken() {
    const std::size_t start = m_source.Text().find_first_not_of(" \t\r\n,:", m_read);
    m_read = static_cast<std::size_t>(m_stream.rdbuf()->pubseekoff(0, std::ios::cur, std::ios::in));
    return start;
  }

  const tables::Source& m_source;
  std::istream& m_stream;
  std::size_t m_read = 0;
  JsonValue m_root;
  std::vector<JsonValue*> m_open;  ///< Objects and arrays around the next value, outermost first.
};

}  // namespace

JsonValue ReadJson(const tables::Source& source) {
  std::istringstream stream(source.Text());
  Builder builder(source, stream);
  nlohmann::json::sax_parse(stream, &builder);
  return builder.Take();
}

}  // namespace orvane::tool
