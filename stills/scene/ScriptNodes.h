/// Nodes as scripts see them: objects whose properties are the fields and events.
#pragma once

#include "stills/scene/Node.h"

#include <duktape.h>

namespace orvane::stills {

/// Pushes the one object of a node, or null.
void PushNode(duk_context* context, Node* node);

/// The node of the object at an index of the stack; nullptr of null. Raises the engine's own error
/// if something else is there.
Node* NodeAt(duk_context* context, duk_idx_t index);

/// createVrmlFromString: nodes of the text that is its argument.
duk_ret_t CreateNodes(duk_context* context);

}  // namespace orvane::stills
