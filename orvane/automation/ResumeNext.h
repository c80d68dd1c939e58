/// Statements whose errors are passed over.
#pragma once

#include "orvane/automation/AutomationError.h"

namespace orvane::host {

/// Runs each of `statements` in order; one that raises an error ends there, and the next follows.
template <class... S>
void ResumeNext(const S&... statements) {
  const auto run = [](const auto& statement) {
    try {
      statement();
    } catch (const AutomationError&) {  // NOLINT(bugprone-empty-catch): what this is for.
    }
  };
  (run(statements), ...);
}

}  // namespace orvane::host
