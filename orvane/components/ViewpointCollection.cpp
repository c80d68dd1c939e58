#include "orvane/components/ViewpointCollection.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/Describe.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& ViewpointCollection::Type() const {
  using Collection = ViewpointCollection;
  static const host::TypeInfo type =
      host::Describe<Collection>("The places from which a viewer can look at a chart.")
          .Method("GetViewpoint", &Collection::GetViewpoint, {{"Index", host::UpTo("Count")}},
                  {"One viewpoint"})
          .Method("AddViewpoint", &Collection::AddViewpoint, {}, {"Adds a viewpoint"})
          .Method("ClearViewpoints", &Collection::ClearViewpoints, {}, {"Removes all viewpoints"})
          .Property<std::int16_t>("Count", &Collection::Count, {"Number of viewpoints"});
  return type;
}

std::shared_ptr<scene::Viewpoint> ViewpointCollection::GetViewpoint(std::int16_t index) const {
  return std::dynamic_pointer_cast<scene::Viewpoint>(Root()->children.Item(index));
}

std::shared_ptr<scene::Viewpoint> ViewpointCollection::AddViewpoint() {
  auto viewpoint = scene::Create<scene::Viewpoint>();
  Root()->children.Append(viewpoint);
  return viewpoint;
}

std::int16_t ViewpointCollection::Count() const { return host::Int16(Root()->children.Count()); }

}  // namespace orvane
