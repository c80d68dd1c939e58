/// Every test program has a configuration folder of its own: the user's is neither read nor
/// written.
#include "support/ScratchFolder.h"

#include <cstdlib>

namespace {

const struct ScratchConfig {
  ScratchConfig() { setenv("XDG_CONFIG_HOME", folder.Path().c_str(), 1); }
  orvane::tests::ScratchFolder folder;
} kScratchConfig;

}  // namespace
