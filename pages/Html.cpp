#include "pages/Html.h"

#include <array>
#include <new>

#include <zlib.h>

namespace orvane::pages {

std::string HtmlText(std::string_view text) {
  std::string html;
  html.reserve(text.size());
  for (const char c : text) {
    switch (c) {
      case '&':
        html += "&amp;";
        break;
      case '<':
        html += "&lt;";
        break;
      case '>':
        html += "&gt;";
        break;
      case '"':
        html += "&quot;";
        break;
      case '\'':
        html += "&#39;";
        break;
      case '\t':
      case '\n':
        html += c;
        break;
      case '\r':
        html += "&#10;";
        break;
      default:
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
          html += "\uFFFD";
        } else {
          html += c;
        }
    }
  }
  return html;
}

std::string JsonText(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string json = "\"";
  json.reserve(text.size() + 2);
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      json += {'\\', c};
    } else if (byte < 0x20) {
      json += std::string("\\u00") + kDigits[byte / 16] + kDigits[byte % 16];
    } else {
      json += c;
    }
  }
  return json + '"';
}

std::string Base64(std::string_view bytes) {
  constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const auto byte = [&](std::size_t k) -> unsigned {
      return i + k < bytes.size() ? static_cast<unsigned char>(bytes[i + k]) : 0;
    };
    const unsigned group = byte(0) << 16 | byte(1) << 8 | byte(2);
    const std::array<char, 4> four = {kDigits[group >> 18], kDigits[group >> 12 & 63],
                                      i + 1 < bytes.size() ? kDigits[group >> 6 & 63] : '=',
                                      i + 2 < bytes.size() ? kDigits[group & 63] : '='};
    text.append(four.data(), four.size());
  }
  return text;
}

std::string Deflated(std::string_view bytes) {
  constexpr int kRaw = -15;
  z_stream stream{};
  if (deflateInit2(&stream, 9, Z_DEFLATED, kRaw, 9, Z_DEFAULT_STRATEGY) != Z_OK)
    throw std::bad_alloc();
  std::string out;
  std::array<char, 65536> piece;
  // zlib counts in 32 bits, so that large texts go in by pieces.
  constexpr std::size_t kMost = 1 << 30;
  do {
    const std::string_view next = bytes.substr(0, kMost);
    bytes.remove_prefix(next.size());
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(next.data()));
    stream.avail_in = static_cast<uInt>(next.size());
    do {
      stream.next_out = reinterpret_cast<Bytef*>(piece.data());
      stream.avail_out = static_cast<uInt>(piece.size());
      deflate(&stream, bytes.empty() ? Z_FINISH : Z_NO_FLUSH);
      out.append(piece.data(), piece.size() - stream.avail_out);
    } while (stream.avail_out == 0);
  } while (!bytes.empty());
  deflateEnd(&stream);
  return out;
}

}  // namespace orvane::pages
