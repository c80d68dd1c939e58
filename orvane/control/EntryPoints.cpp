/// The entry points of the component server, which component.h documents.

#include "orvane/control/OrvaneTemplateCtl.h"
#include "orvane/platform/IniFile.h"
#include "orvane/scene/ProtoFiles.h"
#include "orvane/server/ComponentObjects.h"

#include <filesystem>
#include <stdexcept>
#include <string>

#include <dlfcn.h>

namespace orvane {
namespace {

constexpr const char* kTypeLibrary = "OrvaneTemplate";

std::shared_ptr<host::Object> MakeControl() { return std::make_shared<OrvaneTemplateCtl>(); }

host::IniFile ClassesFile() { return host::UserIniFile("orvane", "classes.ini"); }

/// The file that this code was loaded from.
std::string LibraryFile() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&DllRegisterServer), &info) == 0 ||
      info.dli_fname == nullptr) {
    throw std::runtime_error("The library does not know its own file");
  }
  const auto file = std::filesystem::absolute(info.dli_fname).lexically_normal();
  if (!std::filesystem::exists(file)) {
    throw std::runtime_error(file.string() + ": the library is not there any more");
  }
  return file.string();
}

}  // namespace
}  // namespace orvane

using namespace orvane;  // NOLINT(google-build-using-namespace): C names are global.

extern "C" {

ORVANE_API uint32_t OrvaneComponentVersion() { return 2; }

ORVANE_API orvane_status DllGetClassObject(const char* class_id, orvane_class** object,
                                           orvane_error* error) {
  return host::Guarded(error, [&] {
    host::RequireForC(object != nullptr, ORVANE_ERROR_POINTER,
                      "There is nowhere to put the class object");
    *object = nullptr;
    host::RequireForC(class_id != nullptr, ORVANE_ERROR_POINTER, "The class identifier is NULL");
    host::RequireForC(host::EqualNoCase(class_id, ORVANE_TEMPLATE_CTL), ORVANE_ERROR_NO_CLASS,
                      "The library has no class with that identifier");
    *object = host::HandOutClass(MakeControl);
  });
}

ORVANE_API orvane_status DllCanUnloadNow() {
  return host::IsAnythingHeld() ? ORVANE_FALSE : ORVANE_OK;
}

ORVANE_API orvane_status DllRegisterServer() {
  return host::Guarded(nullptr, [] {
    ClassesFile().Update([library = LibraryFile()](host::IniText& classes) {
      classes.Set(ORVANE_TEMPLATE_CTL, "Class", OrvaneTemplateCtl::kClassName);
      classes.Set(ORVANE_TEMPLATE_CTL, "TypeLibrary", kTypeLibrary);
      classes.Set(ORVANE_TEMPLATE_CTL, "Library", library);
    });
  });
}

ORVANE_API orvane_status DllUnregisterServer() {
  return host::Guarded(nullptr, [] {
    ClassesFile().Update([](host::IniText& classes) { classes.Remove(ORVANE_TEMPLATE_CTL); });
  });
}

ORVANE_API orvane_status OrvaneWriteProtos(const char* folder, orvane_error* error) {
  return host::Guarded(error, [&] {
    host::RequireForC(folder != nullptr, ORVANE_ERROR_POINTER, "The folder is NULL");
    WriteProtos(folder);
  });
}

}  // extern "C"
