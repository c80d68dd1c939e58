#include "stills/output/Shading.h"

#include "stills/shapes/Vectors.h"

#include <algorithm>

namespace orvane::stills {

std::vector<Light> LightsSeen(const Still& still) {
  const Matrix back = still.view.place.Inverse();
  std::vector<Light> lights = still.lights;
  for (Light& light : lights) {
    light.location = back.Point(light.location);
    light.direction = Unit(back.Vector(light.direction));
  }
  return lights;
}

Vec3 Shade(const Look& look, const Vec3& diffuse, const Vec3& point, const Vec3& normal,
           const std::vector<Light>& lights) {
  Vec3 sum = look.emissive;
  const Vec3 toViewer = Unit(point * -1);
  const bool isShiny = look.specular != Vec3{};
  for (const Light& light : lights) {
    Vec3 toLight = light.direction * -1;
    float power = 1;
    if (light.kind == Light::Kind::Point) {
      const Vec3 way = light.location - point;
      const float away = Length(way);
      if (away > light.radius) continue;
      toLight = way * (1 / std::max(away, 1e-9F));
      const Vec3& fade = light.attenuation;
      power = 1 / std::max(fade[0] + fade[1] * away + fade[2] * away * away, 1.0F);
    }
    Vec3 term = diffuse * std::max(Dot(normal, toLight), 0.0F);
    if (isShiny) {
      const float half = std::max(Dot(normal, Unit(toLight + toViewer)), 0.0F);
      term = term + look.specular * std::pow(half, look.shininess * 128);
    }
    const Vec3 ambient = diffuse * (light.ambientIntensity * look.ambientIntensity);
    sum = sum + light.color * ((ambient + term * light.intensity) * power);
  }
  for (float& number : sum) number = std::clamp(number, 0.0F, 1.0F);
  return sum;
}

namespace {

Vec3 Between(const std::vector<float>& angles, const std::vector<Vec3>& colors, float angle) {
  float from = 0;
  for (std::size_t i = 0; i < angles.size() && i + 1 < colors.size(); ++i) {
    if (angle <= angles[i]) {
      const float part = angles[i] > from ? (angle - from) / (angles[i] - from) : 1;
      return colors[i] * (1 - part) + colors[i + 1] * part;
    }
    from = angles[i];
  }
  return colors.back();
}

}  // namespace

Vec3 SkyColor(const Background& background, const Vec3& direction) {
  const float down = std::acos(std::clamp(-direction[1], -1.0F, 1.0F));
  if (!background.groundColors.empty() && !background.groundAngles.empty() &&
      down <= background.groundAngles.back()) {
    return Between(background.groundAngles, background.groundColors, down);
  }
  if (background.skyColors.empty()) return {};
  return Between(background.skyAngles, background.skyColors, 3.1415927F - down);
}

}  // namespace orvane::stills
