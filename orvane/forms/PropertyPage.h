/// A page on which a designer changes the properties of the controls selected in a container.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/forms/Control.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orvane::host {

class ORVANE_API PropertyPage {
 public:
  using Controls = std::vector<std::shared_ptr<Control>>;

  virtual ~PropertyPage() = default;

  virtual std::string Caption() const = 0;

  /// Opens the page for the controls `selected`; it is unchanged then.
  void Open(Controls selected) {
    m_selected = std::move(selected);
    PropertyPage_Initialize();
    m_isChanged = false;
  }

  /// Whether there is something to apply.
  bool IsChanged() const { return m_isChanged; }

  /// Applies what the page shows. When that raises an error the page stays changed.
  void Apply() {
    PropertyPage_ApplyChanges();
    m_isChanged = false;
  }

 protected:
  virtual void PropertyPage_Initialize() = 0;
  virtual void PropertyPage_ApplyChanges() = 0;

  const Controls& SelectedControls() const { return m_selected; }
  void MarkChanged() { m_isChanged = true; }

 private:
  Controls m_selected;
  bool m_isChanged = false;
};

}  // namespace orvane::host
