#include "orvane/forms/Container.h"

#include "orvane/automation/AutomationError.h"

#include <algorithm>

namespace orvane::host {
namespace {

constexpr Extent kInitialSize{1440, 1440};

}  // namespace

void Container::PlaceNew(const std::shared_ptr<Control>& control) {
  RequireUnplaced(control);
  control->InitProperties();
  Place(control, true);
}

void Container::PlaceSaved(const std::shared_ptr<Control>& control, const PropertyBag& bag) {
  RequireUnplaced(control);
  control->ReadProperties(bag);
  Place(control, false);
}

void Container::RequireUnplaced(const std::shared_ptr<Control>& control) const {
  Require(control != nullptr, "A container needs a control to place");
  const auto site = std::ranges::find(m_sites, control, &Site::control);
  Require(site == m_sites.end(), "The control is placed in this container already");
}

void Container::Place(const std::shared_ptr<Control>& control, bool isNew) {
  auto needsSaving = std::make_shared<bool>(isNew);
  auto subscription =
      control->PropertyChanged.Connect([needsSaving](const std::string&) { *needsSaving = true; });
  m_sites.push_back({control, std::move(needsSaving), std::move(subscription)});
  control->Size(kInitialSize);
}

const Container::Site& Container::SiteOf(const std::shared_ptr<Control>& control) const {
  const auto site = std::ranges::find(m_sites, control, &Site::control);
  Require(site != m_sites.end(), "The control is not placed in this container");
  return *site;
}

PropertyBag Container::Save(const std::shared_ptr<Control>& control) {
  const Site& site = SiteOf(control);
  PropertyBag bag;
  control->WriteProperties(bag);
  *site.needsSaving = false;
  return bag;
}

bool Container::NeedsSaving(const std::shared_ptr<Control>& control) const {
  return *SiteOf(control).needsSaving;
}

void Container::Resize(const std::shared_ptr<Control>& control, Extent size) {
  SiteOf(control).control->Size(size);
}

std::unique_ptr<PropertyPage> Container::ShowPropertyPage(
    const PropertyPage::Controls& selected) const {
  Require(!selected.empty(), "Select a control to show its property page");
  for (const auto& control : selected) SiteOf(control);
  auto page = selected.front()->MakePropertyPage();
  page->Open(selected);
  return page;
}

}  // namespace orvane::host
