/// The text of a world: the one traversal that both writers share.
#pragma once

#include "orvane/automation/Export.h"

#include <charconv>
#include <cstdint>
#include <initializer_list>
#include <memory>
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
/// DuplicateDefName, RouteOutsideScene, SceneTooDeep.
class ORVANE_API SceneWriter {
 public:
  /// The most nodes that may hang one below the other; readers have limits of their own.
  static constexpr int kMostLevels = 1000;

  /// The text of the scene below `root`.
  static std::string Write(const Node& root, const RouteList& routes, TextLayout layout);

  // What fields write their values with.
  void Put(std::string_view text) {
    while (text.size() > Room()) {
      const std::size_t part = text.copy(m_at, Room());
      m_at += part;
      text.remove_prefix(part);
      Flush();
    }
    m_at += text.copy(m_at, text.size());
  }
  /// The shortest text that reads back to the same number.
  template <class T>
  void PutNumber(T number) {
    constexpr std::size_t kLongest = 32;
    if (kLongest > Room()) Flush();
    m_at = std::to_chars(m_at, m_at + kLongest, number).ptr;
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

  explicit SceneWriter(TextLayout layout);

  void Visit(const Node& node);
  void NameSharedNodes();
  void CheckRoutes(const RouteList& routes) const;
  void PutExternProto(const ProtoUse& proto);
  void PutRoutes(const RouteList& routes);

  std::size_t Room() const { return static_cast<std::size_t>(m_block.get() + kBlockSize - m_at); }
  /// Moves what stands in the block to the end of the text.
  void Flush();

  TextLayout m_layout;
  int m_depth = 0;
  int m_level = 0;  ///< Of the node being visited; the root's is 1.
  // Text is made in a block that stays in the processor's cache, and appended to a text that has
  // room for what the scene is expected to take: growing a text of tens of megabytes would cost as
  // much as formatting the numbers in it.
  static constexpr std::size_t kBlockSize = 1 << 15;
  std::string m_text;
  std::size_t m_expectedSize = 0;
  std::unique_ptr<char[]> m_block;
  char* m_at;
  std::unordered_map<const Node*, NodeUse> m_uses;
  std::unordered_map<std::string, const Node*> m_names;
  std::vector<const Node*> m_unnamedShared;  ///< In the order in which they were met twice.
  std::vector<ProtoUse> m_protos;
};

}  // namespace orvane::scene
