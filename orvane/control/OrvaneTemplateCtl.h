/// The control that a host places on a form: the way into the object model.
#pragma once

#include "orvane/control/GraphFactory.h"
#include "orvane/control/OrvaneScaler.h"
#include "orvane/forms/Control.h"

#include <memory>
#include <string>

namespace orvane {

/// Making one sets the process-wide RelativeProtoPath to the user's ProtoDir setting, or to nothing
/// where there is none; being placed on a form sets it to what leads a world to its PROTO files. So
/// does asking for the factory of one that was never placed, unless the path was set in between.
class ORVANE_API OrvaneTemplateCtl final : public host::Control {
 public:
  static constexpr const char* kClassName = "OrvaneTemplateCtl";
  const host::TypeInfo& Type() const override;

  OrvaneTemplateCtl();

  /// The same factory at each call.
  std::shared_ptr<GraphFactory> CreateFactory();
  /// A new scaler at each call.
  std::shared_ptr<OrvaneScaler> CreateScaler() const { return std::make_shared<OrvaneScaler>(); }

  /// What is put in front of the names of PROTO files in charts that are made from now on, by any
  /// control of the process: a relative path or URL that ends in "/" or "\", or empty for files
  /// beside the world. Spaces around it are taken off. Anything else is answered with a message
  /// box and changes nothing.
  std::string RelativeProtoPath() const;
  void RelativeProtoPath(const std::string& path);

  void InitProperties() override;
  void ReadProperties(const host::PropertyBag& bag) override;
  void WriteProperties(host::PropertyBag& bag) const override;
  std::unique_ptr<host::PropertyPage> MakePropertyPage() const override;
  /// 42 x 41 pixels.
  const host::Picture& Face() const override;

 protected:
  /// The control stays 615 x 615 twips.
  void Resize() override;

 private:
  std::shared_ptr<GraphFactory> m_factory = std::make_shared<GraphFactory>();
  /// The ProtoDir setting that the path was set to, until something else has set it.
  std::string m_protoDir;
};

}  // namespace orvane
