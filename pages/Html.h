/// Text as it has to be written in HTML and JSON, and bytes as they travel in a page.
#pragma once

#include <string>
#include <string_view>

namespace orvane::pages {

/// UTF-8 as text of an element or a quoted attribute. Control characters that HTML does not have
/// become U+FFFD.
std::string HtmlText(std::string_view text);

/// UTF-8 as a JSON string with its quotes.
std::string JsonText(std::string_view text);

std::string Base64(std::string_view bytes);

/// Raw deflate (RFC 1951).
std::string Deflated(std::string_view bytes);

}  // namespace orvane::pages
