#include "pages/Assets.h"

#include <cstddef>

// One file as it is, as a function that returns it.
#define ORVANE_ASSET(Function, file)                                                     \
  asm(".pushsection .rodata\n" #Function "Begin: .incbin \"" ORVANE_PAGE_DIR "/" file    \
      "\"\n" #Function "End: .byte 0\n.popsection");                                     \
  extern "C" __attribute__((visibility("hidden"))) const char Function##Begin[];         \
  extern "C" __attribute__((visibility("hidden"))) const char Function##End[];           \
  std::string_view orvane::pages::Function() {                                           \
    return {Function##Begin, static_cast<std::size_t>(Function##End - Function##Begin)}; \
  }

ORVANE_ASSET(Policy, "policy.txt")
ORVANE_ASSET(Style, "style.txt")
ORVANE_ASSET(StartScript, "start.txt")
ORVANE_ASSET(PlayerScript, "script.txt")
