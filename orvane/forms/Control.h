/// What a container expects of the controls that are placed in it.
#pragma once

#include "orvane/automation/Event.h"
#include "orvane/automation/Export.h"
#include "orvane/automation/Object.h"
#include "orvane/forms/Picture.h"
#include "orvane/forms/PropertyBag.h"

#include <cstdint>
#include <memory>
#include <string>

namespace orvane::host {

class PropertyPage;

/// Width and height in twips, 1440 to the inch.
struct Extent {
  std::int32_t width = 0;
  std::int32_t height = 0;
  friend bool operator==(const Extent&, const Extent&) = default;
};

/// An object that is placed on a form. Making one initialises it; then comes InitProperties or
/// ReadProperties, once.
class ORVANE_API Control : public Object {
 public:
  /// The control is new.
  virtual void InitProperties() = 0;
  /// The control was saved, and is loaded again.
  virtual void ReadProperties(const PropertyBag& bag) = 0;
  virtual void WriteProperties(PropertyBag& bag) const = 0;

  /// A page, not yet open, that shows the properties of controls of this class.
  virtual std::unique_ptr<PropertyPage> MakePropertyPage() const = 0;

  /// What the control looks like.
  virtual const Picture& Face() const = 0;

  Extent Size() const { return m_size; }
  /// Called by the container; a control that knows better changes it in Resize.
  void Size(Extent size);

  /// A property that the container has to save changed; the argument is its name.
  Event<const std::string&> PropertyChanged;

 protected:
  virtual void Resize() = 0;
  Extent m_size;
};

inline void Control::Size(Extent size) {
  m_size = size;
  Resize();
}

}  // namespace orvane::host
