#include "stills/scene/ScriptEngine.h"

#include <cstdlib>

namespace orvane::stills {

namespace {

/// A name that scripts cannot spell.
constexpr const char* kKept = DUK_HIDDEN_SYMBOL("kept");

[[noreturn]] void Fatal(void*, const char*) { std::abort(); }

}  // namespace

ScriptEngine::ScriptEngine(Scene& scene, Budget& budget)
    : m_scene(scene),
      m_budget(budget),
      m_context(duk_create_heap(Allocate, Reallocate, Free, this, Fatal), duk_destroy_heap) {
  if (!m_context) throw Error("there is no memory for scripts");
}

ScriptEngine& ScriptEngine::From(duk_context* context) {
  duk_memory_functions functions;
  duk_get_memory_functions(context, &functions);
  return *static_cast<ScriptEngine*>(functions.udata);
}

void* ScriptEngine::Allocate(void* self, duk_size_t size) {
  return Reallocate(self, nullptr, size);
}

void* ScriptEngine::Reallocate(void* self, void* old, duk_size_t size) {
  auto& engine = *static_cast<ScriptEngine*>(self);
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

void ScriptEngine::Free(void* self, void* old) { Reallocate(self, old, 0); }

void ScriptEngine::Call(const Place& place, duk_safe_call_function call, void* step) {
  duk_context* context = Context();
  const std::size_t values = m_values.size();
  const duk_idx_t top = duk_get_top(context);
  const duk_int_t status = duk_safe_call(context, call, step, 0, 1);
  m_values.resize(values);
  if (m_fault) {
    duk_set_top(context, top);
    std::rethrow_exception(std::exchange(m_fault, nullptr));
  }
  if (status == DUK_EXEC_SUCCESS) {
    duk_set_top(context, top);
    return;
  }
  const std::string message = Describe(place);
  duk_set_top(context, top);
  throw Error(message);
}

/// The error on top of the stack, with the line of the script it comes from.
std::string ScriptEngine::Describe(const Place& place) {
  duk_context* context = Context();
  // A script can throw what fails again when it is looked at.
  const auto getStack = [](duk_context* c, void*) -> duk_ret_t {
    duk_get_prop_string(c, -1, "stack");
    duk_safe_to_string(c, -1);
    return 1;
  };
  duk_dup_top(context);
  duk_safe_call(context, getStack, nullptr, 1, 1);
  const std::string stack = duk_safe_to_string(context, -1);
  duk_pop(context);
  std::string message = duk_safe_to_string(context, -1);
  if (std::exchange(m_isFull, false)) {
    message = "scripts take more than " + std::to_string(m_budget.Bytes() >> 20) + " MB of memory";
  }
  Place at = place;
  for (const std::string& mark : {"(" + *place.file + ":", "at " + *place.file + ":"}) {
    const std::size_t found = stack.find(mark);
    if (found == std::string::npos) continue;
    at.line += std::atoi(stack.c_str() + found + mark.size()) - 1;
    break;
  }
  const std::size_t line = message.find(" (line ");
  if (line != std::string::npos) {  // of a text that does not compile
    at.line += std::atoi(message.c_str() + line + 7) - 1;
    message.resize(line);
  }
  return at.Text() + ": " + message;
}

void ScriptEngine::KeepObject() {
  duk_context* context = Context();
  duk_push_global_stash(context);
  if (!duk_get_prop_string(context, -1, kKept)) {
    duk_pop(context);
    duk_push_array(context);
    duk_dup_top(context);
    duk_put_prop_string(context, -3, kKept);
  }
  duk_replace(context, -2);
  duk_insert(context, -2);
  duk_put_prop_index(context, -2, static_cast<duk_uarridx_t>(duk_get_length(context, -2)));
  duk_pop(context);
}

}  // namespace orvane::stills
