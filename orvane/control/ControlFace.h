/// The picture on the control's face.
#pragma once

#include "orvane/forms/Picture.h"

namespace orvane {

/// Three columns before a grid, 42 x 41 pixels.
const host::Picture& ControlFace();

}  // namespace orvane
