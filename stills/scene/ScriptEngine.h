/// The engine that runs scripts: its memory is counted, and what fails in it becomes an Error.
#pragma once

#include "stills/Error.h"
#include "stills/vrml/Texts.h"
#include "stills/vrml/Value.h"

#include <cstddef>
#include <deque>
#include <exception>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include <duktape.h>

namespace orvane::stills {

class Scene;

/// The engine leaves its functions by longjmp when a script fails. So no object with a destructor
/// lives in a frame that it may jump over: values on their way are kept by KeepValue().
class ScriptEngine {
 public:
  /// Error if there is no memory for it.
  ScriptEngine(Scene& scene, Budget& budget);
  ScriptEngine(const ScriptEngine&) = delete;
  ScriptEngine& operator=(const ScriptEngine&) = delete;

  /// The engine that has called a function of ours.
  static ScriptEngine& From(duk_context* context);

  duk_context* Context() const { return m_context.get(); }
  /// The scene whose scripts it runs.
  Scene& Owner() const { return m_scene; }
  Budget& Bounds() const { return m_budget; }

  /// Runs a step that the engine may leave early. Raises what a function of ours has raised below
  /// it, or else the script's own error, which `place` is the first line of.
  template <typename Step>
  void Protected(const Place& place, Step&& step) {
    using Plain = std::remove_reference_t<Step>;
    Call(
        place,
        [](duk_context*, void* data) -> duk_ret_t {
          (*static_cast<Plain*>(data))();
          return 0;
        },
        &step);
  }

  /// Runs a step of a function of ours, and keeps what it raises until the engine has been left.
  template <typename Step>
  void Guarded(Step&& step) {
    if (!m_fault) {
      try {
        step();
      } catch (...) {
        m_fault = std::current_exception();
      }
    }
    if (m_fault) duk_error(Context(), DUK_ERR_ERROR, "stopped");
  }

  /// Room for a value until the Protected() step is over.
  Value& KeepValue() { return m_values.emplace_back(); }

  /// Pops the object on top of the stack, and keeps it for as long as there is the engine.
  void KeepObject();

 private:
  static void* Allocate(void* self, duk_size_t size);
  static void* Reallocate(void* self, void* old, duk_size_t size);
  static void Free(void* self, void* old);

  void Call(const Place& place, duk_safe_call_function call, void* step);
  std::string Describe(const Place& place);

  Scene& m_scene;
  Budget& m_budget;
  std::size_t m_bytes = 0;
  bool m_isFull = false;  ///< the engine asked for more than the limit
  std::deque<Value> m_values;
  std::exception_ptr m_fault;
  std::unique_ptr<duk_context, void (*)(duk_context*)> m_context;
};

}  // namespace orvane::stills
