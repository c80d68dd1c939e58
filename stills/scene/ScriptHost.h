/// Runs the Script nodes of a scene, which see the scene and nothing else of the machine.
#pragma once

#include "stills/Error.h"
#include "stills/scene/Node.h"

#include <memory>

namespace orvane::stills {

class Scene;

/// One engine for all scripts of a scene. Each script has its own names on top of common types.
/// What goes wrong in a script raises an Error with its file and line.
class ScriptHost {
 public:
  ScriptHost(Scene& scene, Budget& budget);
  ~ScriptHost();

  /// Compiles a Script's text and gives it its fields.
  void Add(Node& script);
  /// Calls its initialize() and sends what that has set.
  void Initialize(Node& script);
  /// Hands it the event that the field has taken, and sends what follows. A script that is running
  /// takes it when it has finished.
  void Deliver(Node& script, int field);
  /// Calls eventsProcessed() of scripts that have taken events, until none is left.
  void Finish();

 private:
  class Engine;
  std::unique_ptr<Engine> m_engine;
};

}  // namespace orvane::stills
