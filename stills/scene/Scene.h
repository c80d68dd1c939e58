/// A world that is alive: nodes made from their text, events that run along ROUTEs, scripts.
#pragma once

#include "stills/Error.h"
#include "stills/scene/Node.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace orvane::stills {

class ScriptHost;

/// Hands out the text of the file behind an EXTERNPROTO's URL, as it stands there without "#...";
/// `from` is the file that asks. False for a file that is not there. `name` becomes its name.
using FileLoader = std::function<bool(const std::string& url, const std::string& from,
                                      std::string& text, std::string& name)>;

/// Nodes live as long as their scene. What goes wrong raises an Error.
class Scene {
 public:
  Scene(const Limits& limits, FileLoader loader);
  ~Scene();
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  /// Makes the nodes of a world and starts its scripts.
  void Load(const WorldText& world);
  /// Makes nodes from what a script wrote; their scripts start at once.
  std::vector<Node*> MakeFragment(const WorldText& text);

  const std::vector<Node*>& Roots() const { return m_roots; }
  const std::deque<Node>& AllNodes() const { return m_nodes; }
  std::deque<Node>& AllNodes() { return m_nodes; }
  Budget& TheBudget() { return m_budget; }

  /// A field takes a value as if by a ROUTE, and so do all that follow from it.
  void Receive(Node& node, int field, Value value);
  /// A node sends a value: it goes along the ROUTEs, and out of the PROTO around the node.
  void Emit(Node& node, int field, Value value);
  /// Sends an event from outside the scene, and lets scripts finish what it has set off.
  void Raise(Node& node, std::string_view field, Value value);

 private:
  using Names = std::map<std::string, Node*, std::less<>>;

  Node* Make(const NodeText& text, Names& names, Node* proto);
  std::vector<Node*> MakeAll(const NodeTexts& texts, Names& names, Node* proto);
  void SetUp(Node& node, const NodeText& text, Names& names, Node* proto);
  void Connect(Node& proto, int outer, Node& node, int inner);
  void AddRoutes(const std::vector<RouteText>& routes, const Names& names);
  const NodeType& Resolve(const NodeType& type);
  const WorldText& Library(const std::string& url, const std::string& from);
  void Start(std::size_t firstScript);
  void Store(Node& node, int field, Value value);
  void Pass(Node& node, int field);
  void Finish();

  Budget m_budget;
  FileLoader m_loader;
  std::deque<Node> m_nodes;
  std::vector<Node*> m_roots;
  std::vector<Node*> m_scripts;  ///< in the order in which they were made
  std::map<std::string, WorldText> m_libraries;
  std::unique_ptr<ScriptHost> m_host;
  int m_depth = 0;
};

}  // namespace orvane::stills
