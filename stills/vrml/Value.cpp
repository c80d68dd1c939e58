#include "stills/vrml/Value.h"

#include <algorithm>
#include <array>
#include <span>

namespace orvane::stills {

namespace {

struct TypeTraits {
  std::string_view name;
  std::size_t arity;
};

constexpr std::array<TypeTraits, 20> kTypes = {
    {{"SFBool", 1},     {"SFColor", 3},    {"SFFloat", 1},  {"SFImage", 1}, {"SFInt32", 1},
     {"SFNode", 1},     {"SFRotation", 4}, {"SFString", 1}, {"SFTime", 1},  {"SFVec2f", 2},
     {"SFVec3f", 3},    {"MFColor", 3},    {"MFFloat", 1},  {"MFInt32", 1}, {"MFNode", 1},
     {"MFRotation", 4}, {"MFString", 1},   {"MFTime", 1},   {"MFVec2f", 2}, {"MFVec3f", 3}}};

}  // namespace

std::optional<FieldType> FieldTypeNamed(std::string_view name) {
  const auto* found = std::ranges::find(kTypes, name, &TypeTraits::name);
  if (found == kTypes.end()) return std::nullopt;
  return static_cast<FieldType>(found - kTypes.begin());
}

std::string_view NameOf(FieldType type) { return kTypes[static_cast<std::size_t>(type)].name; }

bool IsMultiple(FieldType type) { return type >= FieldType::MFColor; }

std::size_t Arity(FieldType type) { return kTypes[static_cast<std::size_t>(type)].arity; }

Value DefaultOf(FieldType type) {
  const std::size_t count = IsMultiple(type) ? 0 : Arity(type);
  switch (type) {
    case FieldType::SFBool:
    case FieldType::SFInt32:
    case FieldType::MFInt32:
      return std::vector<std::int32_t>(count);
    case FieldType::SFImage:
      return std::vector<std::int32_t>(3);
    case FieldType::SFNode:
    case FieldType::MFNode:
      return std::vector<Node*>(count);
    case FieldType::SFString:
    case FieldType::MFString:
      return std::vector<std::string>(count);
    case FieldType::SFTime:
    case FieldType::MFTime:
      return std::vector<double>(count);
    case FieldType::SFRotation:
      return std::vector<float>{0, 0, 1, 0};
    default:
      return std::vector<float>(count);
  }
}

std::size_t SizeOf(const Value& value) {
  if (const auto* texts = std::get_if<std::vector<std::string>>(&value)) {
    std::size_t size = 0;
    for (const std::string& text : *texts) size += sizeof(std::string) + text.size();
    return size;
  }
  return std::visit([](const auto& list) { return std::span(list).size_bytes(); }, value);
}

}  // namespace orvane::stills
