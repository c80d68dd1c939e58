/// The control: what its path of PROTO files starts from, what it accepts, and what it hands out.

#include "support/HostRecorder.h"
#include "support/Raises.h"

#include "orvane/control/OrvaneTemplateCtl.h"
#include "orvane/forms/Container.h"
#include "orvane/scene/OrvaneModule.h"

#include <optional>
#include <set>

#include <gtest/gtest.h>

namespace orvane {
namespace {

class ControlTest : public testing::Test {
 protected:
  void SetUp() override { OrvaneModule::RelativeProtoPath("before/"); }
  void TearDown() override { OrvaneModule::RelativeProtoPath(""); }

  tests::HostRecorder m_host;
};

struct Start {
  std::optional<std::string> outputDir;
  std::optional<std::string> protoDir;
  std::string initialised;  ///< RelativeProtoPath once the control is made
  std::string placed;       ///< and once it is placed as a new one.
};

TEST_F(ControlTest, StartsFromTheUsersSettings) {
  const Start starts[] = {
      {{}, {}, "", ""},
      {R"(C:\Out\)", R"(C:\Protos\)", R"(C:\Protos\)", R"(..\Protos\)"},
      {R"(C:\Out)", R"(C:\Out\P)", R"(C:\Out\P)", R"(P\)"},
      {R"(C:\Out)", R"(C:\Out)", R"(C:\Out)", ""},
      {R"(C:\Out)", {}, "", R"(..\)"},
      {{}, R"(C:\Protos)", R"(C:\Protos)", R"(Protos\)"},
      {"", "http://x/p/", "http://x/p/", "http://x/p/"},
      {R"(C:\Out)", "HtTpS://x/p", "HtTpS://x/p", "HtTpS://x/p"},
      {"", "http", "http", "http"},
      {"", "htt", "htt", ""},
      {R"(C:\Out)", R"(D:\Protos)", R"(D:\Protos)", ""},
      {R"(\\server\out)", R"(C:\Protos)", R"(C:\Protos)", ""},
      {"", "", "", ""},
  };
  for (const auto& [outputDir, protoDir, initialised, placed] : starts) {
    m_host.settings->saved.clear();
    if (outputDir) m_host.settings->saved["NVOCX/ProtoPath/OutputDir"] = *outputDir;
    if (protoDir) m_host.settings->saved["NVOCX/ProtoPath/ProtoDir"] = *protoDir;
    const std::string what = outputDir.value_or("-") + " " + protoDir.value_or("-");
    const auto saved = m_host.settings->saved;
    const auto control = std::make_shared<OrvaneTemplateCtl>();
    EXPECT_EQ(OrvaneModule::RelativeProtoPath(), initialised) << what;
    control->CreateFactory();
    EXPECT_EQ(control->RelativeProtoPath(), initialised.empty() ? "" : placed) << what;
    host::Container().PlaceNew(control);
    EXPECT_EQ(control->RelativeProtoPath(), placed) << what;
    EXPECT_EQ(m_host.settings->saved, saved) << "the control only reads them";
  }
  EXPECT_TRUE(m_host.messages->shown.empty());
}

TEST_F(ControlTest, TakesAPathThatEndsInASeparator) {
  // What is given, and what is stored: nullptr for a value that is refused.
  const std::pair<const char*, const char*> lets[] = {{"  ../protos/ ", "../protos/"},
                                                      {R"(..\protos\)", R"(..\protos\)"},
                                                      {"   ", ""},
                                                      {"/", "/"},
                                                      {"http://x/p/", "http://x/p/"},
                                                      {"", ""},
                                                      {"../protos", nullptr},
                                                      {"../protos/.", nullptr},
                                                      {"../protos/\t", nullptr},
                                                      {"a", nullptr},
                                                      {"../protos\"", nullptr}};
  for (const auto& [value, stored] : lets) {
    host::Container form;
    const auto control = std::make_shared<OrvaneTemplateCtl>();
    form.PlaceSaved(control, host::PropertyBag("ProtoPath=old/"));
    std::vector<std::string> changed;
    const auto heard =
        control->PropertyChanged.Connect([&](const std::string& name) { changed.push_back(name); });
    m_host.messages->shown.clear();
    control->Let("relativeprotopath", value);
    EXPECT_EQ(control->RelativeProtoPath(), stored == nullptr ? "old/" : stored) << value;
    EXPECT_EQ(form.NeedsSaving(control), stored != nullptr) << value;
    using Texts = std::vector<std::string>;
    EXPECT_EQ(changed, stored == nullptr ? Texts() : Texts{"RelativeProtoPath"});
    EXPECT_EQ(m_host.messages->shown,
              stored != nullptr
                  ? Texts()
                  : Texts{"48 Orvane Template OCX: The proto relative path must end with either a "
                          "/ or \\."})
        << value;
  }
}

TEST_F(ControlTest, KeepsItsPathInThePropertyBag) {
  host::Container form;
  const auto control = std::make_shared<OrvaneTemplateCtl>();
  form.PlaceNew(control);
  EXPECT_TRUE(form.NeedsSaving(control));
  EXPECT_EQ(form.Save(control).Text(), "") << "the default is not kept";
  EXPECT_FALSE(form.NeedsSaving(control));
  control->RelativeProtoPath(R"(..\protos\)");
  const auto bag = form.Save(control);
  EXPECT_EQ(bag.ReadProperty("ProtoPath", ""), R"(..\protos\)");

  m_host.Set("C:\\", "http://settings/");
  const auto loaded = std::make_shared<OrvaneTemplateCtl>();
  form.PlaceSaved(loaded, bag);
  EXPECT_EQ(loaded->RelativeProtoPath(), R"(..\protos\)") << "what was saved, not the settings";
  form.PlaceSaved(std::make_shared<OrvaneTemplateCtl>(), host::PropertyBag());
  EXPECT_EQ(control->RelativeProtoPath(), "") << "the last control speaks for the process";
  loaded->RelativeProtoPath("x/");
  EXPECT_TRUE(form.NeedsSaving(loaded));
  EXPECT_FALSE(form.NeedsSaving(control)) << "each control for itself";
}

TEST_F(ControlTest, IsKnownToItsOwnContainerAlone) {
  host::Container form;
  const auto control = std::make_shared<OrvaneTemplateCtl>();
  const std::string unknown = "The control is not placed in this container";
  const std::string twice = "The control is placed in this container already";
  tests::ExpectErrors(
      {{[&] { form.Save(control); }, unknown},
       {[&] { form.ShowPropertyPage({control}); }, unknown},
       {[&] { form.ShowPropertyPage({}); }, "Select a control to show its property page"}});
  form.PlaceSaved(control, host::PropertyBag("ProtoPath=old/"));
  tests::ExpectErrors({{[&] { form.PlaceSaved(control, host::PropertyBag()); }, twice},
                       {[&] { form.PlaceNew(control); }, twice}});
  EXPECT_EQ(control->RelativeProtoPath(), "old/");
}

TEST_F(ControlTest, StaysAtItsSizeWithItsPicture) {
  host::Container form;
  const auto control = std::make_shared<OrvaneTemplateCtl>();
  form.PlaceNew(control);
  EXPECT_EQ(control->Size(), (host::Extent{615, 615}));
  for (const host::Extent size : {host::Extent{0, 0}, {1, 9999}, {-5, 615}}) {
    form.Resize(control, size);
    EXPECT_EQ(control->Size(), (host::Extent{615, 615}));
  }
  const auto& face = control->Face();
  EXPECT_EQ(face.width, 42);
  EXPECT_EQ(face.height, 41);
  ASSERT_EQ(face.pixels.size(), 42U * 41U);
  EXPECT_EQ(std::set<std::int32_t>(face.pixels.begin(), face.pixels.end()).count(0), 0U)
      << "a pixel without a colour";
  EXPECT_EQ(face.pixels[25 * 42 + 10], 0xD08F2E) << "blue has the high byte";
}

TEST_F(ControlTest, MakesFreshChartsOfEveryKind) {
  const auto control = std::make_shared<OrvaneTemplateCtl>();
  const auto factory = control->CreateFactory();
  EXPECT_EQ(control->CreateFactory(), factory);
  EXPECT_NE(control->CreateScaler(), control->CreateScaler());
  for (const auto& create : factory->Type().Members()) {
    const auto first = factory->Call(create.name).AsObject();
    const auto second = factory->Call(create.name).AsObject();
    EXPECT_EQ("Create" + first->Type().Name(), create.name);
    EXPECT_NE(first, second);
    EXPECT_EQ(first.use_count(), 1) << "the factory keeps none";
    const auto title = [](const auto& chart) { return chart->Get("TitleProps").AsObject(); };
    title(first)->Let("Text", "first");
    EXPECT_EQ(title(second)->Get("Text"), host::Value("")) << create.name;
  }
}

TEST_F(ControlTest, GivesChartsThePathOfTheMomentTheyAreMade) {
  OrvaneTemplateCtl control;
  control.RelativeProtoPath("one/");
  const auto first = control.CreateFactory()->CreateAreaGraph();
  control.RelativeProtoPath("two/");
  const std::string world = first->ExportToString(true, true);
  EXPECT_NE(world.find("\"one/VR_GRAPH.wrl#"), std::string::npos);
  EXPECT_EQ(world.find("\"two/"), std::string::npos);
  const auto second = control.CreateFactory()->CreateAreaGraph();
  EXPECT_NE(second->ExportToString(true, true).find("\"two/VR_GRAPH.wrl#"), std::string::npos);
}

}  // namespace
}  // namespace orvane
