/// The value of a VRML97 field, of whichever type (ISO/IEC 14772-1, clause 5).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace orvane::stills {

class Node;

enum class FieldType : std::uint8_t {
  SFBool,
  SFColor,
  SFFloat,
  SFImage,
  SFInt32,
  SFNode,
  SFRotation,
  SFString,
  SFTime,
  SFVec2f,
  SFVec3f,
  MFColor,
  MFFloat,
  MFInt32,
  MFNode,
  MFRotation,
  MFString,
  MFTime,
  MFVec2f,
  MFVec3f
};

/// The type of that name, as "SFVec3f".
std::optional<FieldType> FieldTypeNamed(std::string_view name);
std::string_view NameOf(FieldType type);
bool IsMultiple(FieldType type);
/// Numbers that one element of a floating type consists of: 3 of an MFVec3f; 1 of any other type.
std::size_t Arity(FieldType type);

/// A list of elements; a single value is a list of one. Floating types but time are flat lists of
/// Arity() numbers an element; SFBool is 0 or 1; SFImage is its integers.
using Value = std::variant<std::vector<std::int32_t>, std::vector<float>, std::vector<double>,
                           std::vector<std::string>, std::vector<Node*>>;

/// The value that a field of a type has when nothing else is said: 0, "", no node, no elements.
Value DefaultOf(FieldType type);
/// Memory that the elements take.
std::size_t SizeOf(const Value& value);

}  // namespace orvane::stills
