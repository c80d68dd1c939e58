/// The PROTOs of VR_NAV.wrl: navigation.
#pragma once

#include "orvane/scene/ListFields.h"
#include "orvane/scene/Node.h"
#include "orvane/scene/SingleFields.h"

namespace orvane::scene {

/// Loads the URL whose 0-based index it is sent.
class ORVANE_API Router final : public NodeOf<Router, ProtoInstance> {
 public:
  static constexpr const char* kClassName = "qm4_Router";
  static constexpr Module kModule = Module::Nav;

  SFBool enabled{*this, "enabled", true};
  MFString parameter{*this, "parameter"};
  SFString baseUrl{*this, "baseUrl", ""};
  MFString urls{*this, "urls"};
  EventIn<SFInt32> set_linkIndex{*this, "set_linkIndex"};
};

}  // namespace orvane::scene
