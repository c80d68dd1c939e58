/// Values on their way between fields and scripts.
#pragma once

#include "stills/vrml/Value.h"

#include <duktape.h>

namespace orvane::stills {

/// Pushes what a script sees of a field's value; nodes are pushed by `pushNode`, a function of the
/// engine's owner. Raises the engine's own error when memory is short.
void PushValue(duk_context* context, FieldType type, const Value& value,
               void (*pushNode)(duk_context*, Node*));

/// The value at an index of the stack as a field of that type, written into `value`, which the
/// caller keeps where the engine's jumps do not lose it. Raises the engine's own error for what
/// does not fit.
void TakeValue(duk_context* context, duk_idx_t index, FieldType type, Value& value,
               Node* (*nodeAt)(duk_context*, duk_idx_t));

/// Pushes the shortest text of the 32-bit numbers in the list at an index, with spaces between
/// them.
void PushFloatText(duk_context* context, duk_idx_t index);

}  // namespace orvane::stills
