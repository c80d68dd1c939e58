/// Messages that a person has to see before the program goes on.
#pragma once

#include "orvane/automation/Export.h"

#include <string>

namespace orvane::host {

/// The picture beside a message, with the number that automation hosts know it by.
enum class MessageIcon { Critical = 16, Question = 32, Exclamation = 48, Information = 64 };

/// Shows a message with one button, OK, and returns once it is pressed.
class ORVANE_API MessageBox {
 public:
  virtual ~MessageBox() = default;
  virtual void Show(const std::string& text, MessageIcon icon, const std::string& title) = 0;
};

/// Where nobody is there to press a button: writes "title: text" to standard error.
class ORVANE_API ErrorStreamMessages final : public MessageBox {
 public:
  void Show(const std::string& text, MessageIcon icon, const std::string& title) override;
};

}  // namespace orvane::host
