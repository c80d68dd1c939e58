/// The field types and the Browser of the 1997 script interface, written in script.
#pragma once

namespace orvane::stills {

/// Run once before any script of a world (ISO/IEC 14772-1, annex C).
extern const char* const kScriptPrelude;

}  // namespace orvane::stills
