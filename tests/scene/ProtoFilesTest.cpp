/// The three PROTO files and the classes that mirror them agree: every name, type, access kind,
/// order and default.

#include "support/ScratchFolder.h"

#include "orvane/scene/frmMain.h"

#include <map>
#include <regex>
#include <sstream>

#include <gtest/gtest.h>

namespace orvane::scene {
namespace {

std::string NumberText(double number) {
  std::ostringstream text;
  text << static_cast<float>(number);
  return text.str();
}

/// A default as the file has it: brackets and commas away, numbers in one form.
std::string Normalised(std::string text) {
  text = std::regex_replace(text, std::regex("[\\[\\],]"), " ");
  std::istringstream words(text);
  std::string result;
  for (std::string word; words >> word;) {
    char* end = nullptr;
    const double number = std::strtod(word.c_str(), &end);
    if (*end == '\0') word = NumberText(number);
    result += (result.empty() ? "" : " ") + word;
  }
  return result;
}

std::string TextOf(const host::Value& value) {
  if (const auto* truth = value.If<bool>()) return *truth ? "TRUE" : "FALSE";
  if (const auto* text = value.If<std::string>()) return "\"" + *text + "\"";
  if (const auto* whole = value.If<std::int32_t>()) return NumberText(*whole);
  if (const auto* number = value.If<float>()) return NumberText(*number);
  return "NULL";
}

/// The value of a field object, in the form of Normalised.
std::string ValueOf(host::Object& field) {
  std::string result;
  const auto add = [&](const std::string& word) { result += (result.empty() ? "" : " ") + word; };
  if (field.Type().Find("Count") >= 0) {
    for (std::int32_t i = 1; i <= *field.Get("Count").If<std::int32_t>(); ++i) {
      add(TextOf(field.Get("Item", {i})));
    }
    return result;
  }
  for (const char* member : {"Red", "Green", "Blue", "X", "Y", "Z", "Angle"}) {
    if (field.Type().Find(member) >= 0) add(TextOf(field.Get(member)));
  }
  if (!result.empty()) return result;
  return TextOf(field.Get("Value"));
}

using Interface = std::vector<std::string>;

/// The interfaces of all PROTOs of a file, a line an entry: "exposedField SFFloat length 4".
std::map<std::string, Interface> Declared(const std::string& fileName) {
  const std::string text = tests::FileText(ORVANE_PROTO_DIR "/" + fileName);
  std::map<std::string, Interface> protos;
  const std::regex head(R"(\nPROTO (\w+) \[\n([^]*?)\n\] ?\{)");
  for (std::sregex_iterator at(text.begin(), text.end(), head), end; at != end; ++at) {
    std::istringstream lines((*at)[2].str());
    auto& interface = protos[(*at)[1].str()];
    for (std::string line; std::getline(lines, line);) {
      std::istringstream words(line.substr(0, line.find('#')));
      std::string access, type, name, value;
      words >> access >> type >> name;
      std::getline(words, value);
      if (access.empty()) continue;
      const bool isEvent = access == "eventIn" || access == "eventOut";
      interface.push_back(access + " " + type + " " + name +
                          (isEvent ? "" : " = " + Normalised(value)));
    }
  }
  return protos;
}

void ExpectMirrored(Module module) {
  const auto factory = frmMain::Instance().FactoryOf(module);
  std::map<std::string, Interface> mirrored;
  for (const auto& name : factory->NodeTypes()) {
    const auto node = factory->CreateNode(name);
    if (std::dynamic_pointer_cast<ProtoInstance>(node) == nullptr) continue;
    for (const auto& entry : node->Interface()) {
      const std::string line =
          std::string(NameOf(entry.access)) + " " + entry.type + " " + entry.name;
      mirrored[name].push_back(entry.field == nullptr ? line
                                                      : line + " = " + ValueOf(*entry.field));
    }
  }
  const auto declared = Declared(ProtoFileOf(module));
  for (const auto& [name, interface] : declared) EXPECT_EQ(interface, mirrored[name]) << name;
  for (const auto& [name, interface] : mirrored) {
    EXPECT_TRUE(declared.contains(name)) << name << " is in no file";
  }
}

TEST(ProtoFiles, DeclareWhatTheLibrarySets) {
  for (const Module module : {Module::Graph, Module::Nav, Module::Ui}) ExpectMirrored(module);
}

}  // namespace
}  // namespace orvane::scene
