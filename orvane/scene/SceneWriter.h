/// The text of a world: the one traversal that both writers share.
#pragma once

#include "orvane/host/Export.h"

#include <charconv>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvane::scene {

class Node;
class ProtoInstance;
class RouteList;

/// Line breaks, and tabs in front of lines, one for each level of nesting.
struct TextLayout {
  bool breaks = true;
  bool tabs = true;
};

/// Writes one world as VRML97 (ISO/IEC 14772-1): the header line, an EXTERNPROTO for every PROTO
/// type in order of first use, the node tree, and the ROUTEs.
///
/// A node that hangs in two places is written once, with a DEF, and then as USE; where it has no
/// name it gets its type's with a number. Raises, before a character is handed out: SceneCycle,
/// DuplicateDefName, RouteOutsideScene.
class ORVANE_API SceneWriter {
 public:
  /// The text of the scene below `root`.
  static std::string Write(const Node& root, const RouteList& routes, TextLayout layout);

  // What fields write their values with.
  void Put(std::string_view text) {
    Reserve(text.size());
    text.copy(m_text.data() + m_size, text.size());
    m_size += text.size();
  }
  /// The shortest text that reads back to the same number.
  template <class T>
  void PutNumber(T number) {
    constexpr std::size_t kLongest = 32;
    Reserve(kLongest);
    char* begin = m_text.data() + m_size;
    m_size += static_cast<std::size_t>(std::to_chars(begin, begin + kLongest, number).ptr - begin);
  }
  /// The components of one value, with a space between them.
  void PutNumbers(std::initializer_list<float> numbers) {
    bool isFirst = true;
    for (const float number : numbers) {
      if (!isFirst) Put(" ");
      isFirst = false;
      PutNumber(number);
    }
  }
  /// In double quotes, with `"` and `\` escaped, malformed UTF-8 and NUL as U+FFFD.
  void PutString(std::string_view text);
  void PutNode(const Node& node);
  /// Ends the line, when lines are broken, and indents the next one by the current depth.
  void NewLine();
  void Indent() { ++m_depth; }
  void Outdent() { --m_depth; }

 private:
  struct NodeUse {
    std::string defName;
    bool shared = false;
    bool open = false;     ///< Being visited: meeting the node again is a cycle.
    bool written = false;  ///< The DEF stands in the text.
  };
  /// One PROTO type in use: its interface and every location its instances were given.
  struct ProtoUse {
    const ProtoInstance* instance;
    std::vector<std::string> locations;
  };

  explicit SceneWriter(TextLayout layout) : m_layout(layout) {}

  void Visit(const Node& node);
  void NameSharedNodes();
  void CheckRoutes(const RouteList& routes) const;
  void PutExternProto(const ProtoUse& proto);
  void PutRoutes(const RouteList& routes);

  void Reserve(std::size_t more) {
    if (m_text.size() - m_size < more) Grow(more);
  }
  void Grow(std::size_t more);

  TextLayout m_layout;
  int m_depth = 0;
  std::string m_text;  ///< Sized ahead of what is written; m_size is what counts.
  std::size_t m_size = 0;
  std::unordered_map<const Node*, NodeUse> m_uses;
  std::unordered_map<std::string, const Node*> m_names;
  std::vector<const Node*> m_unnamedShared;  ///< In the order in which they were met twice.
  std::vector<ProtoUse> m_protos;
};

}  // namespace orvane::scene
