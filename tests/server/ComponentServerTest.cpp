/// The library as a program in another language meets it: loaded at run time, reached through its C
/// header alone.

#include "support/ScratchFolder.h"

#include "orvane/server/component.h"

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include <dlfcn.h>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using orvane::tests::FileText;

/// A result, given back when it goes.
class Result {
 public:
  Result(const orvane_object_calls* calls, orvane_value value) : m_calls(calls), m_value(value) {}
  Result(Result&& other) noexcept
      : m_calls(other.m_calls), m_value(std::exchange(other.m_value, {})) {}
  Result& operator=(Result&&) = delete;
  ~Result() { m_calls->ClearValue(&m_value); }

  const orvane_value* operator->() const { return &m_value; }
  orvane_object* Object() const { return m_value.as.object; }
  std::string Text() const { return {m_value.as.string, m_value.count}; }

 private:
  const orvane_object_calls* m_calls;
  orvane_value m_value;
};

orvane_value Int(std::int32_t number) { return {ORVANE_INT32, 0, {.int32 = number}}; }
orvane_value Boolean(bool truth) { return {ORVANE_BOOLEAN, 0, {.boolean = truth ? 1 : 0}}; }
orvane_value Text(const std::string& text) {
  return {ORVANE_STRING, text.size(), {.string = text.c_str()}};
}
orvane_value Row(const std::vector<double>& numbers) {
  return {ORVANE_NUMBERS, numbers.size(), {.numbers = numbers.data()}};
}

class Server : public testing::Test {
 protected:
  void SetUp() override {
    m_library = dlopen(ORVANE_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(m_library, nullptr) << dlerror();
    m_canUnload = Entry<orvane_DllCanUnloadNow>("DllCanUnloadNow");
    m_getClass = Entry<orvane_DllGetClassObject>("DllGetClassObject");
  }
  void TearDown() override {
    EXPECT_EQ(m_canUnload(), ORVANE_OK);
    EXPECT_EQ(dlclose(m_library), 0);
  }

  template <class F>
  F Entry(const char* name) const {
    return reinterpret_cast<F>(dlsym(m_library, name));
  }

  Result Control() {
    orvane_class* factory = nullptr;
    EXPECT_EQ(m_getClass(ORVANE_TEMPLATE_CTL, &factory, &m_error), ORVANE_OK);
    orvane_value control{};
    control.type = ORVANE_OBJECT;
    EXPECT_EQ(factory->calls->CreateInstance(factory, &control.as.object, &m_error), ORVANE_OK);
    EXPECT_EQ(factory->calls->Release(factory), 0U);
    return {control.as.object->calls, control};
  }
  Result Chart() {
    const Result control = Control();
    const Result factory = Call(control.Object(), "CreateFactory");
    return Call(factory.Object(), "CreateAreaGraph");
  }

  int32_t IdOf(orvane_object* object, const char* name) {
    int32_t id = -1;
    EXPECT_EQ(object->calls->GetIdOfName(object, name, &id, &m_error), ORVANE_OK)
        << m_error.description;
    return id;
  }
  orvane_status Invoke(orvane_object* object, const char* name, int32_t access,
                       const std::vector<orvane_value>& arguments, orvane_value* result) {
    return object->calls->Invoke(object, IdOf(object, name), access, arguments.data(),
                                 arguments.size(), result, &m_error);
  }
  Result Call(orvane_object* object, const char* name,
              const std::vector<orvane_value>& arguments = {}, int32_t access = ORVANE_CALL) {
    orvane_value result{};
    EXPECT_EQ(Invoke(object, name, access, arguments, &result), ORVANE_OK) << m_error.description;
    return {object->calls, result};
  }
  Result Get(orvane_object* object, const char* name) { return Call(object, name, {}, ORVANE_GET); }
  void Let(orvane_object* object, const char* name, orvane_value value) {
    EXPECT_EQ(Invoke(object, name, ORVANE_LET, {value}, nullptr), ORVANE_OK) << m_error.description;
  }

  void* m_library = nullptr;
  orvane_DllCanUnloadNow m_canUnload = nullptr;
  orvane_DllGetClassObject m_getClass = nullptr;
  orvane_error m_error{};
};

TEST_F(Server, IsNotUnloadedWhileAnythingIsHeld) {
  EXPECT_EQ(m_canUnload(), ORVANE_OK);
  orvane_class* factory = nullptr;
  ASSERT_EQ(m_getClass(ORVANE_TEMPLATE_CTL, &factory, nullptr), ORVANE_OK);
  EXPECT_EQ(m_canUnload(), ORVANE_FALSE) << "a class object";
  EXPECT_EQ(factory->calls->AddRef(factory), 2U);
  EXPECT_EQ(factory->calls->Release(factory), 1U);
  EXPECT_EQ(factory->calls->Release(factory), 0U);
  EXPECT_EQ(m_canUnload(), ORVANE_OK);
  {
    const Result control = Control();
    control.Object()->calls->AddRef(control.Object());
    EXPECT_EQ(control.Object()->calls->Release(control.Object()), 1U);
    EXPECT_EQ(m_canUnload(), ORVANE_FALSE) << "an object";
  }
  EXPECT_EQ(m_canUnload(), ORVANE_OK);
  {
    // Part of a chart whose other references are all given back.
    const Result labels = Get(Get(Chart().Object(), "XAxisProps").Object(), "Labels");
    EXPECT_EQ(m_canUnload(), ORVANE_FALSE);
    Call(labels.Object(), "Append", {Text("a")});
    EXPECT_EQ(Get(labels.Object(), "Count")->as.int32, 1);
  }
  EXPECT_EQ(m_canUnload(), ORVANE_OK);
}

TEST_F(Server, PassesValuesOfEveryType) {
  const Result control = Control();
  const Result factory = Call(control.Object(), "CreateFactory");
  EXPECT_EQ(Call(control.Object(), "CreateFactory").Object(), factory.Object());
  const Result chart = Call(factory.Object(), "CreateAreaGraph");
  const Result title = Get(chart.Object(), "TitleProps");
  const std::string texts[] = {"", "a\"b", "Größe", std::string(100000, 'x')};
  for (const auto& text : texts) {
    Let(title.Object(), "Text", Text(text));
    EXPECT_EQ(Get(title.Object(), "Text").Text(), text);
  }
  Let(title.Object(), "IsBillboarded", Boolean(true));
  EXPECT_EQ(Get(title.Object(), "IsBillboarded")->type, ORVANE_BOOLEAN);
  EXPECT_EQ(Get(title.Object(), "IsBillboarded")->as.boolean, 1);
  Let(title.Object(), "TextColor", Int(0x123456));
  EXPECT_EQ(Get(title.Object(), "TextColor")->as.int32, 0x123456);
  Let(title.Object(), "TextHeight", Text("0.5"));
  EXPECT_EQ(Get(title.Object(), "TextHeight")->type, ORVANE_SINGLE);
  EXPECT_EQ(Get(title.Object(), "TextHeight")->as.single, 0.5F);

  Let(Get(chart.Object(), "GridProps").Object(), "ZAxisCellCount", Int(1));
  const Result series = Call(chart.Object(), "GetSeries", {Int(1)});
  const Result list = Get(series.Object(), "Height");
  const std::vector<double> rows[] = {{1.5, -2, 1e30F}, {}};
  for (const auto& row : rows) {
    Let(list.Object(), "Items", Row(row));
    const Result got = Get(list.Object(), "Items");
    ASSERT_EQ(got->type, ORVANE_NUMBERS);
    EXPECT_EQ(got->as.numbers == nullptr, row.empty());
    EXPECT_EQ(std::vector(got->as.numbers, got->as.numbers + got->count), row);
  }
}

TEST_F(Server, TellsWhatIsWrongAndChangesNothing) {
  const Result chart = Chart();
  const Result grid = Get(chart.Object(), "GridProps");
  const float width = Get(grid.Object(), "Width")->as.single;
  orvane_value strange = Int(1);
  strange.type = 99;
  orvane_value noText = Text("");
  noText.as.string = nullptr;
  orvane_value noNumbers = Row({1});
  noNumbers.as.numbers = nullptr;
  const struct {
    const char* member;
    std::vector<orvane_value> arguments;
    std::string description;
    int32_t access;
    orvane_status status;
  } refused[] = {
      {"Width", {Int(0)}, "The graph must be wider than 0", ORVANE_LET, 0x80040000},
      {"Width", {}, "GridInfo.Width takes 1 argument(s), got 0", ORVANE_LET, 0x8002000E},
      {"Width", {Int(1)}, "GridInfo.Width takes 0 argument(s), got 1", ORVANE_GET, 0x8002000E},
      {"Width", {}, "There is no access 3", 3, ORVANE_ERROR_ARGUMENT},
      {"Width", {strange}, "There is no value of type 99", ORVANE_LET, ORVANE_ERROR_ARGUMENT},
      {"Width", {noText}, "The text of an argument is NULL", ORVANE_LET, ORVANE_ERROR_POINTER},
      {"Width",
       {noNumbers},
       "The numbers of an argument are NULL",
       ORVANE_LET,
       ORVANE_ERROR_POINTER},
  };
  for (const auto& [member, arguments, description, access, status] : refused) {
    orvane_value result = Int(7);
    EXPECT_EQ(Invoke(grid.Object(), member, access, arguments, &result), status) << description;
    EXPECT_EQ(m_error.number, status);
    EXPECT_EQ(m_error.description, description);
    EXPECT_STREQ(m_error.source, "Orvane");
    EXPECT_EQ(result.type, ORVANE_EMPTY) << description;
    EXPECT_EQ(Get(grid.Object(), "Width")->as.single, width) << description;
  }
  const auto* calls = grid->as.object->calls;
  EXPECT_EQ(calls->Invoke(grid.Object(), 999, ORVANE_GET, nullptr, 0, nullptr, nullptr),
            0x80020006);
  EXPECT_EQ(calls->Invoke(grid.Object(), 0, ORVANE_LET, nullptr, 1, nullptr, nullptr),
            ORVANE_ERROR_POINTER);
  EXPECT_EQ(calls->Invoke(nullptr, 0, ORVANE_GET, nullptr, 0, nullptr, nullptr),
            ORVANE_ERROR_POINTER);

  // A description is cut where a character ends.
  std::string name;
  for (int i = 0; i < 2000; ++i) name += "ä";
  int32_t id = 5;
  EXPECT_EQ(calls->GetIdOfName(grid.Object(), name.c_str(), &id, &m_error), 0x80020006);
  EXPECT_EQ(id, 5);
  const std::string cut = m_error.description;
  EXPECT_TRUE(cut.starts_with("GridInfo has no member \"ää") && cut.ends_with("ä")) << cut;
  EXPECT_GE(cut.size(), sizeof m_error.description - 2);

  orvane_class* none = nullptr;
  EXPECT_EQ(m_getClass("{00000000-0000-0000-0000-000000000000}", &none, &m_error),
            ORVANE_ERROR_NO_CLASS);
  EXPECT_EQ(m_getClass(nullptr, &none, nullptr), ORVANE_ERROR_POINTER);
  EXPECT_EQ(m_getClass(ORVANE_TEMPLATE_CTL, nullptr, nullptr), ORVANE_ERROR_POINTER);
}

/// Notes the argument of each event; refuses 7.
orvane_status Note(void* context, const orvane_value* arguments, size_t count,
                   orvane_error* error) {
  EXPECT_EQ(count, 1U);
  static_cast<std::vector<int32_t>*>(context)->push_back(arguments->as.int32);
  if (arguments->as.int32 != 7) return ORVANE_OK;
  *error = {0, "Host", "Not seven"};
  return 0x80040001;
}

TEST_F(Server, CallsHandlersOfEventsAndPassesTheirErrorsOn) {
  EXPECT_EQ(Entry<orvane_OrvaneComponentVersion>("OrvaneComponentVersion")(), 2U);
  const Result chart = Chart();
  const Result grid = Get(chart.Object(), "GridProps");
  const auto* calls = grid->as.object->calls;
  std::vector<int32_t> heard;
  int32_t subscription = 0;
  ASSERT_EQ(
      calls->Subscribe(grid.Object(), "ycellcountchanged", Note, &heard, &subscription, &m_error),
      ORVANE_OK);
  Let(grid.Object(), "YAxisCellCount", Int(3));
  EXPECT_EQ(Invoke(grid.Object(), "YAxisCellCount", ORVANE_LET, {Int(7)}, nullptr), 0x80040001U);
  EXPECT_EQ(m_error.source + std::string(": ") + m_error.description, "Host: Not seven");
  EXPECT_EQ(calls->Unsubscribe(grid.Object(), subscription, &m_error), ORVANE_OK);
  EXPECT_EQ(calls->Unsubscribe(grid.Object(), subscription, &m_error), 0x80040200U);
  Let(grid.Object(), "YAxisCellCount", Int(5));
  EXPECT_EQ(heard, (std::vector<int32_t>{3, 7}));
  EXPECT_EQ(calls->Subscribe(grid.Object(), "Width", Note, &heard, &subscription, &m_error),
            0x80020006U);
  EXPECT_EQ(calls->Subscribe(grid.Object(), "YCellCountChanged", nullptr, nullptr, &subscription,
                             &m_error),
            ORVANE_ERROR_POINTER);
}

TEST_F(Server, ListsItselfForTheUserAndUndoesThatCompletely) {
  const auto enter = Entry<orvane_DllRegisterServer>("DllRegisterServer");
  const auto leave = Entry<orvane_DllUnregisterServer>("DllUnregisterServer");
  const fs::path config = std::getenv("XDG_CONFIG_HOME");
  const fs::path file = config / "orvane/classes.ini";
  const std::string entry =
      std::string("[") + ORVANE_TEMPLATE_CTL +
      "]\nClass=OrvaneTemplateCtl\nTypeLibrary=OrvaneTemplate\nLibrary=" + ORVANE_LIBRARY + "\n";
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(enter(), ORVANE_OK);
    EXPECT_EQ(FileText(file), entry);
  }
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(leave(), ORVANE_OK);
    EXPECT_TRUE(fs::is_empty(config));
  }

  const std::string others = "# by hand\n[{1}]\nClass=Other\n\n[{2}]\nClass=Another\n";
  fs::create_directory(config / "orvane");
  std::ofstream(file) << others;
  EXPECT_EQ(enter(), ORVANE_OK);
  EXPECT_EQ(FileText(file), others + "\n" + entry);
  EXPECT_EQ(leave(), ORVANE_OK);
  EXPECT_EQ(FileText(file), others);

  fs::remove(file);
  fs::create_directory(file);
  EXPECT_EQ(enter(), 0x800A004B);
  EXPECT_EQ(leave(), 0x800A004B);
  fs::remove_all(config / "orvane");
}

}  // namespace
