/// Reads VRML97 text: nodes, PROTOs and ROUTEs, with a place for whatever is wrong.
#pragma once

#include "stills/Error.h"
#include "stills/vrml/Texts.h"

#include <string>
#include <string_view>

namespace orvane::stills {

/// Reads a whole file, which begins with the header line "#VRML V2.0 utf8"; `file` is its name in
/// errors. Raises Error for what VRML97 does not allow.
WorldText ParseWorld(std::string_view text, const std::string& file, Budget& budget);

/// Reads nodes, PROTOs and ROUTEs without a header, as a script hands them over; lines in errors
/// count from `start`.
WorldText ParseFragment(std::string_view text, const Place& start, Budget& budget);

/// Reads the PROTOs that stand for the node types of the standard.
WorldText ParseDeclarations(std::string_view text, Budget& budget);

}  // namespace orvane::stills
