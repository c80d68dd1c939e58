/// UTF-8 as VRML97 text requires it.
#pragma once

#include "orvane/automation/Export.h"

#include <cstddef>
#include <string_view>

namespace orvane::scene {

/// Length in bytes of the well-formed character at the start of `text` (not empty), 0 when there is
/// none (overlong forms, surrogates and what is above U+10FFFF are malformed; Unicode, table 3-7).
ORVANE_API std::size_t Utf8Length(std::string_view text);

/// True when all of `text` is well formed.
ORVANE_API bool IsUtf8(std::string_view text);

/// Length in bytes of the character at the start of `text` (not empty); a malformed byte is one.
ORVANE_API std::size_t CharacterLength(std::string_view text);

/// Number of characters; a malformed byte counts as one.
ORVANE_API std::size_t CharacterCount(std::string_view text);

}  // namespace orvane::scene
