/// Makes scripts interruptible: the packaged script engine has no way to stop one that runs on.
#pragma once

#include <string>
#include <string_view>

namespace orvane::stills {

/// The script with a call of `__tick()` in every loop, function and handler of errors, all on the
/// lines that they were on. Raises Error for the few turns of the language of which only the engine
/// could tell what is a regular expression, a comment or a string.
std::string WithTicks(std::string_view script);

}  // namespace orvane::stills
