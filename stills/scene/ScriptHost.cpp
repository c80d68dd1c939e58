#include "stills/scene/ScriptHost.h"

#include "stills/scene/LoopGuard.h"
#include "stills/scene/Scene.h"
#include "stills/scene/ScriptPrelude.h"
#include "stills/scene/ScriptValues.h"
#include "stills/vrml/Parser.h"

#include <cstdlib>
#include <cstring>
#include <deque>
#include <exception>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <duktape.h>

namespace orvane::stills {

namespace {

/// Names that scripts cannot spell.
constexpr const char* kNode = DUK_HIDDEN_SYMBOL("node");
constexpr const char* kKept = DUK_HIDDEN_SYMBOL("kept");

/// What stands for the file in what a script has written; nothing is ever read for it.
constexpr const char* kWritten = "text made by a script";

constexpr const char* kStart = "initialize";
constexpr const char* kEnd = "eventsProcessed";

}  // namespace

// The engine leaves its functions by longjmp when a script fails. So no object with a destructor
// lives in a frame that it may jump over: values on their way wait in m_values, which only grows
// meanwhile.
class ScriptHost::Engine {
 public:
  Engine(Scene& scene, Budget& budget) : m_scene(scene), m_budget(budget) {}

  ~Engine() {
    if (m_context) duk_destroy_heap(m_context);
  }
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  void Add(Node& node) {
    if (!m_context) Open();
    Script& script = m_scripts.emplace_back();
    script.node = &node;
    m_byNode[&node] = m_scripts.size() - 1;
    const auto& urls = node.Strings("url");
    const std::string* source = nullptr;
    for (const std::string& url : urls) {
      for (const char* scheme : {"javascript:", "ecmascript:", "vrmlscript:"}) {
        if (!source && url.starts_with(scheme)) source = &url;
      }
    }
    if (!source) return;  // a script in a file or in another language: not run
    const std::string text = Wrapped(node, source->substr(source->find(':') + 1));
    Protected(node.place, [&] {
      PushCompiled(node, text);
      PushScope(script, m_scripts.size() - 1);
      duk_get_global_string(m_context, "__tick");
      duk_call(m_context, 2);
      Keep(script);
    });
  }

  void Initialize(Node& node) {
    Script& script = Of(node);
    if (script.handlers.count(kStart) > 0) Run(script, kStart, nullptr, {});
  }

  void Deliver(Node& node, int field) {
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

  void Finish() {
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

  static Engine& From(duk_context* context) {
    duk_memory_functions functions;
    duk_get_memory_functions(context, &functions);
    return *static_cast<Engine*>(functions.udata);
  }

  // --- memory, counted against the limit ---

  static void* Allocate(void* self, duk_size_t size) { return Reallocate(self, nullptr, size); }

  static void* Reallocate(void* self, void* old, duk_size_t size) {
    auto& engine = *static_cast<Engine*>(self);
    auto* before = static_cast<std::size_t*>(old);
    if (before) before -= 2;
    const std::size_t had = before ? *before : 0;
    if (size == 0) {
      engine.m_bytes -= had;
      std::free(before);
      return nullptr;
    }
    if (engine.m_bytes - had + size > engine.m_budget.Bytes()) {
      engine.m_isFull = true;
      return nullptr;
    }
    auto* block = static_cast<std::size_t*>(std::realloc(before, size + 2 * sizeof(std::size_t)));
    if (!block) return nullptr;
    engine.m_bytes += size - had;
    *block = size;
    return block + 2;
  }

  static void Free(void* self, void* old) { Reallocate(self, old, 0); }

  [[noreturn]] static void Fatal(void*, const char*) { std::abort(); }

  void Open() {
    m_context = duk_create_heap(Allocate, Reallocate, Free, this, Fatal);
    if (!m_context) throw Error("there is no memory for scripts");
    const Place place{std::make_shared<const std::string>("scripts"), 1};
    Protected(place, [this] {
      duk_push_c_function(m_context, Tick, 0);
      duk_put_global_string(m_context, "__tick");
      duk_push_c_function(m_context, FloatText, 1);
      duk_put_global_string(m_context, "__floats");
      duk_push_c_function(m_context, Create, 1);
      duk_put_global_string(m_context, "__create");
      duk_eval_string_noresult(m_context, kScriptPrelude);
      duk_push_global_stash(m_context);
      duk_push_array(m_context);
      duk_put_prop_string(m_context, -2, kKept);
      duk_push_c_function(m_context, Mark, 2);
      duk_put_prop_string(m_context, -2, "mark");
      for (const char* name : {"__eventOut", "__tick"}) {
        duk_get_global_string(m_context, name);
        duk_put_prop_string(m_context, -2, name);
      }
      duk_pop(m_context);
    });
  }

  // --- calls ---

  /// Runs a step that the engine may leave early. Raises what a function of ours has raised below
  /// it, or else the script's own error.
  template <typename Step>
  void Protected(const Place& place, Step&& step) {
    const std::size_t values = m_values.size();
    const duk_idx_t top = duk_get_top(m_context);
    using Plain = std::remove_reference_t<Step>;
    const auto call = [](duk_context*, void* data) -> duk_ret_t {
      (*static_cast<Plain*>(data))();
      return 0;
    };
    const duk_int_t status = duk_safe_call(m_context, call, &step, 0, 1);
    m_values.resize(values);
    if (m_fault) {
      duk_set_top(m_context, top);
      std::rethrow_exception(std::exchange(m_fault, nullptr));
    }
    if (status == DUK_EXEC_SUCCESS) {
      duk_set_top(m_context, top);
      return;
    }
    const std::string message = Describe(place);
    duk_set_top(m_context, top);
    throw Error(message);
  }

  /// The error on top of the stack, with the line of the script it comes from.
  std::string Describe(const Place& place) {
    // A script can throw what fails again when it is looked at.
    const auto getStack = [](duk_context* context, void*) -> duk_ret_t {
      duk_get_prop_string(context, -1, "stack");
      duk_safe_to_string(context, -1);
      return 1;
    };
    duk_dup_top(m_context);
    duk_safe_call(m_context, getStack, nullptr, 1, 1);
    const std::string stack = duk_safe_to_string(m_context, -1);
    duk_pop(m_context);
    std::string message = duk_safe_to_string(m_context, -1);
    if (std::exchange(m_isFull, false)) {
      message =
          "scripts take more than " + std::to_string(m_budget.Bytes() >> 20) + " MB of memory";
    }
    Place at = place;
    for (const std::string& mark : {"(" + *place.file + ":", "at " + *place.file + ":"}) {
      const std::size_t found = stack.find(mark);
      if (found != std::string::npos) at.line += std::atoi(stack.c_str() + found + mark.size()) - 1;
      if (found != std::string::npos) break;
    }
    const std::size_t line = message.find(" (line ");
    if (line != std::string::npos) {  // of a text that does not compile
      at.line += std::atoi(message.c_str() + line + 7) - 1;
      message.resize(line);
    }
    return at.Text() + ": " + message;
  }

  void Run(Script& script, const std::string& name, const Value* value, FieldType type) {
    void* handler = script.handlers.at(name);
    script.isRunning = true;
    Protected(script.node->place, [&] {
      duk_push_heapptr(m_context, handler);
      if (value) PushValue(m_context, type, *value, PushNode);
      if (value) duk_push_number(m_context, 0);  // the time: pictures are of the first moment
      duk_call(m_context, value ? 2 : 0);
    });
    script.isRunning = false;
    Send(script);
  }

  /// Sends what the script has set, each event once.
  void Send(Script& script) {
    std::vector<int> sent;
    sent.swap(script.sent);
    for (const int field : sent) {
      const FieldText& declared = script.node->Declared(field);
      Value value;
      Protected(script.node->place, [&] {
        duk_push_heapptr(m_context, script.scope);
        duk_get_prop_lstring(m_context, -1, declared.name.data(), declared.name.size());
        TakeValue(m_context, -1, declared.type, value, NodeAt);
      });
      m_scene.Emit(*script.node, field, std::move(value));
    }
  }

  // --- compiling ---

  /// A function that makes a script from its fields: its own functions see them before all else.
  static std::string Wrapped(const Node& node, const std::string& source) {
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

  /// Leaves the function on the stack; one text is compiled once, however many scripts have it.
  void PushCompiled(const Node& node, const std::string& text) {
    duk_push_global_stash(m_context);
    duk_push_lstring(m_context, text.data(), text.size());
    if (!duk_get_prop(m_context, -2)) {
      duk_pop(m_context);
      duk_push_lstring(m_context, text.data(), text.size());
      duk_push_string(m_context, node.place.file->c_str());
      duk_compile(m_context, DUK_COMPILE_EVAL);
      duk_call(m_context, 0);
      duk_push_lstring(m_context, text.data(), text.size());
      duk_dup(m_context, -2);
      duk_put_prop(m_context, -4);
    }
    duk_remove(m_context, -2);
  }

  /// Leaves the object that holds a script's fields and eventOuts.
  void PushScope(Script& script, std::size_t number) {
    const Node& node = *script.node;
    duk_push_bare_object(m_context);
    const duk_idx_t scope = duk_get_top_index(m_context);
    script.scope = duk_get_heapptr(m_context, scope);
    for (int i = static_cast<int>(ScriptInterface().fields.size()); i < node.FieldCount(); ++i) {
      const FieldText& field = node.Declared(i);
      if (field.access == Access::Field) {
        PushValue(m_context, field.type, node.Field(i).value, PushNode);
        duk_put_prop_lstring(m_context, scope, field.name.data(), field.name.size());
      } else if (field.access == Access::EventOut) {
        duk_push_global_stash(m_context);
        duk_get_prop_string(m_context, -1, "__eventOut");
        duk_dup(m_context, scope);
        duk_push_lstring(m_context, field.name.data(), field.name.size());
        PushValue(m_context, field.type, node.Field(i).value, PushNode);
        duk_push_number(m_context, static_cast<double>(number));
        duk_push_int(m_context, i);
        duk_get_prop_string(m_context, scope + 1, "mark");
        duk_call(m_context, 6);
        duk_pop_2(m_context);
      }
    }
  }

  /// Notes the handlers in the object on top of the stack, and keeps them and the scope alive.
  void Keep(Script& script) {
    PushKept();
    const duk_idx_t kept = duk_get_top_index(m_context);
    const auto keep = [this, kept] {
      duk_put_prop_index(m_context, kept,
                         static_cast<duk_uarridx_t>(duk_get_length(m_context, kept)));
    };
    duk_push_heapptr(m_context, script.scope);
    keep();
    duk_enum(m_context, kept - 1, DUK_ENUM_OWN_PROPERTIES_ONLY);
    while (duk_next(m_context, -1, 1)) {
      if (duk_is_function(m_context, -1)) {
        script.handlers[duk_get_string(m_context, -2)] = duk_get_heapptr(m_context, -1);
        keep();
      } else {
        duk_pop(m_context);
      }
      duk_pop(m_context);
    }
  }

  void PushKept() {
    duk_push_global_stash(m_context);
    duk_get_prop_string(m_context, -1, kKept);
    duk_remove(m_context, -2);
  }

  // --- nodes as scripts see them ---

  static void PushNode(duk_context* context, Node* node) {
    if (!node) {
      duk_push_null(context);
      return;
    }
    if (node->scriptObject) {
      duk_push_heapptr(context, node->scriptObject);
      return;
    }
    Engine& engine = From(context);
    duk_push_object(context);
    engine.PushPrototype(*node);
    duk_set_prototype(context, -2);
    duk_push_pointer(context, node);
    duk_put_prop_string(context, -2, kNode);
    engine.PushKept();
    duk_dup(context, -2);
    duk_put_prop_index(context, -2, static_cast<duk_uarridx_t>(duk_get_length(context, -2)));
    duk_pop(context);
    node->scriptObject = duk_get_heapptr(context, -1);
  }

  /// Of all nodes of a type: its fields and events as properties.
  void PushPrototype(const Node& node) {
    duk_push_global_stash(m_context);
    duk_push_pointer(m_context, const_cast<NodeType*>(&node.Type()));  // a key is never written to
    duk_safe_to_string(m_context, -1);
    if (!duk_get_prop(m_context, -2)) {
      duk_pop(m_context);
      duk_push_object(m_context);
      const duk_idx_t prototype = duk_get_top_index(m_context);
      duk_get_global_string(m_context, "SFNode");
      duk_get_prop_string(m_context, -1, "prototype");
      duk_set_prototype(m_context, prototype);
      duk_pop(m_context);
      for (int i = 0; i < node.FieldCount(); ++i) {
        const FieldText& field = node.Declared(i);
        Property(prototype, "", field.name, "", i);
        if (field.access != Access::ExposedField) continue;
        Property(prototype, "set_", field.name, "", i);
        Property(prototype, "", field.name, "_changed", i);
      }
      duk_push_pointer(m_context, const_cast<NodeType*>(&node.Type()));
      duk_safe_to_string(m_context, -1);
      duk_dup(m_context, prototype);
      duk_put_prop(m_context, -4);
    }
    duk_remove(m_context, -2);
  }

  void Property(duk_idx_t object, const char* before, const std::string& name, const char* after,
                int field) {
    duk_push_sprintf(m_context, "%s%s%s", before, name.c_str(), after);
    duk_push_c_function(m_context, GetField, 0);
    duk_set_magic(m_context, -1, field);
    duk_push_c_function(m_context, SetField, 1);
    duk_set_magic(m_context, -1, field);
    duk_def_prop(m_context, object,
                 DUK_DEFPROP_HAVE_GETTER | DUK_DEFPROP_HAVE_SETTER | DUK_DEFPROP_SET_ENUMERABLE);
  }

  static Node* NodeAt(duk_context* context, duk_idx_t index) {
    if (duk_is_null_or_undefined(context, index)) return nullptr;
    duk_require_object(context, index);
    duk_get_prop_string(context, index, kNode);
    auto* node = static_cast<Node*>(duk_get_pointer(context, -1));
    duk_pop(context);
    if (!node) duk_error(context, DUK_ERR_TYPE_ERROR, "a node is wanted");
    return node;
  }

  static Node& This(duk_context* context) {
    duk_push_this(context);
    Node* node = NodeAt(context, -1);
    duk_pop(context);
    if (!node) duk_error(context, DUK_ERR_TYPE_ERROR, "a node is wanted");
    return *node;
  }

  static duk_ret_t GetField(duk_context* context) {
    const Node& node = This(context);
    const int field = duk_get_current_magic(context);
    PushValue(context, node.Declared(field).type, node.Field(field).value, PushNode);
    return 1;
  }

  static duk_ret_t SetField(duk_context* context) {
    Node& node = This(context);
    const int field = duk_get_current_magic(context);
    const FieldText& declared = node.Declared(field);
    if (declared.access == Access::EventOut || declared.access == Access::Field) {
      duk_error(context, DUK_ERR_TYPE_ERROR, "%s of %s cannot be set", declared.name.c_str(),
                node.TypeName().c_str());
    }
    Engine& engine = From(context);
    Value& value = engine.m_values.emplace_back();
    TakeValue(context, 0, declared.type, value, NodeAt);
    engine.Guarded(context, [&] { engine.m_scene.Receive(node, field, std::move(value)); });
    return 0;
  }

  // --- functions that scripts call ---

  static duk_ret_t Tick(duk_context* context) {
    Engine& engine = From(context);
    engine.Guarded(context, [&engine] { engine.m_budget.CheckTime(); });
    return 0;
  }

  static duk_ret_t FloatText(duk_context* context) {
    PushFloatText(context, 0);
    return 1;
  }

  static duk_ret_t Mark(duk_context* context) {
    Engine& engine = From(context);
    const auto number = static_cast<std::size_t>(duk_require_number(context, 0));
    const int field = duk_require_int(context, 1);
    auto& sent = engine.m_scripts[number].sent;
    for (const int known : sent) {
      if (known == field) return 0;
    }
    sent.push_back(field);
    return 0;
  }

  static duk_ret_t Create(duk_context* context) {
    Engine& engine = From(context);
    duk_size_t size = 0;
    const char* text = duk_require_lstring(context, 0, &size);
    Value& value = engine.m_values.emplace_back();
    engine.Guarded(context, [&] {
      static const auto file = std::make_shared<const std::string>(kWritten);
      value = engine.m_scene.MakeFragment(
          ParseFragment(std::string_view(text, size), {file, 1}, engine.m_budget));
    });
    PushValue(context, FieldType::MFNode, value, PushNode);
    return 1;
  }

  /// Keeps what a function of ours raises until the engine has been left.
  template <typename Step>
  void Guarded(duk_context* context, Step&& step) {
    if (!m_fault) {
      try {
        step();
      } catch (...) {
        m_fault = std::current_exception();
      }
    }
    if (m_fault) duk_error(context, DUK_ERR_ERROR, "stopped");
  }

  Script& Of(const Node& node) { return m_scripts[m_byNode.at(&node)]; }

  Scene& m_scene;
  Budget& m_budget;
  std::size_t m_bytes = 0;
  bool m_isFull = false;  ///< the engine asked for more than the limit
  std::deque<Script> m_scripts;
  std::map<const Node*, std::size_t> m_byNode;
  std::vector<Script*> m_touched;
  std::deque<Value> m_values;
  std::exception_ptr m_fault;
  duk_context* m_context = nullptr;
};

ScriptHost::ScriptHost(Scene& scene, Budget& budget)
    : m_engine(std::make_unique<Engine>(scene, budget)) {}

ScriptHost::~ScriptHost() = default;

void ScriptHost::Add(Node& script) { m_engine->Add(script); }

void ScriptHost::Initialize(Node& script) { m_engine->Initialize(script); }

void ScriptHost::Deliver(Node& script, int field) { m_engine->Deliver(script, field); }

void ScriptHost::Finish() { m_engine->Finish(); }

}  // namespace orvane::stills
