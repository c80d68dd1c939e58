#include "orvane/scene/Traversers.h"

#include "orvane/host/Describe.h"
#include "orvane/scene/SceneError.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

namespace orvane::scene {
namespace {

namespace fs = std::filesystem;

std::string Text(const std::shared_ptr<Node>& rootNode, const std::shared_ptr<RouteList>& routeList,
                 TextLayout layout) {
  if (rootNode == nullptr || routeList == nullptr) {
    Raise(host::ErrorNumber::NoNode, "A writer needs a root node and a route list");
  }
  return SceneWriter::Write(*rootNode, *routeList, layout);
}

bool Put(const fs::path& file, const std::string& text) {
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream.write(text.data(), static_cast<std::streamsize>(text.size()));
  stream.close();
  return !stream.fail();
}

/// Writes to a neighbour of `file` and moves it into place, so that a reader sees the old text or
/// the new one and never half of it. Links are followed; what is no regular file (a terminal, a
/// pipe) is written to as it is.
bool Replace(const std::string& fileName, const std::string& text) {
  std::error_code error;
  fs::path file(std::u8string(fileName.begin(), fileName.end()));
  if (file.empty()) return false;
  const auto status = fs::status(file, error);
  if (fs::is_directory(status)) return false;
  if (fs::exists(status)) {
    if (!fs::is_regular_file(status)) return Put(file, text);
    file = fs::canonical(file, error);
    if (error) return false;
  }
  fs::path neighbour = file;
  neighbour += "." + std::to_string(std::random_device()()) + ".tmp";
  if (Put(neighbour, text)) {
    if (fs::exists(status)) fs::permissions(neighbour, status.permissions(), error);
    fs::rename(neighbour, file, error);
    if (!error) return true;
  }
  fs::remove(neighbour, error);
  return false;
}

}  // namespace

const host::TypeInfo& VRMLFileTraverser::Type() const {
  static const host::TypeInfo type =
      host::Describe<VRMLFileTraverser>("Writes a scene to a file.")
          .Method("Traverse", &VRMLFileTraverser::Traverse, {"fileName", "rootNode", "routeList"},
                  {"Writes the scene; false when the file could not be written"});
  return type;
}

bool VRMLFileTraverser::Traverse(const std::string& fileName, const std::shared_ptr<Node>& rootNode,
                                 const std::shared_ptr<RouteList>& routeList) {
  return Replace(fileName, Text(rootNode, routeList, {true, true}));
}

const host::TypeInfo& VRMLStringTraverser::Type() const {
  static const host::TypeInfo type =
      host::Describe<VRMLStringTraverser>("Writes a scene to a string.")
          .WriteOnly<bool>("includeBreaks", &VRMLStringTraverser::includeBreaks,
                           {"Whether the text has line breaks"})
          .WriteOnly<bool>("includeTabs", &VRMLStringTraverser::includeTabs,
                           {"Whether lines begin with a tab for each level of nesting"})
          .Method("Traverse", &VRMLStringTraverser::Traverse, {"rootNode", "routeList"},
                  {"The scene as VRML97 text"});
  return type;
}

std::string VRMLStringTraverser::Traverse(const std::shared_ptr<Node>& rootNode,
                                          const std::shared_ptr<RouteList>& routeList) {
  return Text(rootNode, routeList, m_layout);
}

}  // namespace orvane::scene
