/// A world as it is written: node types, PROTO bodies, nodes and ROUTEs, not yet alive.
#pragma once

#include "stills/vrml/Value.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::stills {

struct NodeText;
using NodeTexts = std::vector<std::shared_ptr<const NodeText>>;  ///< a null pointer stands for NULL

/// A place in a file.
struct Place {
  std::shared_ptr<const std::string> file;
  int line = 1;  ///< counted from 1

  std::string Text() const { return *file + ":" + std::to_string(line); }
};

enum class Access : std::uint8_t { EventIn, EventOut, Field, ExposedField };

/// One field or event of a node type, with the value that it starts with.
struct FieldText {
  Access access;
  FieldType type;
  std::string name;
  Value value;      ///< but for nodes
  NodeTexts nodes;  ///< of an SFNode or MFNode
  Place place;
};

/// The fields and events of a node type, in order.
struct Interface {
  std::string name;
  std::vector<FieldText> fields;

  /// Index of a field, or -1. An exposed field "x" is found as "set_x" and "x_changed" as well.
  int Find(std::string_view wanted) const;
};

struct ProtoText;

/// What a node can be an instance of: a node of the standard, a PROTO, or a Script with its own
/// fields.
struct NodeType {
  Interface interface;
  std::shared_ptr<ProtoText> proto;  ///< of a PROTO alone
  bool isScript = false;
};

/// A field as it stands in a node: with a value, or handed to the PROTO around it by IS.
struct SetField {
  int index = 0;  ///< in the type's interface
  Value value;
  NodeTexts nodes;
  std::string is;  ///< the PROTO's field; empty for a value
  Place place;
};

struct NodeText {
  std::shared_ptr<const NodeType> type;  ///< none for a USE
  std::string name;                      ///< after DEF or USE; empty for none
  std::vector<SetField> fields;
  Place place;
};

struct RouteText {
  std::string fromNode, fromField, toNode, toField;
  Place place;
};

struct WorldText {
  NodeTexts nodes;
  std::vector<RouteText> routes;
  /// The PROTOs that the text declares, in order; those of a library are found by name.
  std::vector<std::shared_ptr<const NodeType>> protos;
};

struct ProtoText {
  WorldText body;
  std::vector<std::string> urls;  ///< of an EXTERNPROTO, whose body is elsewhere
  std::shared_ptr<const NodeType>
      found;  ///< what an EXTERNPROTO stands for, once it has been looked for
  Place place;
};

/// The node type of that name in the standard, or none.
std::shared_ptr<const NodeType> StandardType(std::string_view name);

/// The fields that every Script has.
const Interface& ScriptInterface();

}  // namespace orvane::stills
