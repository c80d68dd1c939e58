/// Automation objects as component.h shows them to programs in other languages.
#pragma once

#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Export.h"
#include "orvane/automation/Object.h"
#include "orvane/server/component.h"

#include <memory>

namespace orvane::host {

/// A class object, whose instances `make` makes. The reference is the caller's.
ORVANE_API orvane_class* HandOutClass(std::shared_ptr<Object> (*make)());

/// Whether anybody outside the library holds an object or a class object.
ORVANE_API bool IsAnythingHeld();

/// The status of the exception being handled; fills in `error` unless it is nullptr.
ORVANE_API orvane_status StatusOfException(orvane_error* error) noexcept;

/// Runs `action`, which throws what is wrong.
template <class F>
orvane_status Guarded(orvane_error* error, const F& action) noexcept {
  try {
    action();
    return ORVANE_OK;
  } catch (...) {
    return StatusOfException(error);
  }
}

/// Raises the error `number` of component.h unless `accepted`.
inline void RequireForC(bool accepted, orvane_status number, const char* description) {
  if (!accepted) throw AutomationError(static_cast<ErrorNumber>(number), description);
}

}  // namespace orvane::host
