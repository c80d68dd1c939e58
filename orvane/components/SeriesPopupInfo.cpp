#include "orvane/components/SeriesPopupInfo.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Describe.h"

namespace orvane {

const host::TypeInfo& SeriesPopupInfo::Type() const {
  using Info = SeriesPopupInfo;
  static const host::TypeInfo type =
      host::Describe<Info>("The texts that pop up when a viewer points at the values of a series.")
          .Property<scene::MFString>("PopupText", &Info::PopupText,
                                     {"The text of each value; a live list"})
          .Property<VRMLPopupAlignment>("Alignment", &Info::Alignment, &Info::Alignment,
                                        {"Where a text stands, seen from its value"})
          .With(DescribePopupLook<Info>);
  return type;
}

SeriesPopupInfo::SeriesPopupInfo() {
  Shape()->stripColor.Value(0xFFFFFF);
  Shape()->stripFactor.Value(1.0F);
}

VRMLPopupAlignment SeriesPopupInfo::Alignment() const {
  return FromVrmlName<VRMLPopupAlignment>(Shape()->alignment.Value());
}

void SeriesPopupInfo::Alignment(VRMLPopupAlignment alignment) {
  if (IsEnumerator(alignment)) Shape()->alignment.Value(VrmlName(alignment));
}

std::int16_t SeriesPopupInfo::Count() const { return host::Int16(Shape()->pointCount.Value()); }

void SeriesPopupInfo::Count(std::int16_t count) {
  host::Require(count >= 1, "Invalid count, must be greater than 0");
  Shape()->pointCount.Value(count);
}

void SeriesPopupInfo::radius(float value) {
  host::Require(value > 0, "Invalid radius, must be greater than 0");
  Shape()->stripRadius.Value(value);
}

void SeriesPopupInfo::Depth(float depth) {
  host::Require(depth > 0, "Invalid depth, must be greater than 0");
  Shape()->stripDepth.Value(depth);
}

void SeriesPopupInfo::Spacing(float spacing) {
  host::Require(spacing > 0, "Invalid spacing, must be greater than 0");
  Shape()->pointSpacing.Value(spacing);
}

}  // namespace orvane
