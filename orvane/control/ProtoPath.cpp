#include "orvane/control/ProtoPath.h"

#include "orvane/automation/ResumeNext.h"
#include "orvane/automation/Trimmed.h"
#include "orvane/control/MakeRelativePath.h"
#include "orvane/control/ProtoSettings.h"

namespace orvane {

using host::ResumeNext;

ProtoPath::ProtoPath()
    : Dir1("VRML output directory"),
      Dir2("Proto directory"),
      m_optPath{{{"Internet URL of proto files"},
                 {"Relative path to proto files from local graph files"}}},
      m_changes{Text1.Change.Connect([this] { MarkChanged(); }),
                Dir1.Change.Connect([this] { MarkChanged(); }),
                Dir2.Change.Connect([this] { MarkChanged(); })} {}

void ProtoPath::optPath_Click(Mode mode) {
  for (const Mode each : {Mode::Url, Mode::Relative}) {
    m_optPath[Index(each)].isSelected = each == mode;
    m_frame1[Index(each)].isEnabled = each == mode;
  }
  MarkChanged();
}

void ProtoPath::PropertyPage_Initialize() {
  std::string outputDir;
  std::string protoDir;
  ResumeNext([&] { outputDir = ProtoSettings::OutputDir(); },
             [&] { protoDir = ProtoSettings::ProtoDir(); });
  const auto show = [](host::DirectoryList& list, const std::string& directory) {
    ResumeNext([&] { list.Path(ProtoSettings::kNoDirectory); }, [&] { list.Path(directory); });
  };
  if (ProtoSettings::IsUrl(protoDir)) {
    Text1.Text(protoDir);
    show(Dir1, ProtoSettings::kNoDirectory);
    show(Dir2, ProtoSettings::kNoDirectory);
    optPath_Click(Mode::Url);
  } else {
    show(Dir1, outputDir);
    show(Dir2, protoDir);
    Text1.Text("HTTP://");
    optPath_Click(Mode::Relative);
  }
}

void ProtoPath::PropertyPage_ApplyChanges() {
  std::string path;
  if (optPath(Mode::Url).isSelected) {
    ProtoSettings::SaveOutputDir("");
    path = host::Trimmed(Text1.Text());
    ProtoSettings::SaveProtoDir(path);
  } else {
    ProtoSettings::SaveOutputDir(Dir1.Path());
    ProtoSettings::SaveProtoDir(Dir2.Path());
    path = MakeRelativePath(Dir1.Path(), Dir2.Path());
  }
  for (const auto& control : SelectedControls()) control->Let("RelativeProtoPath", path);
}

}  // namespace orvane
