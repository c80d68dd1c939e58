/// The fonts of the viewer page, carried in the library so that texts are as wide here as there.
#pragma once

#include <string_view>

namespace orvane::stills {

/// A font file (WOFF2) for a FontStyle: family "SANS", "TYPEWRITER" or any other, which is a serif
/// face.
std::string_view FontFile(std::string_view family, bool isBold, bool isItalic);

}  // namespace orvane::stills
