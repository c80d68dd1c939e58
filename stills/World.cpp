// Reads worlds, and shows them from their viewpoints.

#include "stills/scene/Scene.h"
#include "stills/shapes/Collector.h"
#include "stills/shapes/Vectors.h"
#include "stills/vrml/Parser.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <sstream>

namespace orvane::stills {

namespace {

namespace fs = std::filesystem;

std::optional<std::string> TextOf(const fs::path& path, const Limits& limits) {
  std::error_code fault;
  if (!fs::is_regular_file(path, fault)) return std::nullopt;
  if (fs::file_size(path, fault) > limits.bytes) {
    throw Error(path.string() + ": the file is larger than " + std::to_string(limits.bytes >> 20) +
                " MB");
  }
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  if (!file) return std::nullopt;
  return std::move(text).str();
}

/// Finds PROTO files beside the file that asks for them, and else in the program's own library.
/// What a script has written asks for nothing: its name is that of no file.
FileLoader LoaderFor(const Options& options, const fs::path& world) {
  return [options, world](const std::string& url, const std::string& from, std::string& text,
                          std::string& name) {
    const bool isFromFile = from == world.string() || fs::path(from).is_absolute();
    if (url.empty() || !isFromFile) return false;
    std::string link = url.starts_with("file://") ? url.substr(7) : url;
    if (link.find("://") == std::string::npos) {
      const fs::path path = fs::absolute(fs::path(from)).parent_path() / link;
      if (auto found = TextOf(path, options.limits)) {
        name = fs::weakly_canonical(path).string();
        text = std::move(*found);
        return true;
      }
    }
    const std::string file = fs::path(link).filename().string();
    const std::string* own = options.library ? options.library(file) : nullptr;
    if (!own) return false;
    name = fs::absolute(file).string();
    text = *own;
    return true;
  };
}

std::vector<Vec3> Colors(const std::vector<float>& list) {
  std::vector<Vec3> colors;
  for (std::size_t i = 0; i + 2 < list.size(); i += 3)
    colors.push_back({list[i], list[i + 1], list[i + 2]});
  return colors;
}

bool IsSameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(
      a, b, [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

}  // namespace

struct World::Parts {
  Parts(const Options& options, const fs::path& path)
      : scene(options.limits, LoaderFor(options, path)), collector(scene) {}

  /// Tells the sensors near the viewer, and those that he has left; true if one took notice.
  bool TellSensors(const std::vector<PlacedSensor>& sensors, const Matrix& viewer);
  /// What moves things in loops from the start.
  std::vector<Node*> Clocks();
  View Chosen(const std::vector<View>& views, std::string_view name);

  Scene scene;
  Collector collector;
  std::set<const Node*> active;  ///< sensors that have the viewer within their box
};

World::World() = default;
World::World(World&&) noexcept = default;
World& World::operator=(World&&) noexcept = default;
World::~World() = default;

World World::Read(const std::string& path, const Options& options) {
  const auto text = TextOf(path, options.limits);
  if (!text) throw Error(path + ": the file cannot be read");
  return Parse(*text, path, options);
}

World World::Parse(std::string_view text, const std::string& path, const Options& options) {
  World world;
  world.m_parts = std::make_unique<Parts>(options, path);
  Scene& scene = world.m_parts->scene;
  scene.Load(ParseWorld(text, path, scene.TheBudget()));
  return world;
}

std::vector<std::string> World::Views() const {
  std::vector<std::string> names;
  for (const View& view : m_parts->collector.Walk({}, false).views) names.push_back(view.name);
  return names;
}

View World::Parts::Chosen(const std::vector<View>& views, std::string_view name) {
  if (views.empty() && name.empty()) return {"", {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {0, 0, 10}}};
  std::string known;
  for (const View& view : views) {
    if (name.empty() || IsSameName(view.name, name)) return view;
    known += (known.empty() ? "" : ", ") + view.name;
  }
  throw Error("the world has no viewpoint \"" + std::string(name) +
              "\"; there are: " + (known.empty() ? "none" : known));
}

std::vector<Node*> World::Parts::Clocks() {
  std::vector<Node*> clocks;
  for (Node& node : scene.AllNodes()) {
    const bool isClock = node.Is("TimeSensor") && node.Bool("enabled") && node.Bool("loop");
    if (isClock) clocks.push_back(&node);
  }
  return clocks;
}

bool World::Parts::TellSensors(const std::vector<PlacedSensor>& sensors, const Matrix& viewer) {
  bool isHeard = false;
  for (const auto& [node, place] : sensors) {
    const auto &center = node->Floats("center"), &size = node->Floats("size");
    const Vec3 at = place.Inverse().Point(viewer.origin);
    bool isInside = node->Bool("enabled");
    for (std::size_t axis = 0; axis < 3; ++axis) {
      isInside = isInside && size[axis] > 0 && std::abs(at[axis] - center[axis]) <= size[axis] / 2;
    }
    if (isInside != (active.count(node) > 0)) {
      isHeard = true;
      if (isInside)
        active.insert(node);
      else
        active.erase(node);
      scene.Raise(*node, "isActive", std::vector<std::int32_t>{isInside ? 1 : 0});
    }
    if (isInside) scene.Raise(*node, "position_changed", std::vector<float>{at[0], at[1], at[2]});
  }
  return isHeard;
}

Still World::From(std::string_view name) {
  Collector& collector = m_parts->collector;
  Still still;
  Findings found = collector.Walk({}, false);
  still.view = m_parts->Chosen(found.views, name);
  // What a sensor brings into the scene may hold sensors of its own.
  for (int round = 0; round < 8; ++round) {
    if (!m_parts->TellSensors(found.sensors, still.view.place)) break;
    found = collector.Walk(still.view.place, false);
  }
  found = collector.Walk(still.view.place, true);
  still.parts = std::move(found.parts);
  still.lights = std::move(found.lights);
  if (!found.navigation || found.navigation->Bool("headlight")) {
    Light headlight;
    headlight.kind = Light::Kind::Directional;
    headlight.direction = still.view.place.Vector({0, 0, -1});
    still.lights.push_back(headlight);
  }
  if (found.background) {
    still.background.skyAngles = found.background->Floats("skyAngle");
    still.background.skyColors = Colors(found.background->Floats("skyColor"));
    still.background.groundAngles = found.background->Floats("groundAngle");
    still.background.groundColors = Colors(found.background->Floats("groundColor"));
  }
  return still;
}

void World::Turn(float fraction) {
  for (Node* clock : m_parts->Clocks()) {
    m_parts->scene.Raise(*clock, "fraction_changed", std::vector<float>{fraction});
  }
}

double World::TurnSeconds() const {
  double seconds = 0;
  for (const Node* clock : m_parts->Clocks()) {
    seconds = std::max(seconds, clock->Doubles("cycleInterval")[0]);
  }
  return seconds;
}

std::vector<float> World::TurnKeys() const {
  std::set<float> keys{0, 1};
  for (const Node* clock : m_parts->Clocks()) {
    for (const Link& link : clock->Field(clock->Find("fraction_changed")).routes) {
      if (!link.node->TypeName().ends_with("Interpolator")) continue;
      for (const float key : link.node->Floats("key")) keys.insert(std::clamp(key, 0.0F, 1.0F));
    }
  }
  return {keys.begin(), keys.end()};
}

}  // namespace orvane::stills
