#include "orvane/platform/MessageBox.h"

#include <iostream>

namespace orvane::host {

void ErrorStreamMessages::Show(const std::string& text, MessageIcon, const std::string& title) {
  std::cerr << title + ": " + text + "\n" << std::flush;
}

}  // namespace orvane::host
