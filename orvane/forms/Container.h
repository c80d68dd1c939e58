/// The form that a host program places controls on.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/forms/Control.h"
#include "orvane/forms/PropertyPage.h"

#include <memory>
#include <vector>

namespace orvane::host {

/// Holds controls and tells them what happens to them. Placing a control twice, or naming one
/// that is not placed here, raises a component error.
class ORVANE_API Container {
 public:
  /// Places a new control: InitProperties, then its size, 1 inch square.
  void PlaceNew(const std::shared_ptr<Control>& control);
  /// Places a control that was saved: ReadProperties, then its size.
  void PlaceSaved(const std::shared_ptr<Control>& control, const PropertyBag& bag);

  /// The control's properties; it needs no saving then.
  PropertyBag Save(const std::shared_ptr<Control>& control);
  /// Whether the control is new or told of a change since it was saved.
  bool NeedsSaving(const std::shared_ptr<Control>& control) const;

  void Resize(const std::shared_ptr<Control>& control, Extent size);

  /// The page of the controls `selected`, of one class, open. Raises a component error when none
  /// is selected.
  std::unique_ptr<PropertyPage> ShowPropertyPage(const PropertyPage::Controls& selected) const;

 private:
  struct Site {
    std::shared_ptr<Control> control;
    std::shared_ptr<bool> needsSaving;
    Subscription propertyChanged;
  };
  void RequireUnplaced(const std::shared_ptr<Control>& control) const;
  void Place(const std::shared_ptr<Control>& control, bool isNew);
  const Site& SiteOf(const std::shared_ptr<Control>& control) const;

  std::vector<Site> m_sites;
};

}  // namespace orvane::host
