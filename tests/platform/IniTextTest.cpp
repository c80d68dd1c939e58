/// Settings text: any value comes back, and what is not understood is left alone.

#include "support/Raises.h"

#include "orvane/forms/PropertyBag.h"
#include "orvane/platform/IniText.h"

#include <gtest/gtest.h>

namespace orvane::host {
namespace {

TEST(IniText, GivesBackEveryValue) {
  using std::string_literals::operator""s;
  const std::string values[] = {"",
                                " ",
                                "C:\\",
                                "C:\\Größe\\a b",
                                "http://x/?a=b#c;d",
                                "\"",
                                "\"a\" b",
                                "[s]",
                                "=",
                                " padded ",
                                "two\nlines\r\n",
                                "nul\0end"s,
                                "\x01\x1f\x7f",
                                "\\n",
                                "a\"",
                                "k=v",
                                "\t",
                                "\xff\xfe",
                                "x\\\"",
                                std::string(5000, '\n')};
  IniText ini;
  int next = 0;
  for (const auto& value : values) ini.Set("s", "k" + std::to_string(next++), value);
  const IniText read(ini.Text());
  next = 0;
  for (const auto& value : values) EXPECT_EQ(read.Get("s", "k" + std::to_string(next++)), value);
  EXPECT_EQ(read.Text(), ini.Text());
}

TEST(IniText, ReadsWhatPeopleWriteAndSkipsWhatIsDamaged) {
  const std::pair<const char*, std::optional<std::string>> lines[] = {
      {"k=v", "v"},       {"  k\t=  v w \r", "v w"},
      {"k=", ""},         {"k=\"a\\x41\\\"\\n\"", "aA\"\n"},
      {"K=v", {}},        {"#k=v", {}},
      {"k", {}},          {"k=\"open", {}},
      {"k=\"a\" b", {}},  {"k=\"\\q\"", {}},
      {"k=\"\\x4\"", {}}, {"k=\"\\", {}},
      {"k=a\x01", {}}};
  for (const auto& [text, value] : lines) {
    const std::string before = std::string("[other]\nk=0\n[s]\n") + text + "\n";
    IniText ini(before);
    EXPECT_EQ(ini.Get("s", "k"), value) << text;
    EXPECT_EQ(ini.Text(), before);
    ini.Set("s", "k", "new");
    EXPECT_EQ(ini.Get("s", "k"), "new") << text;
    EXPECT_EQ(ini.Get("other", "k"), "0") << text;
  }
  EXPECT_EQ(IniText("k=top\n[s]\nk=1\n[s]\nk=2").Get("s", "k"), "1");
  EXPECT_EQ(IniText("k=top\n[s]\nk=1\n").Get("", "k"), "top");
}

TEST(IniText, RemovesASectionWithoutATrace) {
  const std::string before = "# mine\n[a]\nk=1\n";
  IniText ini(before);
  ini.Set("b", "k", "2");
  EXPECT_EQ(ini.Text(), before + "\n[b]\nk=2\n");
  ini.Set("a", "l", "3");
  EXPECT_EQ(ini.Text(), "# mine\n[a]\nk=1\nl=3\n\n[b]\nk=2\n");
  ini.Remove("b");
  ini.Remove("b");
  EXPECT_EQ(ini.Text(), "# mine\n[a]\nk=1\nl=3\n");
  IniText only;
  only.Set("a", "k", "1");
  only.Remove("a");
  EXPECT_EQ(only.Text(), "");
}

TEST(IniText, RefusesNamesThatWouldNotComeBack) {
  for (const char* name : {"", " a", "a ", "a=b", "[a", "a]", "\"a", "#a", ";a", "a\nb", "\t"}) {
    IniText ini("[s]\nk=v\n");
    EXPECT_EQ(tests::ErrorOf([&] { ini.Set("s", name, "v"); }),
              tests::ComponentError("Invalid name of a setting"))
        << name;
    EXPECT_EQ(ini.Text(), "[s]\nk=v\n");
  }
}

TEST(PropertyBag, KeepsWhatDiffersFromItsDefault) {
  PropertyBag bag;
  bag.WriteProperty("ProtoPath", "..\\protos\\", "");
  bag.WriteProperty("Caption", "", "");
  EXPECT_EQ(bag.Text(), "ProtoPath=..\\protos\\\n");
  const PropertyBag loaded(bag.Text());
  EXPECT_EQ(loaded.ReadProperty("ProtoPath", ""), "..\\protos\\");
  EXPECT_EQ(loaded.ReadProperty("Caption", "none"), "none");
  EXPECT_EQ(PropertyBag(std::string("\0\xff[=\n]\"", 7)).ReadProperty("ProtoPath", "d"), "d");
}

}  // namespace
}  // namespace orvane::host
