/// A container tells its controls what happens to them, and hears what they say.

#include "support/Raises.h"

#include "orvane/host/Container.h"
#include "orvane/host/Describe.h"

#include <gtest/gtest.h>

namespace orvane::host {
namespace {

using tests::ComponentError;
using tests::ErrorOf;

class Page final : public PropertyPage {
 public:
  std::string Caption() const override { return "Page"; }
  void Change() { MarkChanged(); }
  std::size_t applied = 0;
  bool isRefused = false;

 private:
  void PropertyPage_Initialize() override { MarkChanged(); }
  void PropertyPage_ApplyChanges() override {
    Require(!isRefused, "refused");
    applied += SelectedControls().size();
  }
};

/// Writes down what it is told; never wider than 100 twips.
class Recorder final : public Control {
 public:
  static constexpr const char* kClassName = "Recorder";
  const TypeInfo& Type() const override {
    static const TypeInfo type = Describe<Recorder>("For tests.");
    return type;
  }

  void InitProperties() override { told += "new "; }
  void ReadProperties(const PropertyBag& bag) override {
    told += "loaded " + bag.ReadProperty("Text", "?") + " ";
  }
  void WriteProperties(PropertyBag& bag) const override { bag.WriteProperty("Text", told, ""); }
  std::unique_ptr<PropertyPage> MakePropertyPage() const override {
    return std::make_unique<Page>();
  }
  const Picture& Face() const override {
    static const Picture face;
    return face;
  }

  std::string told;

 protected:
  void Resize() override {
    told += std::to_string(m_size.width) + "x" + std::to_string(m_size.height) + " ";
    m_size.width = std::min(m_size.width, 100);
  }
};

TEST(Container, TellsControlsOfNewSavedAndLoadedStates) {
  Container form;
  const auto fresh = std::make_shared<Recorder>();
  form.PlaceNew(fresh);
  EXPECT_EQ(fresh->told, "new 1440x1440 ");
  EXPECT_TRUE(form.NeedsSaving(fresh));
  const PropertyBag bag = form.Save(fresh);
  EXPECT_FALSE(form.NeedsSaving(fresh));

  const auto loaded = std::make_shared<Recorder>();
  form.PlaceSaved(loaded, PropertyBag(bag.Text()));
  EXPECT_EQ(loaded->told, "loaded new 1440x1440  1440x1440 ");
  EXPECT_FALSE(form.NeedsSaving(loaded));
  loaded->PropertyChanged("Text");
  EXPECT_TRUE(form.NeedsSaving(loaded));
  EXPECT_FALSE(form.NeedsSaving(fresh));

  form.Resize(loaded, {50, 60});
  EXPECT_EQ(loaded->Size(), (Extent{50, 60}));
  form.Resize(loaded, {200, 60});
  EXPECT_EQ(loaded->Size(), (Extent{100, 60})) << "the control knows better";
}

TEST(Container, ShowsAPageThatAppliesToTheControlsSelected) {
  Container form;
  const auto a = std::make_shared<Recorder>();
  const auto b = std::make_shared<Recorder>();
  form.PlaceNew(a);
  form.PlaceNew(b);
  const auto shown = form.ShowPropertyPage({a, b});
  auto& page = dynamic_cast<Page&>(*shown);
  EXPECT_FALSE(page.IsChanged()) << "opening is no change";
  page.Change();
  page.isRefused = true;
  EXPECT_EQ(ErrorOf([&] { page.Apply(); }), ComponentError("refused"));
  EXPECT_TRUE(page.IsChanged());
  page.isRefused = false;
  page.Apply();
  EXPECT_FALSE(page.IsChanged());
  EXPECT_EQ(page.applied, 2U);
}

TEST(Container, KnowsItsOwnControlsAlone) {
  Container form;
  const auto control = std::make_shared<Recorder>();
  const std::string unknown = "The control is not placed in this container";
  tests::ExpectErrors(
      {{[&] { form.Save(control); }, unknown},
       {[&] { form.ShowPropertyPage({control}); }, unknown},
       {[&] { form.ShowPropertyPage({}); }, "Select a control to show its property page"}});
  form.PlaceNew(control);
  EXPECT_EQ(ErrorOf([&] { form.PlaceSaved(control, PropertyBag()); }),
            ComponentError("The control is placed in this container already"));
  EXPECT_EQ(control->told, "new 1440x1440 ");
}

}  // namespace
}  // namespace orvane::host
