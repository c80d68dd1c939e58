/// What readers of files complain of, in a form that tests compare with one line.
#pragma once

#include "Source.h"

#include <string>
#include <utility>

namespace orvane::tests {

/// The message of the FileError that `call` ends with; "no complaint" when it returns.
template <class F>
std::string ComplaintOf(F&& call) {
  try {
    std::forward<F>(call)();
  } catch (const tool::FileError& error) {
    return error.what();
  }
  return "no complaint";
}

}  // namespace orvane::tests
