#include "orvane/graphs/surface/SurfacePopupInfo.h"

#include "orvane/automation/Describe.h"

namespace orvane {

const host::TypeInfo& SurfacePopupInfo::Type() const {
  using Info = SurfacePopupInfo;
  static const host::TypeInfo type =
      host::Describe<Info>("The texts that pop up when a viewer points at a surface.")
          .With(DescribePopupLook<Info>);
  return type;
}

SurfacePopupInfo::SurfacePopupInfo() {
  Shape()->textPosition.Value("TOP");
  Shape()->frameColor.Value(0xFFFFFF);
  Shape()->frameScale.Value(1.0F);
}

}  // namespace orvane
