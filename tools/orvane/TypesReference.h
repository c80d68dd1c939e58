/// The object model as a Markdown reference, read from the classes' own descriptions.
#pragma once

#include <ostream>
#include <string_view>

namespace orvane::tool {

/// Writes the section of every public class, then the enumerations.
void WriteTypesReference(std::ostream& out);

/// Writes the section of the class called `className` (in any case) and the enumerations that it
/// uses; false when there is none.
bool WriteTypeReference(std::ostream& out, std::string_view className);

}  // namespace orvane::tool
