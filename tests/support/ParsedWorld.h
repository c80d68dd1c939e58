/// A world as an independent parser reads it: Coin, with the PROTO files of the source tree.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <Inventor/nodes/SoNode.h>

class SoSeparator;

namespace orvane::tests {

class ParsedWorld {
 public:
  explicit ParsedWorld(const std::string& text);
  ~ParsedWorld();
  ParsedWorld(const ParsedWorld&) = delete;
  ParsedWorld& operator=(const ParsedWorld&) = delete;

  /// What the parser had to say, one message a complaint.
  const std::vector<std::string>& Complaints() const { return m_complaints; }
  /// The only node of that DEF name; nullptr when there is none.
  SoNode* Named(const std::string& defName) const;
  /// Number of instances of a node type or PROTO, reached from the root.
  int CountOf(const std::string& type) const;
  /// Value of a field as VRML text on one line: "0 1 0"; "" when the node has no such field.
  static std::string FieldOf(SoNode* node, const std::string& field);
  /// The `translation` of the node above `node`.
  std::string TranslationAbove(SoNode* node) const;
  /// The ROUTE statements of the text, in order.
  const std::vector<std::string>& Routes() const { return m_routes; }

 private:
  std::vector<std::string> m_complaints;
  std::vector<std::string> m_routes;
  SoNode* m_root = nullptr;
};

}  // namespace orvane::tests
