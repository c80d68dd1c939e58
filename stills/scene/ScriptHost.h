/// Runs the Script nodes of a scene, which see the scene and nothing else of the machine.
#pragma once

#include "stills/Error.h"
#include "stills/scene/Node.h"

#include <cstddef>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orvane::stills {

class Scene;
class ScriptEngine;

/// One engine for all scripts of a scene. Each script has its own names on top of common types.
/// What goes wrong in a script raises an Error with its file and line.
class ScriptHost {
 public:
  ScriptHost(Scene& scene, Budget& budget);
  ~ScriptHost();

  /// Compiles a Script's text and gives it its fields.
  void Add(Node& node);
  /// Calls its initialize() and sends what that has set.
  void Initialize(Node& node);
  /// Hands it the event that the field has taken, and sends what follows. A script that is running
  /// takes it when it has finished.
  void Deliver(Node& node, int field);
  /// Calls eventsProcessed() of scripts that have taken events, until none is left.
  void Finish();

 private:
  struct Script {
    Node* node = nullptr;
    std::map<std::string, void*> handlers;  ///< functions, by the name of their event
    void* scope = nullptr;                  ///< the object that holds its fields
    std::vector<int> sent;                  ///< eventOuts that have been set and not sent yet
    std::deque<std::pair<int, Value>> waiting;
    bool isRunning = false;
    bool isTouched = false;  ///< eventsProcessed() is due
  };

  Script& Of(const Node& node) { return *m_byNode.at(&node); }
  void Open();
  void Run(Script& script, const std::string& name, const Value* value, FieldType type);
  void Send(Script& script);
  void PushCompiled(const Node& node, const std::string& text);
  void PushScope(Script& script);
  void Keep(Script& script);

  Scene& m_scene;
  Budget& m_budget;
  std::unique_ptr<ScriptEngine> m_engine;  ///< from the first script on
  std::deque<Script> m_scripts;
  std::map<const Node*, Script*> m_byNode;
  std::vector<Script*> m_touched;
};

}  // namespace orvane::stills
