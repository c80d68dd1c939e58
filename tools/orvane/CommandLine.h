/// The program's commands and options.
#pragma once

#include <ostream>

namespace orvane::tool {

/// Runs the program with the arguments of main(). What was asked for goes to `out` or to files,
/// messages go to `err`. Returns the exit status: 0, 1 for bad data or files, 2 for bad usage.
int RunCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

}  // namespace orvane::tool
