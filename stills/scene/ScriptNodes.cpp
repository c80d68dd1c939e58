#include "stills/scene/ScriptNodes.h"

#include "stills/scene/Scene.h"
#include "stills/scene/ScriptEngine.h"
#include "stills/scene/ScriptValues.h"
#include "stills/vrml/Parser.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace orvane::stills {

namespace {

/// A name that scripts cannot spell.
constexpr const char* kNode = DUK_HIDDEN_SYMBOL("node");

/// What stands for the file in what a script has written; nothing is ever read for it.
constexpr const char* kWritten = "text made by a script";

Node& This(duk_context* context) {
  duk_push_this(context);
  Node* node = NodeAt(context, -1);
  duk_pop(context);
  if (!node) duk_error(context, DUK_ERR_TYPE_ERROR, "a node is wanted");
  return *node;
}

duk_ret_t GetField(duk_context* context) {
  const Node& node = This(context);
  const int field = duk_get_current_magic(context);
  PushValue(context, node.Declared(field).type, node.Field(field).value, PushNode);
  return 1;
}

duk_ret_t SetField(duk_context* context) {
  Node& node = This(context);
  const int field = duk_get_current_magic(context);
  const FieldText& declared = node.Declared(field);
  if (declared.access == Access::EventOut || declared.access == Access::Field) {
    duk_error(context, DUK_ERR_TYPE_ERROR, "%s of %s cannot be set", declared.name.c_str(),
              node.TypeName().c_str());
  }
  ScriptEngine& engine = ScriptEngine::From(context);
  Value& value = engine.KeepValue();
  TakeValue(context, 0, declared.type, value, NodeAt);
  engine.Guarded([&] { engine.Owner().Receive(node, field, std::move(value)); });
  return 0;
}

void DefineProperty(duk_context* context, duk_idx_t object, const char* before,
                    const std::string& name, const char* after, int field) {
  duk_push_sprintf(context, "%s%s%s", before, name.c_str(), after);
  duk_push_c_function(context, GetField, 0);
  duk_set_magic(context, -1, field);
  duk_push_c_function(context, SetField, 1);
  duk_set_magic(context, -1, field);
  duk_def_prop(context, object,
               DUK_DEFPROP_HAVE_GETTER | DUK_DEFPROP_HAVE_SETTER | DUK_DEFPROP_SET_ENUMERABLE);
}

/// Of all nodes of a type: its fields and events as properties.
void PushPrototype(duk_context* context, const Node& node) {
  duk_push_global_stash(context);
  duk_push_pointer(context, const_cast<NodeType*>(&node.Type()));  // a key is never written to
  duk_safe_to_string(context, -1);
  if (!duk_get_prop(context, -2)) {
    duk_pop(context);
    duk_push_object(context);
    const duk_idx_t prototype = duk_get_top_index(context);
    duk_get_global_string(context, "SFNode");
    duk_get_prop_string(context, -1, "prototype");
    duk_set_prototype(context, prototype);
    duk_pop(context);
    for (int i = 0; i < node.FieldCount(); ++i) {
      const FieldText& field = node.Declared(i);
      DefineProperty(context, prototype, "", field.name, "", i);
      if (field.access != Access::ExposedField) continue;
      DefineProperty(context, prototype, "set_", field.name, "", i);
      DefineProperty(context, prototype, "", field.name, "_changed", i);
    }
    duk_push_pointer(context, const_cast<NodeType*>(&node.Type()));
    duk_safe_to_string(context, -1);
    duk_dup(context, prototype);
    duk_put_prop(context, -4);
  }
  duk_remove(context, -2);
}

}  // namespace

void PushNode(duk_context* context, Node* node) {
  if (!node) {
    duk_push_null(context);
    return;
  }
  if (node->scriptObject) {
    duk_push_heapptr(context, node->scriptObject);
    return;
  }
  duk_push_object(context);
  PushPrototype(context, *node);
  duk_set_prototype(context, -2);
  duk_push_pointer(context, node);
  duk_put_prop_string(context, -2, kNode);
  duk_dup_top(context);
  ScriptEngine::From(context).KeepObject();
  node->scriptObject = duk_get_heapptr(context, -1);
}

Node* NodeAt(duk_context* context, duk_idx_t index) {
  if (duk_is_null_or_undefined(context, index)) return nullptr;
  duk_require_object(context, index);
  duk_get_prop_string(context, index, kNode);
  auto* node = static_cast<Node*>(duk_get_pointer(context, -1));
  duk_pop(context);
  if (!node) duk_error(context, DUK_ERR_TYPE_ERROR, "a node is wanted");
  return node;
}

duk_ret_t CreateNodes(duk_context* context) {
  ScriptEngine& engine = ScriptEngine::From(context);
  duk_size_t size = 0;
  const char* text = duk_require_lstring(context, 0, &size);
  Value& value = engine.KeepValue();
  engine.Guarded([&] {
    static const auto file = std::make_shared<const std::string>(kWritten);
    value = engine.Owner().MakeFragment(
        ParseFragment(std::string_view(text, size), {file, 1}, engine.Bounds()));
  });
  PushValue(context, FieldType::MFNode, value, PushNode);
  return 1;
}

}  // namespace orvane::stills
