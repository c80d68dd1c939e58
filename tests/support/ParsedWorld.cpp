#include "support/ParsedWorld.h"

#include <sstream>

#include <Inventor/SbName.h>
#include <Inventor/SoDB.h>
#include <Inventor/SoFullPath.h>
#include <Inventor/SoInput.h>
#include <Inventor/VRMLnodes/SoVRMLGroup.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/fields/SoField.h>
#include <Inventor/misc/SoProto.h>
#include <Inventor/misc/SoProtoInstance.h>

namespace orvane::tests {
namespace {

void Note(const SoError* error, void* data) {
  static_cast<std::vector<std::string>*>(data)->emplace_back(error->getDebugString().getString());
}

void Ignore(const SoError* /*error*/, void* /*data*/) {}

/// A path with the children that Coin counts as hidden. It is Coin's way to cast down to a class
/// that only widens the interface.
SoFullPath* Full(SoPath* path) { return static_cast<SoFullPath*>(path); }

/// The instance behind a node that a PROTO's body begins with, else the node.
SoNode* InstanceOf(SoNode* node) {
  SoNode* instance = SoProtoInstance::findProtoInstance(node);
  return instance == nullptr ? node : instance;
}

std::string TypeOf(SoNode* node) {
  if (node->isOfType(SoProtoInstance::getClassTypeId())) {
    auto* proto = static_cast<SoProtoInstance*>(node)->getProtoDefinition();
    return proto->getProtoName().getString();
  }
  return node->getTypeId().getName().getString();
}

}  // namespace

ParsedWorld::ParsedWorld(const std::string& text) {
  static const bool kReady = [] {
    SoDB::init();
    SoInput::addDirectoryFirst(ORVANE_PROTO_DIR);
    return true;
  }();
  (void)kReady;
  SoReadError::setHandlerCallback(Note, &m_complaints);
  SoDebugError::setHandlerCallback(Ignore, nullptr);  // Coin has no engine for Scripts.
  SoInput input;
  input.setBuffer(text.data(), text.size());
  m_root = SoDB::readAllVRML(&input);
  if (m_root == nullptr) {
    m_complaints.emplace_back("not a VRML world");
  } else {
    m_root->ref();
  }
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("ROUTE ")) m_routes.push_back(line);
  }
}

ParsedWorld::~ParsedWorld() {
  if (m_root != nullptr) m_root->unref();
}

SoNode* ParsedWorld::Named(const std::string& defName) const {
  return SoNode::getByName(SbName(defName.c_str()));
}

int ParsedWorld::CountOf(const std::string& type) const {
  SoSearchAction search;
  search.setType(SoNode::getClassTypeId());
  search.setInterest(SoSearchAction::ALL);
  search.setSearchingAll(TRUE);
  search.apply(m_root);
  int count = 0;
  for (int i = 0; i < search.getPaths().getLength(); ++i) {
    SoNode* tail = Full(search.getPaths()[i])->getTail();
    count += TypeOf(InstanceOf(tail)) == type ? 1 : 0;
  }
  return count;
}

std::string ParsedWorld::FieldOf(SoNode* node, const std::string& field) {
  SoField* value = node == nullptr ? nullptr : node->getField(SbName(field.c_str()));
  if (value == nullptr) return "";
  SbString text;
  value->get(text);
  std::istringstream words(text.getString());
  std::string line;
  for (std::string word; words >> word;) line += (line.empty() ? "" : " ") + word;
  return line;
}

std::string ParsedWorld::TranslationAbove(SoNode* node) const {
  SoNode* drawn = node;
  if (node->isOfType(SoProtoInstance::getClassTypeId())) {
    drawn = static_cast<SoProtoInstance*>(node)->getRootNode();
  }
  SoSearchAction search;
  search.setNode(drawn);
  search.setSearchingAll(TRUE);
  search.apply(m_root);
  if (search.getPath() == nullptr) return "";
  auto* path = Full(search.getPath());
  for (int i = 1; i < path->getLength(); ++i) {
    const auto translation = FieldOf(path->getNodeFromTail(i), "translation");
    if (!translation.empty()) return translation;
  }
  return "";
}

}  // namespace orvane::tests
