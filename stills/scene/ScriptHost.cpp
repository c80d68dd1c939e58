#include "stills/scene/ScriptHost.h"

#include "stills/scene/LoopGuard.h"
#include "stills/scene/Scene.h"
#include "stills/scene/ScriptEngine.h"
#include "stills/scene/ScriptNodes.h"
#include "stills/scene/ScriptPrelude.h"
#include "stills/scene/ScriptValues.h"

#include <algorithm>

#include <duktape.h>

namespace orvane::stills {

namespace {

constexpr const char* kStart = "initialize";
constexpr const char* kEnd = "eventsProcessed";

/// A function that makes a script from its fields: its own functions see them before all else.
std::string Wrapped(const Node& node, const std::string& source) {
  std::string text = "(function(__scope,__tick){with(__scope){return(function(){";
  try {
    text += WithTicks(source);
  } catch (const Error& error) {
    throw Error(node.place.Text() + ": " + error.what());
  }
  text += "\n;return{";
  const auto offer = [&text](const std::string& name) {
    text += name + ":typeof " + name + "=='function'?" + name + ":undefined,";
  };
  offer(kStart);
  offer(kEnd);
  for (const FieldText& field : node.Type().interface.fields) {
    if (field.access == Access::EventIn) offer(field.name);
  }
  return text + "}})()}})";
}

/// Raises an error in a script that takes too long.
duk_ret_t Tick(duk_context* context) {
  ScriptEngine& engine = ScriptEngine::From(context);
  engine.Guarded([&engine] { engine.Bounds().CheckTime(); });
  return 0;
}

duk_ret_t FloatText(duk_context* context) {
  PushFloatText(context, 0);
  return 1;
}

/// Notes that an eventOut has been set, in the list at the pointer that is its first argument.
duk_ret_t Mark(duk_context* context) {
  auto& sent = *static_cast<std::vector<int>*>(duk_require_pointer(context, 0));
  const int field = duk_require_int(context, 1);
  if (std::find(sent.begin(), sent.end(), field) == sent.end()) sent.push_back(field);
  return 0;
}

}  // namespace

ScriptHost::ScriptHost(Scene& scene, Budget& budget) : m_scene(scene), m_budget(budget) {}

ScriptHost::~ScriptHost() = default;

void ScriptHost::Add(Node& node) {
  if (!m_engine) Open();
  Script& script = m_scripts.emplace_back();
  script.node = &node;
  m_byNode[&node] = &script;
  const auto& urls = node.Strings("url");
  const std::string* source = nullptr;
  for (const std::string& url : urls) {
    for (const char* scheme : {"javascript:", "ecmascript:", "vrmlscript:"}) {
      if (!source && url.starts_with(scheme)) source = &url;
    }
  }
  if (!source) return;  // a script in a file or in another language: not run
  const std::string text = Wrapped(node, source->substr(source->find(':') + 1));
  duk_context* const context = m_engine->Context();
  m_engine->Protected(node.place, [&] {
    PushCompiled(node, text);
    PushScope(script);
    duk_get_global_string(context, "__tick");
    duk_call(context, 2);
    Keep(script);
  });
}

void ScriptHost::Initialize(Node& node) {
  Script& script = Of(node);
  if (script.handlers.count(kStart) > 0) Run(script, kStart, nullptr, {});
}

void ScriptHost::Deliver(Node& node, int field) {
  Script& script = Of(node);
  const std::string& name = node.Declared(field).name;
  if (script.handlers.count(name) == 0) return;
  if (!script.isTouched) m_touched.push_back(&script);
  script.isTouched = true;
  script.waiting.emplace_back(field, node.Field(field).value);
  if (script.isRunning) return;
  while (!script.waiting.empty()) {
    const auto [at, value] = std::move(script.waiting.front());
    script.waiting.pop_front();
    Run(script, node.Declared(at).name, &value, node.Declared(at).type);
  }
}

void ScriptHost::Finish() {
  while (!m_touched.empty()) {
    m_budget.CheckTime();
    std::vector<Script*> scripts;
    scripts.swap(m_touched);
    for (Script* script : scripts) {
      script->isTouched = false;
      if (script->handlers.count(kEnd) > 0) Run(*script, kEnd, nullptr, {});
    }
  }
}

/// Makes the engine, with the types, the Browser and the functions that scripts know.
void ScriptHost::Open() {
  m_engine = std::make_unique<ScriptEngine>(m_scene, m_budget);
  const Place place{std::make_shared<const std::string>("scripts"), 1};
  duk_context* const context = m_engine->Context();
  m_engine->Protected(place, [context] {
    duk_push_c_function(context, Tick, 0);
    duk_put_global_string(context, "__tick");
    duk_push_c_function(context, FloatText, 1);
    duk_put_global_string(context, "__floats");
    duk_push_c_function(context, CreateNodes, 1);
    duk_put_global_string(context, "__create");
    duk_eval_string_noresult(context, kScriptPrelude);
    duk_push_global_stash(context);
    duk_push_c_function(context, Mark, 2);
    duk_put_prop_string(context, -2, "mark");
    for (const char* name : {"__eventOut", "__tick"}) {
      duk_get_global_string(context, name);
      duk_put_prop_string(context, -2, name);
    }
    duk_pop(context);
  });
}

void ScriptHost::Run(Script& script, const std::string& name, const Value* value, FieldType type) {
  duk_context* const context = m_engine->Context();
  void* handler = script.handlers.at(name);
  script.isRunning = true;
  m_engine->Protected(script.node->place, [&] {
    duk_push_heapptr(context, handler);
    if (value) PushValue(context, type, *value, PushNode);
    if (value) duk_push_number(context, 0);  // the time: pictures are of the first moment
    duk_call(context, value ? 2 : 0);
  });
  script.isRunning = false;
  Send(script);
}

/// Sends what the script has set, each event once.
void ScriptHost::Send(Script& script) {
  duk_context* const context = m_engine->Context();
  std::vector<int> sent;
  sent.swap(script.sent);
  for (const int field : sent) {
    const FieldText& declared = script.node->Declared(field);
    Value value;
    m_engine->Protected(script.node->place, [&] {
      duk_push_heapptr(context, script.scope);
      duk_get_prop_lstring(context, -1, declared.name.data(), declared.name.size());
      TakeValue(context, -1, declared.type, value, NodeAt);
    });
    m_scene.Emit(*script.node, field, std::move(value));
  }
}

/// Leaves the function on the stack; one text is compiled once, however many scripts have it.
void ScriptHost::PushCompiled(const Node& node, const std::string& text) {
  duk_context* const context = m_engine->Context();
  duk_push_global_stash(context);
  duk_push_lstring(context, text.data(), text.size());
  if (!duk_get_prop(context, -2)) {
    duk_pop(context);
    duk_push_lstring(context, text.data(), text.size());
    duk_push_string(context, node.place.file->c_str());
    duk_compile(context, DUK_COMPILE_EVAL);
    duk_call(context, 0);
    duk_push_lstring(context, text.data(), text.size());
    duk_dup(context, -2);
    duk_put_prop(context, -4);
  }
  duk_remove(context, -2);
}

/// Leaves the object that holds a script's fields and eventOuts.
void ScriptHost::PushScope(Script& script) {
  duk_context* const context = m_engine->Context();
  const Node& node = *script.node;
  duk_push_bare_object(context);
  const duk_idx_t scope = duk_get_top_index(context);
  script.scope = duk_get_heapptr(context, scope);
  for (int i = static_cast<int>(ScriptInterface().fields.size()); i < node.FieldCount(); ++i) {
    const FieldText& field = node.Declared(i);
    if (field.access == Access::Field) {
      PushValue(context, field.type, node.Field(i).value, PushNode);
      duk_put_prop_lstring(context, scope, field.name.data(), field.name.size());
    } else if (field.access == Access::EventOut) {
      duk_push_global_stash(context);
      duk_get_prop_string(context, -1, "__eventOut");
      duk_dup(context, scope);
      duk_push_lstring(context, field.name.data(), field.name.size());
      PushValue(context, field.type, node.Field(i).value, PushNode);
      duk_push_pointer(context, &script.sent);
      duk_push_int(context, i);
      duk_get_prop_string(context, scope + 1, "mark");
      duk_call(context, 6);
      duk_pop_2(context);
    }
  }
}

/// Notes the handlers in the object on top of the stack, and keeps them and the scope alive.
void ScriptHost::Keep(Script& script) {
  duk_context* const context = m_engine->Context();
  const duk_idx_t handlers = duk_get_top_index(context);
  duk_push_heapptr(context, script.scope);
  m_engine->KeepObject();
  duk_enum(context, handlers, DUK_ENUM_OWN_PROPERTIES_ONLY);
  while (duk_next(context, -1, 1)) {
    if (duk_is_function(context, -1)) {
      script.handlers[duk_get_string(context, -2)] = duk_get_heapptr(context, -1);
      m_engine->KeepObject();
    } else {
      duk_pop(context);
    }
    duk_pop(context);
  }
}

}  // namespace orvane::stills
