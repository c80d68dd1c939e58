#include "orvane/control/OrvaneTemplateCtl.h"

#include "orvane/automation/Describe.h"
#include "orvane/automation/ResumeNext.h"
#include "orvane/automation/Trimmed.h"
#include "orvane/control/ControlFace.h"
#include "orvane/control/MakeRelativePath.h"
#include "orvane/control/ProtoPath.h"
#include "orvane/control/ProtoSettings.h"
#include "orvane/platform/HostServices.h"
#include "orvane/scene/OrvaneModule.h"

namespace orvane {
namespace {

constexpr host::Extent kSize{615, 615};
constexpr const char* kProtoPathProperty = "ProtoPath";

}  // namespace

const host::TypeInfo& OrvaneTemplateCtl::Type() const {
  using Ctl = OrvaneTemplateCtl;
  static const host::TypeInfo type =
      host::Describe<Ctl>("The control through which a host reaches all charts.")
          .Method("CreateFactory", &Ctl::CreateFactory, {},
                  {"The factory object for creating the Orvane Graph objects"})
          .Method("CreateScaler", &Ctl::CreateScaler, {}, {"A new value scaler"})
          .Property<std::string>(
              "RelativeProtoPath", &Ctl::RelativeProtoPath, &Ctl::RelativeProtoPath,
              {.text =
                   "The relative path to get from the output VRML file to the Proto files; empty, "
                   "or ending in / or \\",
               .isShared = true});
  return type;
}

OrvaneTemplateCtl::OrvaneTemplateCtl() : m_protoDir(ProtoSettings::ProtoDir("")) {
  OrvaneModule::RelativeProtoPath(m_protoDir);
}

std::shared_ptr<GraphFactory> OrvaneTemplateCtl::CreateFactory() {
  // A folder says nothing to a world, which may lie anywhere.
  if (!m_protoDir.empty() && RelativeProtoPath() == m_protoDir) InitProperties();
  return m_factory;
}

std::string OrvaneTemplateCtl::RelativeProtoPath() const {
  return OrvaneModule::RelativeProtoPath();
}

void OrvaneTemplateCtl::RelativeProtoPath(const std::string& path) {
  const std::string trimmed = host::Trimmed(path);
  if (!ProtoSettings::IsPrefix(trimmed)) {
    host::Services().messages->Show(ProtoSettings::kNoPrefix, host::MessageIcon::Exclamation,
                                    "Orvane Template OCX");
    return;
  }
  m_protoDir.clear();
  OrvaneModule::RelativeProtoPath(trimmed);
  PropertyChanged("RelativeProtoPath");
}

void OrvaneTemplateCtl::InitProperties() {
  m_protoDir.clear();
  OrvaneModule::RelativeProtoPath("");
  std::string outputDir;
  std::string protoDir;
  host::ResumeNext([&] { outputDir = ProtoSettings::OutputDir(); },
                   [&] { protoDir = ProtoSettings::ProtoDir(); },
                   [&] {
                     OrvaneModule::RelativeProtoPath(ProtoSettings::IsUrl(protoDir)
                                                         ? protoDir
                                                         : MakeRelativePath(outputDir, protoDir));
                   });
}

void OrvaneTemplateCtl::ReadProperties(const host::PropertyBag& bag) {
  m_protoDir.clear();
  OrvaneModule::RelativeProtoPath(bag.ReadProperty(kProtoPathProperty, ""));
}

void OrvaneTemplateCtl::WriteProperties(host::PropertyBag& bag) const {
  bag.WriteProperty(kProtoPathProperty, RelativeProtoPath(), "");
}

std::unique_ptr<host::PropertyPage> OrvaneTemplateCtl::MakePropertyPage() const {
  return std::make_unique<ProtoPath>();
}

const host::Picture& OrvaneTemplateCtl::Face() const { return ControlFace(); }

void OrvaneTemplateCtl::Resize() { m_size = kSize; }

}  // namespace orvane
