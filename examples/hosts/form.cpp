/// A form designer in small: a form with a control on it, the control's property page, a saved
/// form, and a chart made through the control that was loaded again.

#include <filesystem>
#include <fstream>
#include <iostream>

#include <orvane/control/ProtoPath.h>
#include <orvane/orvane.h>

namespace {

namespace fs = std::filesystem;

/// Settings of this program's own, which end with it. Without this the user's are used.
class SessionSettings final : public orvane::host::SettingsStore {
 public:
  std::string Get(const std::string&, const std::string&, const std::string& key,
                  const std::string& fallback) const override {
    return key == "ProtoDir" && !m_protoDir.empty() ? m_protoDir : fallback;
  }
  void Save(const std::string&, const std::string&, const std::string& key,
            const std::string& value) override {
    if (key == "ProtoDir") m_protoDir = value;
  }

 private:
  std::string m_protoDir;
};

}  // namespace

int main(int argc, char** argv) {
  namespace host = orvane::host;
  const fs::path file = argc > 1 ? argv[1] : "form.wrl";
  const auto settings = std::make_shared<SessionSettings>();
  host::Services().settings.Use(settings);

  // Design: a new control, whose page says that the PROTO files are in a folder beside the world's.
  const fs::path folder = fs::absolute(file).parent_path();
  fs::create_directories(folder / "protos");
  std::string saved;
  {
    host::Container form;
    const auto control = std::make_shared<orvane::OrvaneTemplateCtl>();
    form.PlaceNew(control);
    const auto shown = form.ShowPropertyPage({control});
    auto& page = dynamic_cast<orvane::ProtoPath&>(*shown);
    page.optPath_Click(orvane::ProtoPath::Mode::Relative);
    page.Dir1.Path(folder.string());
    page.Dir2.Path((folder / "protos").string());
    page.Apply();
    saved = form.Save(control).Text();
  }
  std::cout << "saved: " << saved;

  // Run: the saved control, and a chart through it.
  host::Container form;
  const auto control = std::make_shared<orvane::OrvaneTemplateCtl>();
  form.PlaceSaved(control, host::PropertyBag(saved));
  const auto chart = control->CreateFactory()->CreateRibbonGraph();
  chart->TitleProps()->Text("From a form");
  chart->GridProps()->ZAxisCellCount(1);
  for (const float height : {1.0F, 3.0F, 2.0F}) chart->GetSeries(1)->Height().Append(height);
  if (!chart->ExportToFile(file.string())) {
    std::cerr << "cannot write " << file << "\n";
    return 1;
  }
  std::cout << "wrote " << file.string() << ", which looks in " << control->RelativeProtoPath()
            << "\n";
  return control->RelativeProtoPath() == "protos\\" ? 0 : 1;
}
